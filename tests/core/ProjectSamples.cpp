#include "ProjectSamples.h"

#include <string>

namespace tamsic::test {

clsScenario FilledScenario(int salt, std::size_t rows, std::size_t cols) {
  clsScenario scenario;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const std::string tag = std::string(Describe(field).key) + "-" + std::to_string(salt);
    switch (Describe(field).kind) {
      case FieldKind::Text: scenario.SetText(field, tag); break;
      case FieldKind::Truth: scenario.SetTruth(field, (i + salt) % 2 == 0); break;
      case FieldKind::Check: scenario.SetCheck(field, static_cast<int>((i + salt) % 2)); break;
      case FieldKind::Grid: {
        Grid grid(rows, cols);
        for (std::size_t r = 0; r < rows; ++r)
          for (std::size_t c = 0; c < cols; ++c)
            grid.at(r, c) = (r + c) % 5 == 4 ? "" : tag + "/" + std::to_string(r) + "," + std::to_string(c);
        scenario.SetGrid(field, std::move(grid));
        break;
      }
    }
  }
  scenario.SetText(F("txtNumIter"), "=N*2+1");
  return scenario;
}

ProjectDocument FilledProject(std::size_t scenarios) {
  ProjectDocument project;
  project.title = "Mountain gorilla";
  project.notes = "Two lines, here";
  project.users = {"Ana Souza", "Jan Berg"};
  project.specialOptions.checked = {1, 0, 1, 0, 0, 0, 1, 0, 1, 0};
  project.specialOptions.option1Text = "80";
  project.specialOptions.option6Text = "5";
  project.specialOptions.option8Text = "2500";
  project.specialOptions.undocumented = "Q";
  for (std::size_t n = 1; n <= scenarios; ++n)
    project.scenarios.Add(FilledScenario(static_cast<int>(n)));
  project.stScheme.NumItems = 2;
  project.stScheme.Items = {
      {1, 4, "Breeding, low", {"PercentBreed_Pop1", "SexRatio", "FemaleMortality_Pop1_Age0"}, {"40", "=B*1.1", "30"}},
      {1, 5, "Label, with comma", {"EV"}, {"0.5"}},
  };
  return project;
}

}  // namespace tamsic::test
