// The mate-monopolization page's measures worked out by the real engine on
// the koala example: a measure typed for one population fills the other two
// of that population only, and the engine gives back the measure typed.
#include <gtest/gtest.h>

#include "engine/Engine.h"
#include "files/ProjectFile.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "pages/MatesEquivalents.h"
#include "support/RecordingMessageBox.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

TEST(MatesEquivalents, OneMeasureGivesTheOtherTwoOfItsPopulation) {
  test::TestFolder folder;
  test::MessageRecorder recorder;
  ProjectDocument koalas = LoadProject(TAMSIC_SOURCE_DIR "/examples/Koalas.tpj", "9.99", recorder.messages);
  const clsScenario before = koalas.scenarios.Item(1);
  clsScenario after = before;
  Grid measures = after.GetGrid(F("gridDegMonop"));
  measures.at(2, 2) = "30";  // % of the males of population 2 that sire young
  measures.at(1, 3) = "=20+N/100";  // a function in the pool of population 3 gives nothing to work from
  after.SetGrid(F("gridDegMonop"), measures);
  ASSERT_TRUE(MatesMeasureChanged(before, after));
  koalas.scenarios.Item(1) = after;
  const std::string work = (folder.path() / "work.tpj").string();
  SaveProject(koalas, work, recorder.messages);

  LibraryEngine engine;
  ASSERT_EQ(ApplyMatesEquivalents(before, after, 1, work, engine), std::nullopt);
  const Grid& filled = after.GetGrid(F("gridDegMonop"));
  const Grid& old = before.GetGrid(F("gridDegMonop"));
  EXPECT_EQ(filled.at(2, 2), "30");
  const double pool = ExactNumber(filled.at(1, 2)).value_or(0);
  EXPECT_GT(pool, 30);
  EXPECT_LE(pool, 100);
  EXPECT_GT(ExactNumber(filled.at(3, 2)).value_or(0), 0);
  for (std::size_t r = 1; r <= 3; ++r) {
    EXPECT_EQ(filled.at(r, 1), old.at(r, 1)) << "population 1 row " << r;
    if (r != 1) {
      EXPECT_EQ(filled.at(r, 3), old.at(r, 3)) << "population 3 row " << r;
    }
  }

  // The pool found gives back the share of sires typed.
  const std::string reply = engine.findpolyg(1, {pool, 0, 0, 2});
  const auto parts = Split(reply, ';');
  ASSERT_EQ(parts.size(), 4u) << reply;
  EXPECT_NEAR(ExactNumber(parts[1]).value_or(0), 30, 0.2) << reply;

  // A share no pool can reach is refused with the engine's reason and changes nothing.
  clsScenario unreachable = before;
  measures = unreachable.GetGrid(F("gridDegMonop"));
  measures.at(2, 1) = "100";
  unreachable.SetGrid(F("gridDegMonop"), measures);
  const auto error = ApplyMatesEquivalents(before, unreachable, 1, work, engine);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->rfind("Error: population 1: at most", 0), 0u) << *error;
  EXPECT_EQ(unreachable.GetGrid(F("gridDegMonop")).at(1, 1), old.at(1, 1));
}

}  // namespace
}  // namespace tamsic
