#pragma once
// Loading the engine library. It is looked for next to the executable first,
// then by bare name through the system's library search; once loaded it stays
// loaded for the life of the process. The loaded library is the one piece of
// process-wide state of the core, and lives only in EngineLibrary.
#include <filesystem>
#include <string>
#include <vector>

#include "libtamsic/tamsic.h"
#include "model/Errors.h"

namespace tamsic {

// The library or one of its exports could not be found; the description
// says which and why.
class EngineUnavailable : public TamsicError {
 public:
  explicit EngineUnavailable(const std::string& description)
      : TamsicError(0, "Engine", description) {}
};

// The exports, typed by the shared header. The last four are optional and
// null when the library lacks them.
struct EngineExports {
  decltype(&::tamsicsim) tamsicsim = nullptr;
  decltype(&::tcheckin) tcheckin = nullptr;
  decltype(&::agedist) agedist = nullptr;
  decltype(&::detGraphValues) detGraphValues = nullptr;
  decltype(&::findpolyg) findpolyg = nullptr;
  decltype(&::testFormula) testFormula = nullptr;
  decltype(&::formulaGraphValues) formulaGraphValues = nullptr;
  decltype(&::tamsdllclose) tamsdllclose = nullptr;
  decltype(&::tamsicWindowClose) tamsicWindowClose = nullptr;
  decltype(&::tamsicFreeVariant) tamsicFreeVariant = nullptr;
  decltype(&::tamsicProgress) tamsicProgress = nullptr;
  decltype(&::tamsicCancel) tamsicCancel = nullptr;
  decltype(&::tamsicTeamJoin) tamsicTeamJoin = nullptr;
  decltype(&::tamsicTeamLeave) tamsicTeamLeave = nullptr;
};

struct LoadedEngine {
  EngineExports exports;
  std::filesystem::path path;  // the file actually loaded
};

inline constexpr const char* kEngineFileName = "libtamsic.so";

// Tries each candidate (a path, or a bare name for the system search) in
// order and resolves the exports of the first that loads. The library is
// never unloaded. Throws EngineUnavailable.
LoadedEngine LoadEngine(const std::vector<std::string>& candidates);

// The folder of the running executable, from /proc/self/exe.
std::filesystem::path ExecutableFolder();

class EngineLibrary {
 public:
  // The process's engine, loaded on the first call; a failed load is tried
  // again on the next call. Throws EngineUnavailable.
  static const LoadedEngine& get();
  // Whether an earlier call has loaded the library; never loads it.
  static bool loaded();
};

}  // namespace tamsic
