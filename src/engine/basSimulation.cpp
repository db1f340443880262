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

std::optional<std::string> Run(Engine& engine, IBusyCursor& cursor, Messages& messages,
                               const RunRequest& request) {
  const std::string list = std::string("{").append(TrimScenarioList(request.scenarioList)) + "}";
  const std::string options = OptionsString(request.flags, request.runMode);
  std::string reply;
  try {
    BusyScope busy(cursor);
    reply = engine.tamsicsim(request.workFile.string(), list, options);
  } catch (const std::exception& failure) {
    messages.show(messages.text(msg::kUnableToRunSimulation) + "\n\n" + failure.what(),
                  msg::kError, MsgIcon::Critical);
    return std::nullopt;
  }
  if (reply.starts_with("Message")) {
    std::error_code ignored;
    std::filesystem::remove(request.workFile, ignored);
  }
  return reply;
}

}  // namespace tamsic::basSimulation
