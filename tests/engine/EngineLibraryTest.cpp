#include <gtest/gtest.h>

#include "engine/EngineLibrary.h"

namespace tamsic {
namespace {

std::string LoadFailure(const std::vector<std::string>& candidates) {
  try {
    LoadEngine(candidates);
  } catch (const EngineUnavailable& failure) {
    return failure.what();
  }
  return "loaded";
}

TEST(EngineLibrary, TheCopyBesideTheProgramComesFirst) {
  const LoadedEngine& engine = EngineLibrary::get();
  EXPECT_EQ(std::filesystem::canonical(engine.path.parent_path()),
            std::filesystem::canonical(ExecutableFolder()));
  EXPECT_EQ(&EngineLibrary::get(), &engine);
  EXPECT_NE(engine.exports.tamsicProgress, nullptr);
  EXPECT_NE(engine.exports.tamsicCancel, nullptr);
}

TEST(EngineLibrary, MissingLibraryOrExportSaysWhich) {
  const std::string missing = LoadFailure({"/nonexistent/libtamsic.so", "libtamsic-absent.so"});
  EXPECT_EQ(missing.rfind("The engine library libtamsic.so could not be loaded:\n", 0), 0u)
      << missing;
  EXPECT_NE(missing.find("/nonexistent/libtamsic.so"), std::string::npos) << missing;
  EXPECT_NE(missing.find("libtamsic-absent.so"), std::string::npos) << missing;

  const std::string foreign = LoadFailure({"libm.so.6"});
  EXPECT_EQ(foreign.rfind("The engine library lacks the function tamsicsim", 0), 0u) << foreign;
}

}  // namespace
}  // namespace tamsic
