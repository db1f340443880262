#include "model/NewScenario.h"

#include "model/ScenarioShape.h"

namespace tamsic {

namespace {

void Values(clsScenario& s) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const FieldDescriptor& d = Describe(field);
    switch (d.kind) {
      case FieldKind::Text: s.SetText(field, std::string(d.input.byDefault)); break;
      case FieldKind::Truth: s.SetTruth(field, d.input.byDefault == "True"); break;
      case FieldKind::Check: s.SetCheck(field, d.input.byDefault == "1" ? 1 : 0); break;
      case FieldKind::Grid: break;
    }
  }
}

void Grids(clsScenario& s) {
  const Field labels = F("gridPopLabels");
  s.SetGrid(labels, DefaultGrid(labels, CountsOf(s)));
  const LayoutCounts counts = CountsOf(s);  // the label heads every other grid
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    if (Describe(field).kind == FieldKind::Grid && field != labels && field != F("Notes"))
      s.SetGrid(field, DefaultGrid(field, counts));
  }
  s.ResetNotes();
}

}  // namespace

clsScenario NewScenarioDefaults() {
  clsScenario s;
  Values(s);
  Grids(s);
  return s;
}

}  // namespace tamsic
