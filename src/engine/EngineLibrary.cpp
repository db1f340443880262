#include "engine/EngineLibrary.h"

#include <dlfcn.h>

#include <mutex>
#include <optional>

namespace tamsic {

namespace {

std::string LastDlError() {
  const char* error = dlerror();
  return error != nullptr ? error : "unknown reason";
}

template <class Function>
void Resolve(void* handle, const char* name, Function& slot, bool required) {
  dlerror();
  slot = reinterpret_cast<Function>(dlsym(handle, name));
  if (slot == nullptr && required)
    throw EngineUnavailable(std::string("The engine library lacks the function ") + name + ": " +
                            LastDlError());
}

EngineExports ResolveExports(void* handle) {
  EngineExports e;
  Resolve(handle, "tamsicsim", e.tamsicsim, true);
  Resolve(handle, "tcheckin", e.tcheckin, true);
  Resolve(handle, "agedist", e.agedist, true);
  Resolve(handle, "detGraphValues", e.detGraphValues, true);
  Resolve(handle, "findpolyg", e.findpolyg, true);
  Resolve(handle, "testFormula", e.testFormula, true);
  Resolve(handle, "formulaGraphValues", e.formulaGraphValues, true);
  Resolve(handle, "tamsdllclose", e.tamsdllclose, true);
  Resolve(handle, "tamsicWindowClose", e.tamsicWindowClose, true);
  Resolve(handle, "tamsicFreeVariant", e.tamsicFreeVariant, true);
  Resolve(handle, "tamsicProgress", e.tamsicProgress, false);
  Resolve(handle, "tamsicCancel", e.tamsicCancel, false);
  Resolve(handle, "tamsicTeamJoin", e.tamsicTeamJoin, false);
  Resolve(handle, "tamsicTeamLeave", e.tamsicTeamLeave, false);
  return e;
}

std::filesystem::path LoadedPath(void* symbol, const std::string& candidate) {
  Dl_info info{};
  if (dladdr(symbol, &info) != 0 && info.dli_fname != nullptr) return info.dli_fname;
  return candidate;
}

}  // namespace

LoadedEngine LoadEngine(const std::vector<std::string>& candidates) {
  std::string failures;
  for (const auto& candidate : candidates) {
    void* handle = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
      failures.append("\n").append(LastDlError());
      continue;
    }
    // A library without the exports stays loaded: unloading foreign code
    // that may have started threads is not worth the risk.
    EngineExports exports = ResolveExports(handle);
    return {exports, LoadedPath(reinterpret_cast<void*>(exports.tamsicsim), candidate)};
  }
  throw EngineUnavailable("The engine library " + std::string(kEngineFileName) +
                          " could not be loaded:" + failures);
}

std::filesystem::path ExecutableFolder() {
  std::error_code error;
  const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::filesystem::path() : executable.parent_path();
}

namespace {

// The run's progress is asked from a second thread while the first call may
// still be loading the library, so loading and looking are under one lock.
std::mutex& LoadLock() {
  static std::mutex lock;
  return lock;
}

std::optional<LoadedEngine>& Loaded() {
  static std::optional<LoadedEngine> loaded;
  return loaded;
}

}  // namespace

bool EngineLibrary::loaded() {
  const std::lock_guard hold(LoadLock());
  return Loaded().has_value();
}

// The library is never unloaded, so the reference stays good after the lock is let go.
const LoadedEngine& EngineLibrary::get() {
  const std::lock_guard hold(LoadLock());
  std::optional<LoadedEngine>& loaded = Loaded();
  if (!loaded) {
    std::vector<std::string> candidates;
    const auto folder = ExecutableFolder();
    if (!folder.empty()) candidates.push_back((folder / kEngineFileName).string());
    candidates.emplace_back(kEngineFileName);
    loaded = LoadEngine(candidates);
  }
  return *loaded;
}

}  // namespace tamsic
