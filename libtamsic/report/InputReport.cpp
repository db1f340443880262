// The input report (.inp): every stored input of the scenario, scalar fields
// as "Key: value", grids row by row with their cells separated by " | ".
#include "report/Outcome.h"
#include "report/Reports.h"
#include "report/TextFile.h"

namespace tamsic::report {

void WriteInputReport(const clsScenario& scenario, const std::string& path) {
  TextFile file(path);
  file.line("Tamsic input report: scenario " + scenario.Text(F("txtSceneName")));
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const FieldDescriptor& d = Describe(field);
    if (d.member == "Notes") continue;
    const std::string title = std::string(d.key) + (d.comment.empty() ? "" : " (" + std::string(d.comment) + ")");
    if (d.kind != FieldKind::Grid) {
      file.line(title + ": " + scenario.ScalarText(field));
      continue;
    }
    file.line();
    file.line(title + ":");
    const Grid& grid = scenario.GetGrid(field);
    for (std::size_t r = 0; r < grid.rows(); ++r) {
      std::string row = "  ";
      for (std::size_t c = 0; c < grid.cols(); ++c) row += (c ? " | " : "") + grid.at(r, c);
      file.line(row);
    }
  }
  file.close();
}

}  // namespace tamsic::report
