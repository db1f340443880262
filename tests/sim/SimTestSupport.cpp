#include "SimTestSupport.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <sstream>

#include "app/EnglishMessages.h"
#include "files/ProjectFile.h"
#include "sim/Runner.h"
#include "support/TestFolder.h"

namespace tamsic::test {

namespace {

class FailingBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override {
    ADD_FAILURE() << "unexpected message: " << request.text;
    return MsgAnswer::Ok;
  }
};

std::vector<Block> ReadBlocks(const std::string& dat, const std::string& name, int years) {
  std::istringstream in(dat);
  std::string line;
  while (std::getline(in, line) && line != name + "\r") {
  }
  std::vector<Block> blocks;
  while (std::getline(in, line)) {
    if (blocks.empty() || static_cast<int>(blocks.back().size()) == years + 1) blocks.emplace_back();
    std::vector<double> fields;
    std::istringstream cells(line);
    std::string cell;
    while (std::getline(cells, cell, ';')) fields.push_back(std::stod(cell));
    blocks.back().push_back(fields);
  }
  return blocks;
}

}  // namespace

SimScenario::SimScenario(const std::string& name, int populations, int n, int k) {
  for (int p = 1; p <= populations; ++p) counts_.populations.push_back("P" + std::to_string(p));
  counts_.maxProgeny = 4;
  for (std::size_t i = 0; i < kFieldCount; ++i)
    if (Describe(Field{i}).kind == FieldKind::Grid) scenario_.SetGrid(Field{i}, LayoutGrid(Field{i}, counts_));
  scenario_.ResetNotes();
  text(F("txtSceneName"), name).text(F("txtNumIter"), "50").text(F("txtNumYear"), "20");
  text(F("txtNumPop"), std::to_string(populations)).text(F("txtNumCatast"), "0").text(F("txtEV"), "0");
  option(F("optExtinctDef_0")).option(F("optMPHLQ_1")).option(F("optUseMean_1")).option(F("optStartWith_0"));
  text(F("txtAgeReproF"), "2").text(F("txtAgeReproM"), "2").text(F("txtMaxAgeRepro"), "10");
  text(F("txtMaxLitters"), "1").text(F("txtMaxProgeny"), "4").text(F("txtSexRatio"), "50");
  text(F("txtGenMgtNumNeutralLoci"), "10").text(F("txtDispYoung"), "1").text(F("txtDispOld"), "2");
  text(F("txtPercentDispSurvive"), "100");
  // Poisson(2) proportions for 0..3 young, the rest in 4.
  const char* young[] = {"13.53", "27.07", "27.07", "18.04", "14.29"};
  for (std::size_t c = 0; c < 5; ++c) cell(F("gridRepRates3"), c + 1, 1, young[c]);
  cell(F("gridRepRates4"), 1, 1, "100");
  everyPopulation(F("gridRepRates1"), 1, "50").everyPopulation(F("gridRepRates1"), 2, "0");
  for (Field grid : {F("gridMortFemales"), F("gridMortMales")}) {
    const char* rates[] = {"40", "0", "20", "0", "10", "0"};
    for (std::size_t c = 0; c < 6; ++c) everyPopulation(grid, c + 1, rates[c]);
  }
  everyPopulation(F("gridDegMonop"), 1, "100").everyPopulation(F("gridInitPopStable"), 1, std::to_string(n));
  everyPopulation(F("gridCarryingCap1"), 1, std::to_string(k)).everyPopulation(F("gridCarryingCap1"), 2, "0");
  for (Field grid : {F("gridCarryingCap2"), F("gridHarvest"), F("gridSuppl"), F("gridReproSys")})
    everyPopulation(grid, 1, "0");
}

SimScenario& SimScenario::text(Field field, const std::string& value) {
  scenario_.SetText(field, value);
  return *this;
}

SimScenario& SimScenario::option(Field chosen) {
  const std::vector<std::vector<const char*>> groups = {
      {"optExtinctDef_0", "optExtinctDef_1"},
      {"optMPHLQ_0", "optMPHLQ_1", "optMPHLQ_2", "optMPHLQ_3", "optMPHLQ_4"},
      {"optUseMean_0", "optUseMean_1"},
      {"optStartWith_0", "optStartWith_1"},
      {"GTallyOptButton_0", "GTallyOptButton_1", "GTallyOptButton_2"}};
  for (const auto& group : groups)
    for (const char* member : group)
      if (*FieldByMember(member) == chosen)
        for (const char* other : group) scenario_.SetTruth(*FieldByMember(other), *FieldByMember(other) == chosen);
  return *this;
}

