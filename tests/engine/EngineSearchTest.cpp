// Run in a process of its own, with no copy of the library beside the
// program: the library is found through the system's search.
#include <gtest/gtest.h>

#include "engine/Engine.h"
#include "engine/EngineLibrary.h"

namespace tamsic {
namespace {

TEST(EngineSearch, FoundByNameWhenNotBesideTheProgram) {
  ASSERT_FALSE(std::filesystem::exists(ExecutableFolder() / kEngineFileName));
  LibraryEngine engine;
  EXPECT_EQ(engine.testFormula("=N"), "Polish: N");
  EXPECT_NE(EngineLibrary::get().path.parent_path(), ExecutableFolder());
}

}  // namespace
}  // namespace tamsic
