// State variables: individual ones follow their initial, birth and yearly
// functions and move with their individuals; population and global ones are
// the user variables of the yearly data; a rate that reads them changes the
// outcome as theory says; functions that name what has no value are refused.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "SimTestSupport.h"

namespace tamsic::test {
namespace {

using Rows = std::vector<std::vector<std::string>>;

SimScenario WithIndividualStates(SimScenario s, const std::vector<std::vector<std::string>>& functions) {
  s.stateVariables(static_cast<int>(functions.size()), 0, 0);
  for (std::size_t k = 0; k < functions.size(); ++k)
    for (std::size_t row = 0; row < functions[k].size(); ++row)
      s.cell(F("gridIndividualStateParams"), row + 2, k + 1, functions[k][row]);
  return s;
}

TEST(SimStates, IndividualStatesFollowTheirFunctionsAndTheirIndividuals) {
  // Two populations linked by dispersal, the second supplemented every third year.
  SimScenario s("States", 2, 60, 120);
  s.text(F("txtNumIter"), "5").text(F("txtNumYear"), "15");
  s.check(F("chkDispFemales")).check(F("chkDispMales"));
  s.cell(F("gridDispRates"), 1, 2, "10").cell(F("gridDispRates"), 2, 1, "10");
  for (std::size_t row : {1u, 2u, 4u}) s.cell(F("gridSuppl"), row, 2, row == 4 ? "3" : "1");
  s.cell(F("gridSuppl"), 3, 2, "15").cell(F("gridSupplF"), 2, 1, "2");
  const std::vector<std::vector<std::string>> functions = {
      {"=A", "0", "=IS1+1"},         // the age
      {"=ID", "=IS2", ""},           // the founder of the maternal line
      {"0", "=IIS3(DAM)+1", ""},     // generations since that founder
      {"=10*IS1", "0", "=10*IS1"}};  // sees this year's IS1
  const RunOutput out = RunScenario({WithIndividualStates(s, functions)}, "States", "A;N;SEED5");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  // A yearly function that reads others (here IIS1 of itself) sees last year's values, and the others as before.
  auto more = functions;
  more.push_back({"=IS1-1", "-1", "=IIS1(ID)"});
  const RunOutput withOthers = RunScenario({WithIndividualStates(s, more)}, "States", "A;N;SEED5");
  const Rows living = DataLines(out.living), others = DataLines(withOthers.living);
  ASSERT_EQ(others.size(), living.size());
  for (std::size_t n = 0; n < others.size(); ++n) {
    EXPECT_EQ(std::vector(others[n].begin(), others[n].begin() + 15), living[n]);
    EXPECT_EQ(std::stoi(others[n][15]), std::stoi(others[n][6]) - 1);
  }

  std::map<std::pair<std::string, std::string>, std::vector<std::string>> created;  // (iteration, id) -> line
  for (const auto& row : DataLines(out.created)) created[{row[0], row[1]}] = row;
  int movedLines = 0, supplementLines = 0;
  for (const auto& row : living) {
    ASSERT_EQ(row.size(), 15u);
    EXPECT_EQ(row[11], row[6]) << "IS1 is the age";
    EXPECT_EQ(std::stod(row[14]), 10 * std::stod(row[6]));
    std::string ancestor = row[2];
    int generations = 0;
    for (; created.at({row[0], ancestor})[2] != "0"; ++generations) ancestor = created.at({row[0], ancestor})[2];
    EXPECT_EQ(row[12], ancestor);
    EXPECT_EQ(std::stoi(row[13]), generations);
    const auto& founder = created.at({row[0], ancestor});
    movedLines += founder[5] != row[1];
    supplementLines += founder[7] == "Supplement";
  }
  EXPECT_GT(living.size(), 200u);
  EXPECT_GT(movedLines, 0);
  EXPECT_GT(supplementLines, 0);
}

TEST(SimStates, PopulationAndGlobalStatesAreTheUserVariablesOfTheYearlyData) {
  SimScenario s("Groups", 2, 40, 80);
  s.text(F("txtNumIter"), "10").text(F("txtNumYear"), "6").stateVariables(0, 3, 1);
  // Twice the year; a count from 0 in steps of the population's number; the iteration.
  for (const auto& [column, function] : {std::pair{2u, "=Y*2"}, {3u, "=PS2+P"}, {4u, "=R"}})
    s.everyPopulation(F("gridPopLabels"), column, function);
  s.cell(F("gridGlobalVars"), 1, 1, "=PPS1(1)+PPS2(2)");  // after this year's population values
  const RunOutput out = RunScenario({s}, "Groups", "SEED2");
  ASSERT_EQ(out.blocks.size(), 3u) << out.reply;
  const double sd = std::sqrt(10.0 * 11.0 / 12.0);  // of 1, 2, ..., 10
  for (int y = 0; y <= 6; ++y) {
    for (int p = 1; p <= 2; ++p) {
      const std::vector<double>& line = out.blocks[static_cast<std::size_t>(p - 1)][static_cast<std::size_t>(y)];
      ASSERT_EQ(line.size(), 40u);
      EXPECT_EQ(line[kVar1], 2 * y);
      EXPECT_EQ(line[kVar1 + 2], 0.0);
      EXPECT_EQ(line[kVar1 + 3], (y + 1) * p);
      EXPECT_EQ(line[kVar1 + 6], 5.5);
      EXPECT_NEAR(line[kVar1 + 8], sd, 1e-5);
      EXPECT_NEAR(line[kVar1 + 7], sd / std::sqrt(10.0), 1e-5);
    }
    const std::vector<double>& meta = out.blocks[2][static_cast<std::size_t>(y)];
    EXPECT_EQ(meta[kVar1], 4 * y + 2);
    EXPECT_EQ(meta[kVar1 + 3], 0.0);  // no GS2
  }
}

TEST(SimStates, AMarkThatRaisesFirstYearMortalityThinsTheMarked) {
  // Half of all individuals carry a mark that raises mortality from age 0 to 1 from 10 % to 60 %.
  SimScenario s("Marked", 1, 300, 1000);
  s.text(F("txtNumIter"), "30").text(F("txtNumYear"), "12");
  for (Field grid : {F("gridMortFemales"), F("gridMortMales")}) s.cell(grid, 1, 1, "=10+50*IS1");
  s = WithIndividualStates(s, {{"=RAND<0.5", "=RAND<0.5", ""}});
  s.stateVariables(1, 1, 0).cell(F("gridPopLabels"), 1, 2, "=IMEAN(1)");
  const RunOutput out = RunScenario({s}, "Marked", "A;SEED9");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  // Among the young that lived through their first year the marked are 0.4 / (0.4 + 0.9), and so
  // among all once every founder is gone, since later mortality is the same for all.
  double yearlings = 0, marked = 0;
  for (const auto& row : DataLines(out.living))
    if (row[6] == "1") ++yearlings, marked += std::stod(row[11]);
  ASSERT_GT(yearlings, 2000);
  EXPECT_NEAR(marked / yearlings, 0.4 / 1.3, 0.03);
  EXPECT_NEAR(out.blocks[0][0][kVar1], 0.5, 0.02);  // PS1 = IMEAN(1) of the founders
  EXPECT_NEAR(out.blocks[0][12][kVar1], 0.4 / 1.3, 0.02);
}

TEST(SimStates, RatesOfAnIndividualReadItsOwnState) {
  // Only marked females breed, only marked males join the breeding pool, only
  // the marked move to the second population, which is empty and has no young.
  SimScenario s("Rates", 2, 150, 300);
  s.text(F("txtNumIter"), "5").text(F("txtNumYear"), "10");
  s.everyPopulation(F("gridRepRates1"), 1, "=100*IS1").everyPopulation(F("gridDegMonop"), 1, "=100*IS1");
  s.cell(F("gridInitPopStable"), 2, 1, "0").cell(F("gridRepRates1"), 2, 1, "0");
  s.check(F("chkDispFemales")).check(F("chkDispMales")).cell(F("gridDispRates"), 1, 2, "=30*IS1");
  s = WithIndividualStates(s, {{"=RAND<0.5", "=RAND<0.5", ""}, {"1", "=IIS1(DAM)*IIS1(SIRE)", ""}});
  const RunOutput out = RunScenario({s}, "Rates", "A;SEED3");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  int born = 0, moved = 0, unmarked = 0;
  for (const auto& row : DataLines(out.living)) {
    EXPECT_EQ(row[12], "1") << "both parents were marked";
    born += row[3] != "0";
    if (row[1] == "2") {
      ++moved;
      EXPECT_EQ(row[11], "1");
    }
    unmarked += row[11] == "0";
  }
  EXPECT_GT(born, 100);
  EXPECT_GT(moved, 20);
  EXPECT_GT(unmarked, 100);
}

std::string Reply(SimScenario s, Field grid, std::size_t row, std::size_t col, const std::string& value) {
  s.cell(grid, row, col, value);
  return RunScenario({s}, "Base", "SEED1").reply;
}

TEST(SimStates, FunctionsThatNameWhatHasNoValueThereAreRefused) {
  SimScenario base("Base", 1, 20, 40);
  base.text(F("txtNumIter"), "2").text(F("txtNumYear"), "3");
  base = WithIndividualStates(base, {{"0", "0", "=IS1+1"}});
  base.stateVariables(1, 1, 1);
  const Field is = F("gridIndividualStateParams");
  const std::pair<std::string, std::string> cases[] = {
      {Reply(base, is, 4, 1, "=IS1+"), "IndivStateVars, Transition fn, IS1: the function \"=IS1+\" does not compile"},
      {Reply(base, is, 2, 1, "=IS1*2"), "IndivStateVars, Init fn, IS1: the function uses IS1, but it is not set yet"},
      {Reply(base, F("gridPopLabels"), 1, 2, "=IS2"), "PS1: the function uses IS2, but the scenario has 1 individual "
                                                      "state variable"},
      {Reply(base, F("gridCarryingCap1"), 1, 1, "=100*IS1"), "the function uses IS1, but it belongs to an individual, "
                                                             "and this value is one of the whole population"},
      {Reply(base, F("gridGlobalVars"), 1, 1, "=N"), "GS1: the function uses N, but it belongs to one population"},
      {Reply(base, F("gridMortFemales"), 1, 1, "=D"), "the function uses D, but only the dispersal modifier"},
      {Reply(base, F("gridMortMales"), 1, 1, "=Q"), "the function uses Q, but Q is not used by the model"},
      {Reply(base, F("gridGlobalVars"), 1, 1, "half"), "GS1: \"half\" is neither a number nor a function"},
      {Reply(base, F("gridPopLabels"), 1, 2, "=IMEAN(2)"), "PS1, population 1, year 1: IMEAN(2): there is no "
                                                           "individual state variable 2"},
      {Reply(base, F("gridCarryingCap1"), 1, 1, "=KK(3)"), "population 1, year 1: KK(3): there is no population 3"}};
  for (const auto& [reply, cause] : cases) {
    EXPECT_TRUE(reply.starts_with("Error: scenario \"Base\": ")) << reply;
    EXPECT_NE(reply.find(cause), std::string::npos) << reply;
  }
}

}  // namespace
}  // namespace tamsic::test
