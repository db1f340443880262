#include <gtest/gtest.h>

#include "engine/EmptyStart.h"
#include "files/ProjectFile.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

void SetCell(clsScenario& s, Field grid, std::size_t r, std::size_t c, const std::string& value) {
  Grid g = s.GetGrid(grid);
  g.at(r, c) = value;
  s.SetGrid(grid, std::move(g));
}

// The koalas' three populations: a stable start of 0, a start by age with no
// one in it, and founders from a studbook.
TEST(EmptyStart, PopulationsWithNoOneAtTheStartAreNamed) {
  test::MessageRecorder recorder;
  clsScenario s = LoadProject(TAMSIC_SOURCE_DIR "/examples/Koalas.tpj", "9.99", recorder.messages).scenarios.Item(1);
  EXPECT_TRUE(PopulationsStartingEmpty(s).empty());
  SetCell(s, F("gridInitPopStable"), 2, 1, "0");
  EXPECT_EQ(PopulationsStartingEmpty(s), std::vector<std::string>{"River flats"});

  s.SetTruth(F("optStartWith_0"), false);
  s.SetTruth(F("optStartWith_1"), true);
  EXPECT_EQ(PopulationsStartingEmpty(s),
            (std::vector<std::string>{"Northern ridge", "River flats", "Eastern remnant"}));
  SetCell(s, F("gridInitPopMale"), 3, 4, "2");
  EXPECT_EQ(PopulationsStartingEmpty(s), (std::vector<std::string>{"Northern ridge", "River flats"}));

  s.SetCheck(F("chkGenMgtImportStudbookFile"), 1);
  EXPECT_TRUE(PopulationsStartingEmpty(s).empty());
}

}  // namespace
}  // namespace tamsic
