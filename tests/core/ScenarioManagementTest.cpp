#include <gtest/gtest.h>

#include "model/ScenarioManagement.h"
#include "support/RecordingMessageBox.h"

namespace tamsic {
namespace {

ScenarioCollection Named(std::initializer_list<const char*> names) {
  ScenarioCollection scenarios;
  for (const char* name : names) {
    clsScenario scenario;
    scenario.SetText(F("txtSceneName"), name);
    scenario.SetText(F("txtNumPop"), name);
    scenarios.Add(scenario);
  }
  return scenarios;
}

std::string NameAt(const ScenarioCollection& scenarios, std::size_t n) {
  return scenarios.Item(n).Text(F("txtSceneName"));
}

TEST(ScenarioManagement, CopiesAreNumberedAfterTheirTemplateWhichAvoidsSTScenarios) {
  ScenarioCollection scenarios = Named({"Baseline", "Dry", "ST.Low", "ST.High"});
  EXPECT_EQ(ProposedTemplate(scenarios, 1), 1u);
  EXPECT_EQ(ProposedTemplate(scenarios, 4), 2u);
  EXPECT_EQ(AddScenarioCopies(scenarios, 1, 3), 5u) << "the place of the first copy";
  ASSERT_EQ(scenarios.Count(), 7u);
  EXPECT_EQ(NameAt(scenarios, 5), "Baseline - Copy 1");
  EXPECT_EQ(NameAt(scenarios, 7), "Baseline - Copy 3");
  EXPECT_EQ(scenarios.Item(7).Text(F("txtNumPop")), "Baseline") << "the copy has the template's inputs";
}

TEST(ScenarioManagement, NameRules) {
  const ScenarioCollection scenarios = Named({"Baseline", "Dry years"});
  EXPECT_EQ(ScenarioNameProblem(scenarios, 2, "BASELINE"), msg::kNameNotUnique);
  EXPECT_EQ(ScenarioNameProblem(scenarios, 1, "baseline"), std::nullopt) << "a scenario may keep its own name";
  EXPECT_EQ(ScenarioNameProblem(scenarios, 2, "Dry: 10 years"), std::nullopt);
  EXPECT_EQ(ScenarioNameProblem(scenarios, 2, "Dry|<>"), std::nullopt) << "only four characters are refused";
  for (const char* bad : {"a*b", "a?", "a\\b", "a/b"})
    EXPECT_EQ(ScenarioNameProblem(scenarios, 2, bad), msg::kNameCharacters) << bad;
}

TEST(ScenarioManagement, DeleteAsksAndProtectsSTScenariosAndMovesStopAtTheEnds) {
  ScenarioCollection scenarios = Named({"Baseline", "Dry", "ST.Low"});
  test::MessageRecorder recorder;
  EXPECT_EQ(DeleteScenario(scenarios, 3, recorder.messages), std::nullopt);
  ASSERT_EQ(recorder.box.shown.size(), 1u);
  EXPECT_EQ(recorder.box.shown[0].text, "Cannot delete an ST scenario. Go to ST form to edit ST structure.");

  recorder.box.answer = MsgAnswer::No;
  EXPECT_EQ(DeleteScenario(scenarios, 1, recorder.messages), std::nullopt);
  EXPECT_EQ(scenarios.Count(), 3u);
  EXPECT_EQ(recorder.box.shown[1].text,
            "This is not a recoverable action, are you sure you want to delete the current scenario?");
  EXPECT_EQ(recorder.box.shown[1].caption, "Confirmation");
  EXPECT_EQ(recorder.box.shown[1].buttons, MsgButtons::YesNo);

  recorder.box.answer = MsgAnswer::Yes;
  EXPECT_EQ(DeleteScenario(scenarios, 1, recorder.messages), 1u);
  EXPECT_EQ(NameAt(scenarios, 1), "Dry");
  EXPECT_EQ(DeleteScenario(scenarios, 1, recorder.messages), 1u) << "the ST scenario moved up and is shown";
  EXPECT_EQ(scenarios.Count(), 1u);

  scenarios = Named({"A", "B", "C"});
  EXPECT_EQ(MoveScenarioUp(scenarios, 1), 1u);
  EXPECT_EQ(MoveScenarioDown(scenarios, 1), 2u);
  EXPECT_EQ(NameAt(scenarios, 1), "B");
  EXPECT_EQ(NameAt(scenarios, 2), "A");
  EXPECT_EQ(MoveScenarioDown(scenarios, 3), 3u);
  EXPECT_EQ(MoveScenarioUp(scenarios, 3), 2u);
  EXPECT_EQ(NameAt(scenarios, 2), "C");
}

}  // namespace
}  // namespace tamsic
