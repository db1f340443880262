// Storing the pages into a record and restoring them must keep every field,
// for a scenario that uses every kind of grid at sizes above one.
#include "PagesHarness.h"
#include "model/ScenarioShape.h"
#include "pages/AfterEdit.h"

using namespace tamsic;

namespace {

// Five populations, three catastrophes, state variables of every kind, and
// a distinct text in every field and cell.
clsScenario RichScenario() {
  clsScenario s = NewScenarioDefaults();
  s.SetText(F("txtNumPop"), "5");
  s.SetText(F("txtNumCatast"), "3");
  s.SetText(F("txtNumPopStateVars"), "2");
  s.SetText(F("txtNumGlobalVars"), "3");
  s.SetText(F("txtNumIndividualStateParams"), "4");
  RelayoutScenario(s);
  int n = 0;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const std::string_view member = Describe(field).member;
    switch (Describe(field).kind) {
      case FieldKind::Text:
        if (member.find("Num") == std::string_view::npos) s.SetText(field, "t" + std::to_string(++n));
        break;
      case FieldKind::Check: s.SetCheck(field, ++n % 2); break;
      case FieldKind::Truth: break;
      case FieldKind::Grid: {
        if (field == F("Notes")) break;
        Grid grid = s.GetGrid(field);
        for (std::size_t r = 0; r < grid.rows(); ++r)
          for (std::size_t c = 0; c < grid.cols(); ++c) grid.at(r, c) = std::to_string(++n);
        s.SetGrid(field, std::move(grid));
      }
    }
  }
  for (Field chosen : {F("optExtinctDef_1"), F("optMPHLQ_3"), F("optUseMean_0"), F("optStartWith_1"),
                       F("GTallyOptButton_1"), F("SSOptGenMgtPairMK_1")})
    for (Field option : OptionGroupOf(chosen)) s.SetTruth(option, option == chosen);
  Grid mortality = s.GetGrid(F("gridMortMales"));
  mortality.at(3, 2) = "=20+N/K";
  s.SetGrid(F("gridMortMales"), mortality);
  s.SetText(F("txtSceneName"), "Stored \xE9t\xE9");  // Windows-1252 accents survive the widgets
  s.usingformula = AnyInputIsFunction(s);
  s.CatastSelect = 2;
  Grid notes = s.Notes();
  notes.at(3, 4) = "{\\rtf1 note}";
  s.SetNotes(notes);
  return s;
}

}  // namespace

class PageRoundTripTest : public QObject {
  Q_OBJECT
 private slots:
  void storeAfterRestoreKeepsEveryField();
  void switchingScenariosKeepsBoth();
};

void PageRoundTripTest::storeAfterRestoreKeepsEveryField() {
  pagestest::Harness h;
  const clsScenario rich = RichScenario();
  h.pages->restorePages(rich);
  clsScenario stored;  // empty: whatever the pages do not store stays empty and shows
  h.pages->storePages(stored);
  stored.SetNotes(rich.Notes());  // notes have a window of their own
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    if (Describe(field).kind == FieldKind::Grid)
      QVERIFY2(stored.GetGrid(field) == rich.GetGrid(field), Describe(field).member.data());
    else
      QVERIFY2(stored.ScalarText(field) == rich.ScalarText(field), Describe(field).member.data());
  }
  QCOMPARE(stored.CatastSelect, 2);
  QVERIFY(stored.usingformula);
  QVERIFY(stored == rich);
}

void PageRoundTripTest::switchingScenariosKeepsBoth() {
  pagestest::Harness h;
  h.scenarios.Item(1) = RichScenario();
  h.scenarios.Add(NewScenarioDefaults());
  const ScenarioCollection before = h.scenarios;
  h.pages->showScenario(1);
  h.bar->next();
  QCOMPARE(h.pages->currentScenario(), std::size_t{2});
  QCOMPARE(h.find<QLineEdit>("txtNumPop")->text(), QString("1"));
  h.bar->previous();
  QCOMPARE(h.find<QLineEdit>("txtNumPop")->text(), QString("5"));
  QVERIFY(h.scenarios == before);
  QCOMPARE(h.undo.count(), 0);
}

QTEST_MAIN(PageRoundTripTest)
#include "PageRoundTripTest.moc"
