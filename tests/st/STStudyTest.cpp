// A sensitivity study from start to end with the real engine: a Latin
// hypercube over three inputs of the koala example's baseline, its ST
// scenarios generated and run, and the inputs ranked by their effect on the
// size of the first population after 20 years. The populations start close
// to carrying capacity, so growth is capped and size is the telling outcome.
// Adult female mortality, varied from 5 to 30 %, changes that size far more than a few points of sex ratio or of
// the environmental variation in first-year mortality, so it must come first.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/StringTable.h"
#include "engine/Engine.h"
#include "engine/basSimulation.h"
#include "files/ProjectFile.h"
#include "st/STAnalysis.h"
#include "st/STAnalysisViews.h"
#include "st/STDesigns.h"
#include "st/STGeneration.h"
#include "support/RecordingMessageBox.h"
#include "support/TestFolder.h"

using namespace tamsic;

namespace {

class NoCursor : public IBusyCursor {
 public:
  void setBusy(bool) override {}
};

}  // namespace

TEST(STStudy, ALatinHypercubeRanksTheDominantInputFirst) {
  test::TestFolder folder;
  test::MessageRecorder recorder;
  ProjectState state;
  state.document = LoadProject(TAMSIC_SOURCE_DIR "/examples/Koalas.tpj", "9.99", recorder.messages);
  state.SetFullPath((folder.path() / "Koalas.tpj").string());
  clsScenario& baseline = state.document.scenarios.Item(1);
  baseline.SetText(F("txtNumIter"), "25");
  baseline.SetText(F("txtNumYear"), "20");

  const std::vector<STRange> ranges{{"FemaleMortality_Pop1_Age2", 5, 30, 2},
                                    {"SexRatio", 47, 53, 2},
                                    {"EVFemaleMort_Pop1_Age0", 3, 6, 2}};
  state.document.stScheme = {};
  for (STItem& item : LatinHypercubeItems(1, ranges, 16, 7)) {
    state.document.stScheme.Items.push_back(std::move(item));
    ++state.document.stScheme.NumItems;
  }
  LibraryEngine engine;
  ASSERT_TRUE(CheckSTScheme(state.document.scenarios, state.document.stScheme, engine).empty());
  const std::size_t first = GenerateSTScenarios(state.document.scenarios, state.document.stScheme);

  std::string list;
  for (std::size_t n = first; n <= state.document.scenarios.Count(); ++n)
    list += state.document.scenarios.Item(n).Text(F("txtSceneName")) + ", ";
  const basSimulation::RunRequest request{folder.path() / "work.tpj", list, "SEED11", ""};
  SaveProject(state.document, request.workFile.string(), recorder.messages);
  const auto home = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  NoCursor cursor;
  const auto reply = basSimulation::Run(engine, cursor, recorder.messages, request);
  std::filesystem::current_path(home);
  ASSERT_TRUE(reply && reply->starts_with("Message")) << reply.value_or("no reply");

  const StringTable strings = StringTable::fromFile(StringTable::locate());
  const STAnalysisData analysis = ReadSTResults(state, state.document.stScheme, engine, strings);
  STResultChoice choice;
  choice.variable = "N[all]";
  choice.year = 20;
  choice.population = {PopulationChoice::Kind::Population, 0};
  const STRanking ranked = RankSTInputs(analysis, choice);
  ASSERT_EQ(ranked.ranking.outcome, Ranking::Outcome::Ranked);
  EXPECT_EQ(ranked.ranking.scenarios, 16);
  ASSERT_EQ(ranked.ranking.inputs.size(), 3u);
  EXPECT_EQ(ranked.ranking.inputs.front().names, std::vector<std::string>{"FemaleMortality_Pop1_Age2"});
  // More adult deaths, fewer koalas.
  EXPECT_LT(ranked.ranking.inputs.front().coefficient, -0.5);
  EXPECT_GT(ranked.ranking.rSquared, 0.5);

  // Each sample changes all three inputs at once, so no input's points make a curve.
  const STView view = BuildSTView(analysis, choice, STGrouping::ByVariable, strings);
  ASSERT_EQ(view.lines.size(), 3u);
  for (const STGraphLine& line : view.lines) EXPECT_FALSE(line.joined) << line.name;
}
