#pragma once
// Small yearly-data files written by hand for the results tests: every field
// holds a number that tells where it stands, so that a value read from the
// wrong block, year or column shows.
#include <filesystem>
#include <fstream>
#include <string>

#include "model/clsScenario.h"

namespace resultstest {

// Field f of block b in year y; field 0 is the year.
inline double Cell(int block, int year, int field) {
  return field == 0 ? year : 1000.0 * block + 100.0 * year + field + 0.25;
}

// A scenario of `populations` populations over `years` years with one
// population state variable (three more fields per line).
inline tamsic::clsScenario Scenario(const std::string& name, int populations, int years) {
  using tamsic::F;
  tamsic::clsScenario scenario;
  scenario.SetText(F("txtSceneName"), name);
  scenario.SetText(F("txtNumPop"), std::to_string(populations));
  scenario.SetText(F("txtNumYear"), std::to_string(years));
  scenario.SetText(F("txtNumPopStateVars"), "1");
  scenario.SetText(F("txtNumGlobalVars"), "0");
  tamsic::Grid labels(populations + 1, 3);
  labels.at(0, 1) = "Label";
  for (int p = 1; p <= populations; ++p) labels.at(p, 0) = std::to_string(p);
  labels.at(1, 1) = "North";  // population 2 stays without a label
  scenario.SetGrid(F("gridPopLabels"), labels);
  return scenario;
}

// The engine's layout: three "$" lines, the name, then the blocks' lines.
inline std::string DatText(const std::string& name, int blocks, int years, int fields = 34) {
  std::string text = "$ heading\r\n$ columns\r\n$ Iterations 10, years " + std::to_string(years) + "\r\n";
  text += name + "\r\n";
  for (int b = 0; b < blocks; ++b) {
    for (int y = 0; y <= years; ++y) {
      for (int f = 0; f < fields; ++f) {
        char number[32];
        std::snprintf(number, sizeof number, "%g", Cell(b, y, f));
        text += (f ? ";" : "") + std::string(number);
      }
      text += "\r\n";
    }
  }
  return text;
}

inline void Write(const std::filesystem::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

}  // namespace resultstest
