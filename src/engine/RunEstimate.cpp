#include "engine/RunEstimate.h"

#include <charconv>
#include <map>
#include <string_view>

namespace tamsic {

namespace {

constexpr std::string_view kHead = "Message: estimate";
constexpr std::string_view kSeparator = " | ";
constexpr std::string_view kName = " scenario=";

// The "key=value" fields of a record, blank-separated.
std::map<std::string, double, std::less<>> Fields(std::string_view record) {
  std::map<std::string, double, std::less<>> fields;
  while (!record.empty()) {
    const std::size_t blank = std::min(record.find(' '), record.size());
    const std::string_view field = record.substr(0, blank);
    record.remove_prefix(std::min(blank + 1, record.size()));
    const std::size_t equals = field.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view text = field.substr(equals + 1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc() && end == text.data() + text.size()) fields.emplace(field.substr(0, equals), value);
  }
  return fields;
}

double At(const std::map<std::string, double, std::less<>>& fields, std::string_view key) {
  const auto found = fields.find(key);
  return found == fields.end() ? 0.0 : found->second;
}

std::optional<ScenarioEstimate> ParseScenario(std::string_view record) {
  const std::size_t name = record.find(kName);
  if (name == std::string_view::npos) return std::nullopt;
  const auto fields = Fields(record.substr(0, name));
  ScenarioEstimate s;
  s.name = std::string(record.substr(name + kName.size()));
  s.iterations = static_cast<int>(At(fields, "iterations"));
  s.piloted = static_cast<int>(At(fields, "piloted"));
  s.seconds = At(fields, "seconds");
  s.peakBytes = At(fields, "peak");
  s.checkedBytes = At(fields, "checked");
  s.fits = At(fields, "fits") != 0.0;
  return s;
}

}  // namespace

std::vector<const ScenarioEstimate*> RunEstimate::refused() const {
  std::vector<const ScenarioEstimate*> list;
  for (const ScenarioEstimate& s : scenarios)
    if (!s.fits) list.push_back(&s);
  return list;
}

std::optional<RunEstimate> ParseEstimate(const std::string& reply) {
  std::string_view rest = reply;
  if (!rest.starts_with(kHead)) return std::nullopt;
  rest.remove_prefix(kHead.size());
  std::size_t cut = std::min(rest.find(kSeparator), rest.size());
  const auto fields = Fields(rest.substr(0, cut));
  RunEstimate estimate;
  estimate.threads = static_cast<int>(At(fields, "threads"));
  estimate.seconds = At(fields, "seconds");
  estimate.peakBytes = At(fields, "peak");
  estimate.availableBytes = At(fields, "available");
  estimate.baselineBytes = At(fields, "baseline");
  estimate.piloted = static_cast<int>(At(fields, "piloted"));
  while (cut < rest.size()) {
    rest.remove_prefix(cut + kSeparator.size() - 1);
    cut = std::min(rest.find(kSeparator), rest.size());
    const auto scenario = ParseScenario(rest.substr(0, cut));
    if (!scenario) return std::nullopt;
    estimate.scenarios.push_back(*scenario);
  }
  return estimate;
}

EstimateResult AskEstimate(Engine& engine, const basSimulation::RunRequest& request) {
  basSimulation::RunRequest asking = request;
  asking.flags = asking.flags.find_first_not_of(" \t") == std::string::npos ? "ESTIMATE" : asking.flags + ";ESTIMATE";
  basSimulation::CallResult call = basSimulation::CallEngine(engine, asking);
  if (!call.reply) return {std::nullopt, {}, call.failure};
  if (auto estimate = ParseEstimate(*call.reply)) return {std::move(estimate), *call.reply, {}};
  return {std::nullopt, *call.reply, *call.reply};
}

}  // namespace tamsic
