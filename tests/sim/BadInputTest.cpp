// Faulty input stops the run with an "Error" reply that names the scenario
// and the input, and keeps the files of scenarios that ran before it.
#include <gtest/gtest.h>

#include <sys/stat.h>


#include <fstream>
#include <map>

#include "SimTestSupport.h"
#include "sim/CellReader.h"
#include "sim/Runner.h"
#include "sim/SimError.h"
#include "support/FullDisk.h"
#include "support/TestFolder.h"

namespace tamsic::test {
namespace {

std::string Reply(const SimScenario& s) { return RunScenario({s}, "Base", "SEED1").reply; }

SimScenario Base() {
  SimScenario s("Base", 1, 20, 40);
  s.text(F("txtNumIter"), "2").text(F("txtNumYear"), "3");
  return s;
}

TEST(SimBadInput, AFunctionThatDoesNotCompile) {
  SimScenario s = Base();
  s.cell(F("gridRepRates1"), 1, 1, "=50*(N/K");
  const std::string reply = Reply(s);
  EXPECT_TRUE(reply.starts_with("Error: scenario \"Base\": RepRates1, P1, % Adult Females Breeding: the function "
                                "\"=50*(N/K\" does not compile"))
      << reply;
}

TEST(SimBadInput, ARateOutOfRange) {
  SimScenario s = Base();
  s.cell(F("gridMortFemales"), 1, 3, "120");
  EXPECT_EQ(Reply(s), "Error: scenario \"Base\": MortFemales, P1, Mortality From Age 1 to 2: the value must be at most 100");
  SimScenario notANumber = Base();
  notANumber.text(F("txtSexRatio"), "half");
  EXPECT_EQ(Reply(notANumber), "Error: scenario \"Base\": SexRatio: the value must be a number, a function (=...) or a "
                                "file reference (file=...)");
}

TEST(SimBadInput, AFunctionThatGivesNoNumber) {
  SimScenario s = Base();
  s.cell(F("gridMortMales"), 1, 1, "=LN(0)");
  EXPECT_EQ(Reply(s), "Error: scenario \"Base\": MortMales, P1, Mortality From Age 0 to 1, population 1, year 1: "
                      "the function gives an infinite value");
}

TEST(SimBadInput, AMissingFileReference) {
  SimScenario s = Base();
  s.cell(F("gridCarryingCap1"), 1, 1, "file=capacity.txt");
  const std::string reply = Reply(s);
  EXPECT_TRUE(reply.starts_with("Error: scenario \"Base\": CarryingCap1, P1, Carrying Capacity (K): ")) << reply;
  EXPECT_NE(reply.find("capacity.txt"), std::string::npos) << reply;
}

// The message of the reader's refusal of a file reference in the first female mortality cell.
std::string FileRefusal(const TestFolder& folder, const std::string& reference) {
  SimScenario s = Base();
  s.cell(F("gridMortFemales"), 1, 1, reference);
  const sim::CellReader reader(s.scenario(), folder.path());
  try {
    reader.GridRate(F("gridMortFemales"), 1, 1, 0);
  } catch (const sim::SimError& refusal) {
    return refusal.what();
  }
  return "accepted";
}

TEST(SimBadInput, FileReferencesHoldFiniteValuesInRangeAndStayInTheFolder) {
  TestFolder folder;
  std::ofstream(folder.path() / "good.txt") << "10\n20;30\n";
  std::ofstream(folder.path() / "high.txt") << "10\n\n20;130\n";
  std::ofstream(folder.path() / "nan.txt") << "10\nnan\n";
  std::ofstream(folder.path() / "inf.txt") << "inf\n";
  EXPECT_EQ(FileRefusal(folder, "file=good.txt"), "accepted");
  EXPECT_EQ(FileRefusal(folder, "file=high.txt"),
            "MortFemales, P1, Mortality From Age 0 to 1: the file high.txt, line 3: the value must be at most 100");
  EXPECT_NE(FileRefusal(folder, "file=nan.txt").find("\"nan\" on line 2 is not a finite number"), std::string::npos);
  EXPECT_NE(FileRefusal(folder, "file=inf.txt").find("is not a finite number"), std::string::npos);
  // Neither a pipe with no writer (it would hang the run) nor a device (it never ends) is read.
  ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
  EXPECT_NE(FileRefusal(folder, "file=pipe").find("is not a regular file"), std::string::npos);
  for (const char* outside : {"file=/dev/zero", "file=../good.txt", "file=sub/../../good.txt"})
    EXPECT_NE(FileRefusal(folder, outside).find("relative to the project's folder"), std::string::npos) << outside;
  std::ofstream(folder.path() / "big.txt") << std::string(formula::FileSeries::kMaxFileBytes + 1, '1');
  EXPECT_NE(FileRefusal(folder, "file=big.txt").find("larger than"), std::string::npos);
}

TEST(SimBadInput, TwoScenariosOfOneName) {
  SimScenario second = Base();
  second.text(F("txtNumIter"), "3");
  SimScenario third = Base();
  third.text(F("txtSceneName"), "BASE");
  EXPECT_EQ(RunScenario({Base(), second}, "Base", "SEED1").reply,
            "Error: scenarios 1 and 2 are both named \"Base\"; give each scenario a name of its own");
  EXPECT_EQ(RunScenario({Base(), third}, "Base", "SEED1").reply,
            "Error: scenarios 1 and 2 are both named \"Base\"; give each scenario a name of its own");
}

TEST(SimBadInput, AFullDiskLeavesTheEarlierFilesAsTheyWere) {
  const std::filesystem::path folder = SaveTestProject({Base()});
  const auto previous = std::filesystem::current_path();
  std::filesystem::current_path(folder);
  ASSERT_TRUE(sim::RunScenarios("T.tpj", "{Base}", "SEED1").starts_with("Message"));
  std::map<std::string, std::string> before;
  for (const char* file : {"T_Base.dat", "T_Base.run", "T_Base.out", "T.sum"}) before[file] = ReadAll(file);

  const std::string reply = [] {
    const FullDisk full;
    return sim::RunScenarios("T.tpj", "{Base}", "SEED2");
  }();

  EXPECT_TRUE(reply.starts_with("Error: scenario \"Base\": ")) << reply;
  for (const auto& [file, text] : before) EXPECT_EQ(ReadAll(file), text) << file;
  for (const auto& entry : std::filesystem::directory_iterator("."))
    EXPECT_NE(entry.path().extension(), ".part") << entry.path();
  std::filesystem::current_path(previous);
  std::filesystem::remove_all(folder);
}

TEST(SimBadInput, ADamagedProjectFileIsNamedWithWhatTheReaderFound) {
  const std::filesystem::path folder = SaveTestProject({Base()});
  const std::string saved = ReadAll(folder / "T.tpj");
  const auto reply = [&](const std::string& text) {
    std::ofstream(folder / "D.tpj", std::ios::binary) << text;
    return sim::RunScenarios((folder / "D.tpj").string(), "{Base}", "SEED1");
  };
  const std::string cut = reply(saved.substr(0, saved.find("[1 Mortality]")));
  EXPECT_NE(cut.find("Unable to find section 1 Mortality"), std::string::npos) << cut;
  std::string ragged = saved;
  ragged.replace(ragged.find("MortMales={Empty;"), 17, "MortMales={");
  const std::string damaged = reply(ragged);
  EXPECT_NE(damaged.find("There is a problem with the data"), std::string::npos) << damaged;
  std::filesystem::remove_all(folder);
}

TEST(SimBadInput, NoPopulations) {
  SimScenario s = Base();
  s.text(F("txtNumPop"), "0");
  EXPECT_EQ(Reply(s), "Error: scenario \"Base\": NumPop: the value must be at least 1");
}

TEST(SimBadInput, AScenarioNotInTheFileAfterOneThatRan) {
  const RunOutput out = RunScenario({Base()}, "Base, Missing", "SEED1");
  EXPECT_EQ(out.reply, "Error: there is no scenario \"Missing\" in the project file");
  EXPECT_NE(out.files.find("Base;3;2;"), std::string::npos);  // Base's summary line was written
}

}  // namespace
}  // namespace tamsic::test