SimScenario& SimScenario::check(Field field, bool on) {
  scenario_.SetCheck(field, on ? 1 : 0);
  return *this;
}

SimScenario& SimScenario::grid(Field grid, Grid table) {
  scenario_.SetGrid(grid, std::move(table));
  return *this;
}

SimScenario& SimScenario::cell(Field grid, std::size_t row, std::size_t col, const std::string& value) {
  Grid table = scenario_.GetGrid(grid);
  table.at(row, col) = value;
  scenario_.SetGrid(grid, std::move(table));
  return *this;
}

SimScenario& SimScenario::everyPopulation(Field grid, std::size_t index, const std::string& value) {
  for (std::size_t p = 1; p <= counts_.populations.size(); ++p) {
    if (PopulationsInColumns(grid)) cell(grid, index, p, value);
    else cell(grid, p, index, value);
  }
  return *this;
}

SimScenario& SimScenario::stateVariables(int individual, int population, int global) {
  counts_.indivStateVars = individual;
  counts_.popStateVars = population;
  counts_.globalVars = global;
  text(F("txtNumIndividualStateParams"), std::to_string(individual));
  text(F("txtNumPopStateVars"), std::to_string(population)).text(F("txtNumGlobalVars"), std::to_string(global));
  for (Field grid : {F("gridIndividualStateParams"), F("gridPopLabels"), F("gridGlobalVars")})
    scenario_.SetGrid(grid, Relayout(scenario_.GetGrid(grid), grid, counts_));
  return *this;
}

std::filesystem::path SaveTestProject(const std::vector<SimScenario>& scenarios) {
  const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
  const std::filesystem::path folder = std::filesystem::temp_directory_path() /
                                       ("tamsic-sim-" + std::to_string(::getpid()) + "-" + info->name());
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  FailingBox box;
  EnglishMessages strings;
  Messages messages(box, strings);
  ProjectDocument project;
  project.title = "T";
  for (const SimScenario& s : scenarios) project.scenarios.Add(s.scenario());
  SaveProject(project, (folder / "T.tpj").string(), messages);
  return folder;
}

RunOutput RunScenario(const std::vector<SimScenario>& scenarios, const std::string& name, const std::string& options) {
  const std::filesystem::path folder = SaveTestProject(scenarios);
  const auto previous = std::filesystem::current_path();
  std::filesystem::current_path(folder);
  RunOutput out;
  out.reply = sim::RunScenarios((folder / "T.tpj").string(), "{" + name + "}", options);
  std::filesystem::current_path(previous);
  const std::string dat = ReadAll(folder / ("T_" + name + ".dat"));
  out.runTable = ReadAll(folder / ("T_" + name + ".run"));
  out.files = dat + out.runTable + ReadAll(folder / "T.sum");
  out.living = ReadAll(folder / ("T_" + name + ".liv"));
  out.created = ReadAll(folder / ("T_" + name + ".all"));
  out.census = ReadAll(folder / ("T_" + name + ".cen"));
  out.genePop = ReadAll(folder / ("T_" + name + ".gen"));
  out.alleleFrequencies = ReadAll(folder / ("T_" + name + ".frq"));
  for (const SimScenario& s : scenarios)
    if (s.scenario().Text(F("txtSceneName")) == name)
      out.blocks = ReadBlocks(dat, name, std::stoi(s.scenario().Text(F("txtNumYear"))));
  std::filesystem::remove_all(folder);
  return out;
}

std::vector<std::vector<std::string>> DataLines(const std::string& text) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line.front() == '$') continue;
    std::vector<std::string> fields;
    std::istringstream cut(line);
    for (std::string field; std::getline(cut, field, ';');) fields.push_back(field);
    if (line.back() == ';') fields.emplace_back();
    rows.push_back(fields);
  }
  return rows;
}

}  // namespace tamsic::test
