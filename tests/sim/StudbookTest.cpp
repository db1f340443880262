// A studbook seeds the simulation with its living animals and the kinships
// of their pedigree; broken input files are refused with the file and line.
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "SimTestSupport.h"
#include "support/TestFolder.h"
#include "sim/Kinship.h"
#include "sim/SimError.h"
#include "sim/Studbook.h"

namespace tamsic::test {
namespace {

// Half sibs H1 and H2 (sire S); F1 a full sib of H1; Z the young of the
// full sibs F1 x H1, listed before its parents; P with one known parent.
constexpr const char* kPedigree =
    "# a small pedigree\n"
    "ID Sex Sire Dam Age Alive Population\n"
    "Z  F  F1  H1  1 1 1\n"
    "S  M  UNK UNK - 0 -\n"
    "D1 F  UNK UNK - 0 -\n"
    "D2 F  0   -   - 0 -\n"
    "H1 F  S   D1  4 1 1\n"
    "H2 M  S   D2  4 1 1\n"
    "F1 M  S   D1  3 1 1\n"
    "P  M  H2  UNK 1 1 1\n";

std::string WriteFile(const TestFolder& folder, const std::string& name, const std::string& text) {
  std::ofstream(folder.file(name), std::ios::binary) << text;
  return folder.file(name);
}

SimScenario WithStudbook(const std::string& file) {
  SimScenario s("Studbook", 1, 20, 40);
  s.text(F("txtNumIter"), "5").text(F("txtNumYear"), "3");
  return s.check(F("chkGenMgtImportStudbookFile")).text(F("txtGenMgtImportStudbookFile"), file);
}

TEST(SimStudbook, KinshipsAndInbreedingFollowThePedigree) {
  const sim::Studbook book = sim::ReadStudbook({"herd.txt", sim::CutLines(kPedigree)}, 1, 10, true);
  std::map<std::string, std::size_t> living;
  for (std::size_t i = 0; i < book.living.size(); ++i)
    living[book.animals[static_cast<std::size_t>(book.living[i])].id] = i;
  ASSERT_EQ(living.size(), 5u);
  auto kin = [&](const char* a, const char* b) { return book.kinshipOf(living.at(a), living.at(b)); };
  EXPECT_EQ(kin("H1", "H2"), 1.0f / 8);
  EXPECT_EQ(kin("H1", "F1"), 1.0f / 4);
  EXPECT_EQ(kin("Z", "Z"), 5.0f / 8);  // (1 + F) / 2 with F = 1/4
  EXPECT_EQ(kin("Z", "H1"), 3.0f / 8);
  EXPECT_EQ(kin("P", "H2"), 1.0f / 4);
  EXPECT_EQ(kin("P", "H1"), 1.0f / 16);
  EXPECT_EQ(kin("P", "Z"), 1.0f / 16);  // through H2's half sibs F1 and H1
  for (const auto& [id, i] : living)
    EXPECT_EQ(book.animals[static_cast<std::size_t>(book.living[i])].inbreeding, id == "Z" ? 0.25f : 0.0f) << id;

  // The living start the simulation: N and the mean F of year 0 are theirs.
  const TestFolder files;
  const RunOutput out = RunScenario({WithStudbook(WriteFile(files, "herd.txt", kPedigree))}, "Studbook", "SEED3");
  ASSERT_TRUE(out.reply.starts_with("Message")) << out.reply;
  EXPECT_EQ(out.blocks[0][0][kAll], 5);
  EXPECT_NEAR(out.blocks[0][0][kInbreeding], 0.25 / 5, 1e-6);
}

TEST(SimStudbook, TheKinshipMatrixGivesWayPastItsLimit) {
  sim::KinshipMatrix matrix;
  matrix.reset(true, 4);
  for (std::uint32_t slot = 0; slot < 3; ++slot) matrix.addFounder(slot);
  matrix.settle();
  EXPECT_EQ(matrix.addChild(3, 0, 1), 0.0f);
  matrix.settle();
  EXPECT_EQ(matrix.at(3, 0), 0.25f);
  EXPECT_TRUE(matrix.exact());
  EXPECT_EQ(matrix.addChild(4, 3, 0), 0.25f);  // the young's F is still exact, but its row finds no room
  EXPECT_FALSE(matrix.exact());
}

TEST(SimStudbook, BrokenFilesAreRefusedWithFileAndLine) {
  const TestFolder files;
  const std::string heading = "ID Sex Sire Dam Age Alive Population\n";
  const std::pair<std::string, std::string> studbooks[] = {
      {heading + "A M UNK UNK 3 1 1\nB F A X9 2 1 1\n", "line 3: the dam \"X9\" is not listed"},
      {heading + "A M UNK UNK 3 1 1\nB M UNK UNK 3 1 1\nC F A B 1 1 1\n",
       "line 4: \"B\" is a male and cannot be a dam"},
      {heading + "A M B C 3 1 1\nB M A C 3 1 1\nC F UNK UNK 3 1 1\n", "line 2: the animal \"A\" is its own ancestor"},
      {heading + "A M UNK UNK 12 1 1\nB F UNK UNK 3 1 1\n", "line 2: the age 12 is above the maximum age 10"},
      {heading + "A M UNK UNK 3 1 1\nA F UNK UNK 3 1 1\n", "line 3: the ID \"A\" is listed already on line 2"},
      {heading + "A M UNK UNK 3 1\n", "line 2: 6 fields"},
      {"ID Sex Sire Dam Alive Population\n", "line 1: the heading must name the columns"},
  };
  for (const auto& [text, cause] : studbooks) {
    const std::string file = WriteFile(files, "bad.txt", text);
    const std::string reply = RunScenario({WithStudbook(file)}, "Studbook", "").reply;
    EXPECT_TRUE(reply.starts_with("Error: scenario \"Studbook\": StudbookFile: the file " + file + ", ")) << reply;
    EXPECT_NE(reply.find(cause), std::string::npos) << reply;
  }
  EXPECT_NE(RunScenario({WithStudbook("missing.txt")}, "Studbook", "").reply.find("StudbookFile: cannot find the file "
                                                                                   "missing.txt"),
            std::string::npos);

  const std::pair<std::string, std::string> frequencies[] = {
      {"0.5 0.5\n# comment\n0.5 0.4\n", "line 3: the frequencies add up to 0.9, not 1"},
      {"0.5 half\n0.5 0.5\n", "line 1: \"half\" is not a frequency from 0 to 1"},
      {"1\n", "it gives frequencies for 1 of the scenario's 2 neutral loci"},
  };
  for (const auto& [text, cause] : frequencies) {
    const std::string file = WriteFile(files, "freq.txt", text);
    SimScenario s("Freq", 1, 20, 40);
    s.text(F("txtGenMgtNumNeutralLoci"), "2").check(F("chkGenMgtAlleleFreqs")).text(F("txtGenMgtAlleleFreqs"), file);
    const std::string reply = RunScenario({s}, "Freq", "").reply;
    EXPECT_TRUE(reply.starts_with("Error: scenario \"Freq\": AlleleFreqsFile: the file " + file)) << reply;
    EXPECT_NE(reply.find(cause), std::string::npos) << reply;
  }
}

}  // namespace
}  // namespace tamsic::test
