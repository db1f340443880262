#include "engine/basSimulation.h"

#include <exception>
#include <system_error>

namespace tamsic::basSimulation {

namespace {

bool IsBlank(const std::string& text) {
  return text.find_first_not_of(" \t") == std::string::npos;
}

}  // namespace

std::string TrimScenarioList(std::string list) {
  while (!list.empty() && (list.back() == ',' || list.back() == ' ')) list.pop_back();
  return list;
}

std::string OptionsString(const std::string& flags, const std::string& runMode) {
  if (runMode.empty()) return flags;
  return IsBlank(flags) ? runMode : flags + ";" + runMode;
}

CallResult CallEngine(Engine& engine, const RunRequest& request) {
  const std::string list = std::string("{").append(TrimScenarioList(request.scenarioList)) + "}";
  try {
    return {engine.tamsicsim(request.workFile.string(), list, OptionsString(request.flags, request.runMode)), {}};
  } catch (const std::exception& failure) {
    return {std::nullopt, failure.what()};
  }
}

std::optional<std::string> Conclude(Messages& messages, const RunRequest& request, CallResult result) {
  if (!result.reply) {
    messages.show(messages.text(msg::kUnableToRunSimulation) + "\n\n" + result.failure, msg::kError,
                  MsgIcon::Critical);
    return std::nullopt;
  }
  if (result.reply->starts_with("Message")) {
    std::error_code ignored;
    std::filesystem::remove(request.workFile, ignored);
  }
  return result.reply;
}

std::optional<std::string> Run(Engine& engine, IBusyCursor& cursor, Messages& messages,
                               const RunRequest& request) {
  CallResult result;
  {
    BusyScope busy(cursor);
    result = CallEngine(engine, request);
  }
  return Conclude(messages, request, std::move(result));
}

}  // namespace tamsic::basSimulation
