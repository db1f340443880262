// The loader: identifiers, languages, escapes, and errors that name the line.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "app/StringTable.h"
#include "model/Errors.h"

namespace tamsic {
namespace {

std::string FailureOf(const std::string& contents) {
  try {
    StringTable::fromText(contents, "sample.txt");
  } catch (const FileError& error) {
    return error.what();
  }
  return "no error";
}

TEST(StringTable, LooksUpByLanguageWithEscapesAndWithoutFallback) {
  auto table = StringTable::fromText("# two messages in four languages\n"
                                     "\n"
                                     "19110\tUnable to run simulation\n"
                                     "9110\tNão foi possível executar a simulação\n"
                                     "29110\tNo se pudo ejecutar la simulación\n"
                                     "39110\tSimulation konnte nicht ausgeführt werden\n"
                                     "10608\tMortality From Age\\s\n"
                                     "10609\t\\sto\\s\n"
                                     "10700\tfirst line\\nsecond line with \\\\ backslash\n",
                                     "sample.txt");
  EXPECT_EQ(table.language(), Language::English);
  EXPECT_EQ(table.text(9110), "Unable to run simulation");
  EXPECT_EQ(table.text(608) + "2" + table.text(609) + "3", "Mortality From Age 2 to 3");
  EXPECT_EQ(table.text(700), "first line\nsecond line with \\ backslash");
  EXPECT_EQ(table.text(9126), "");
  EXPECT_EQ(table.text(19110), "") << "callers pass message numbers, never identifiers";
  EXPECT_EQ(table.text(-1), "");
  EXPECT_EQ(table.numbers(Language::English), (std::set<int>{608, 609, 700, 9110}));
  EXPECT_EQ(table.numbers(Language::German), (std::set<int>{9110}));
  table.setLanguage(Language::German);
  EXPECT_EQ(table.text(9110), "Simulation konnte nicht ausgeführt werden");
  EXPECT_EQ(table.text(608), "") << "no fallback to English";
  table.setLanguage(Language::Portuguese);
  EXPECT_EQ(table.text(9110), "Não foi possível executar a simulação");
  table.setLanguage(Language::Spanish);
  EXPECT_EQ(table.text(9110), "No se pudo ejecutar la simulación");
  EXPECT_EQ(StringTable::fromText("\xEF\xBB\xBF# c\r\n10001\tyears\r\n", "bom.txt").text(1), "years")
      << "Windows line ends and a byte order mark";
}

TEST(StringTableErrors, NameTheFileAndTheLine) {
  EXPECT_EQ(FailureOf("65535\tlast\n"), "no error");
  EXPECT_EQ(FailureOf("# ok\n10001\tfine\n10002 no tab here\n"),
            "sample.txt, line 3: no tab between identifier and text");
  EXPECT_EQ(FailureOf("10001\tone\n\n10001\tagain\n"), "sample.txt, line 3: identifier 10001 appears twice");
  EXPECT_EQ(FailureOf("65536\ttoo high\n"), "sample.txt, line 1: identifier 65536 is above 65535");
  for (const std::string bad : {"x12", "-5"}) {
    EXPECT_EQ(FailureOf(bad + "\ttext\n"),
              "sample.txt, line 1: expected an identifier (0 to 65535) and a tab, found \"" + bad + "\"");
  }
  // Texts an editor could silently change.
  EXPECT_EQ(FailureOf("10001\tends in a blank \n"),
            "sample.txt, line 1: blank at the end of the line (write a trailing blank as \\s)");
  EXPECT_EQ(FailureOf("10001\tbad \\q escape\n"), "sample.txt, line 1: unknown escape \\q");
  EXPECT_EQ(FailureOf("10001\tdangling \\\n"), "sample.txt, line 1: backslash at the end of the text");
  EXPECT_EQ(FailureOf("10001\tok\n30001\tL\xE4nge\n"), "sample.txt, line 2: not valid UTF-8 (save the file as UTF-8)")
      << "a Latin-1 umlaut";

  EXPECT_THROW(StringTable::fromFile("/nonexistent/strings.txt"), FileError);
  const std::string path = testing::TempDir() + "broken_strings.txt";
  std::ofstream(path) << "10001\tfine\n10002\tends badly\\\n";
  try {
    StringTable::fromFile(path);
    ADD_FAILURE() << "no error";
  } catch (const FileError& error) {
    EXPECT_EQ(std::string(error.what()), path + ", line 2: backslash at the end of the text");
  }
  std::remove(path.c_str());
}

}  // namespace
}  // namespace tamsic
