#pragma once
// The run call: one synchronous call of the engine's tamsicsim with the saved
// copy of the project, the chosen scenarios and the options. A reply that
// begins with "Message" is a normal end and the copy is deleted; any other
// reply is handed back with the copy left in place for a look. A failure of
// the call itself (no library, no export) is shown as "Unable to run
// simulation" with its cause, and nothing is returned.
#include <filesystem>
#include <optional>
#include <string>

#include "engine/BusyCursor.h"
#include "engine/Engine.h"
#include "model/Messages.h"

namespace tamsic::basSimulation {

struct RunRequest {
  std::filesystem::path workFile;
  std::string scenarioList;  // "A, B, " as the run dialog builds it
  std::string flags;         // the special-options string
  std::string runMode;       // "", "+" (resume) or "META" (stepwise)
};

// Drops every trailing "," and " ".
std::string TrimScenarioList(std::string list);

// The flags, ";" and the mode; the mode alone when the flags are blank; the
// flags alone when there is no mode.
std::string OptionsString(const std::string& flags, const std::string& runMode);

// What the engine call gave: its reply, or why the call itself failed.
struct CallResult {
  std::optional<std::string> reply;
  std::string failure;
};

// The engine call alone, with no message and no cursor, so that it may run
// on a thread of its own while the windows keep painting.
CallResult CallEngine(Engine& engine, const RunRequest& request);

// After the call, on the thread that shows messages: a failed call is told
// as "Unable to run simulation" with its cause; a normal end deletes the
// work file. The engine's reply, or nothing when the call failed.
std::optional<std::string> Conclude(Messages& messages, const RunRequest& request, CallResult result);

// Both, under the hourglass, for callers that wait on their own thread.
std::optional<std::string> Run(Engine& engine, IBusyCursor& cursor, Messages& messages,
                               const RunRequest& request);

}  // namespace tamsic::basSimulation
