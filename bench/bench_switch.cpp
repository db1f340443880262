// Moving between two scenarios of 50 populations on the input pages: the
// pages are stored into the record of the scenario left and the other record
// is shown, every field of all fourteen pages, and the page on show is
// painted. Runs headless (offscreen).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QUndoStack>

#include "app/EnglishMessages.h"
#include "model/NewScenario.h"
#include "model/ScenarioShape.h"
#include "pages/ui/InputPages.h"
#include "support/FakeEngine.h"

namespace {

class QuietBox : public tamsic::IMessageBox {
 public:
  tamsic::MsgAnswer show(const tamsic::MessageBoxRequest&) override { return tamsic::MsgAnswer::Ok; }
};

// 50 populations, 4 catastrophes, 10 years to first breeding, 40 years of
// life, 5 state variables of each kind; every cell filled.
tamsic::clsScenario LargeScenario(int seed) {
  using tamsic::F;
  tamsic::clsScenario s = tamsic::NewScenarioDefaults();
  s.SetText(F("txtNumPop"), "50");
  s.SetText(F("txtNumCatast"), "4");
  s.SetText(F("txtAgeReproF"), "10");
  s.SetText(F("txtAgeReproM"), "12");
  s.SetText(F("txtMaxAgeRepro"), "40");
  s.SetText(F("txtMaxProgeny"), "4");
  for (const char* count : {"txtNumPopStateVars", "txtNumGlobalVars", "txtNumIndividualStateParams"})
    s.SetText(*tamsic::FieldByMember(count), "5");
  tamsic::RelayoutScenario(s);
  for (std::size_t i = 0; i < tamsic::kFieldCount; ++i) {
    const tamsic::Field field{i};
    if (tamsic::Describe(field).kind != tamsic::FieldKind::Grid || field == F("Notes")) continue;
    tamsic::Grid grid = s.GetGrid(field);
    for (std::size_t r = 1; r < grid.rows(); ++r)
      for (std::size_t c = 1; c < grid.cols(); ++c) grid.at(r, c) = std::to_string((seed + r * 7 + c) % 97);
    s.SetGrid(field, std::move(grid));
  }
  return s;
}

void SwitchScenario(benchmark::State& state) {
  QuietBox box;
  tamsic::EnglishMessages strings;
  tamsic::Messages messages(box, strings);
  tamsic::test::FakeEngine engine;
  const PageContext context{strings, messages, engine};
  tamsic::ScenarioCollection scenarios;
  scenarios.Add(LargeScenario(1));
  scenarios.Add(LargeScenario(2));
  QUndoStack undo;
  InputPages pages(context, scenarios, undo);
  pages.resize(1000, 700);
  pages.showPage(InputPages::InitialPopulation);  // the page with the largest grids
  pages.show();
  QApplication::processEvents();
  std::size_t next = 2;
  for (auto _ : state) {
    pages.storePages(scenarios.Item(pages.currentScenario()));
    pages.showScenario(next);
    QApplication::processEvents();  // includes painting the page on show
    next = 3 - next;
  }
  state.SetLabel("store + show, 50 populations");
}
BENCHMARK(SwitchScenario)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
