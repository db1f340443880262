// Any bytes in a result file (.sum, .run, .dat) must be read or refused with
// a FileError, never crash the views that read them.
#include <cstdint>
#include <sstream>
#include <string>

#include "engine/OutputFiles.h"
#include "model/Errors.h"
#include "model/clsScenario.h"
#include "results/YearlyData.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  tamsic::ReadTableText(text);
  // The first line says the shape the loader is given: populations;years;state variables.
  const std::string head = text.substr(0, text.find('\n'));
  tamsic::clsScenario scenario;
  scenario.SetText(tamsic::F("txtSceneName"), "S");
  scenario.SetText(tamsic::F("txtNumPop"), head.substr(0, 2));
  scenario.SetText(tamsic::F("txtNumYear"), head.size() > 2 ? head.substr(2, 6) : "");
  scenario.SetText(tamsic::F("txtNumGlobalVars"), head.size() > 8 ? head.substr(8, 2) : "");
  std::istringstream in(text);
  try {
    tamsic::ReadYearlyData(in, "fuzz", scenario);
  } catch (const tamsic::FileError&) {
  }
  return 0;
}
