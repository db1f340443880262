// The commands that fill or transform many cells at once, the presets, the
// density-dependent breeding function and "=" in a cell.
#include <QAbstractButton>
#include <QComboBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "PagesHarness.h"
#include "pages/ui/DispersalPage.h"

class PageHelpersTest : public QObject {
  Q_OBJECT
 private slots:
  void dispersalCommandsAndCopyInputValues();
  void equalsSignOpensTheEditorWhenAsked();
  void stableAgesAndCatastropheScope();
};

namespace {

void Click(pagestest::Harness& h, const char* name) {
  auto* button = h.find<QPushButton>(name);
  h.showPageOf(button);
  button->click();
}

// Shows the grid's page and puts the focus on its first cell.
GridView* FocusFirstCell(pagestest::Harness& h, const char* name) {
  GridView* view = h.grid(name);
  h.showPageOf(view);
  view->setFocus();
  view->setCurrentIndex(view->grid()->indexAt(1, 1));
  return view;
}

}  // namespace

// The commands reach the matrix (whose arithmetic and file format the core
// tests cover) as undoable edits, and the diagonal stays the page's own.
void PageHelpersTest::dispersalCommandsAndCopyInputValues() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  h.type("txtNumPop", "2");
  h.editCell("gridDispRates", 1, 2, "1.25");
  QTRY_COMPARE(h.cell("gridDispRates", 1, 2), std::string("1.25"));
  h.editCell("gridDispRates", 2, 1, "=D");
  QTRY_COMPARE(h.cell("gridDispRates", 2, 1), std::string("=D"));
  GridModel* rates = h.grid("gridDispRates")->grid();
  QCOMPARE(rates->indexAt(1, 1).data().toString(), QString("98.75"));  // what stays home
  QVERIFY(!(rates->flags(rates->indexAt(1, 1)) & Qt::ItemIsEditable));

  QTemporaryDir folder;
  auto* dispersal = static_cast<DispersalPage*>(h.pages->page(InputPages::Dispersal));
  dispersal->chooseFile = [path = folder.filePath("RateMatrix.txt")](bool) { return path; };
  Click(h, "SSCommand2");
  dispersal->txtApplyMultiplier->setText("2");
  Click(h, "cmdApplyMultiplier");
  QCOMPARE(h.cell("gridDispRates", 2, 1), std::string("=D*2"));
  dispersal->txtFillDispersal->setText("2.5");
  Click(h, "cmdFillDispersal");
  QCOMPARE(rates->indexAt(2, 2).data().toString(), QString("97.5"));
  h.undo.undo();
  QCOMPARE(h.cell("gridDispRates", 2, 1), std::string("=D*2"));
  Click(h, "SSCommand1");
  QCOMPARE(h.cell("gridDispRates", 1, 2), std::string("1.25"));
  QCOMPARE(h.cell("gridDispRates", 2, 1), std::string("=D"));

  // The pickers reach the core's copy (whose cases the core tests cover) as one undoable edit.
  h.type("txtNumPop", "3");
  h.editCell("gridRepRates1", 1, 1, "40");
  QTRY_COMPARE(h.cell("gridRepRates1", 1, 1), std::string("40"));
  h.editCell("gridRepRates1", 3, 1, "65");
  QTRY_COMPARE(h.cell("gridRepRates1", 3, 1), std::string("65"));
  h.editCell("gridCarryingCap1", 1, 1, "500");
  QTRY_COMPARE(h.cell("gridCarryingCap1", 1, 1), std::string("500"));
  const int edits = h.undo.count();
  h.find<QComboBox>("cboPopulationPicker")->setCurrentIndex(0);
  h.find<QComboBox>("cboSectionPicker")->setCurrentIndex(1);  // all sections
  h.find<QPushButton>("ssCMDCopyInputValues")->click();
  QCOMPARE(h.cell("gridCarryingCap1", 1, 3), std::string("500"));
  QCOMPARE(h.cell("gridRepRates1", 3, 1), std::string("40"));
  QCOMPARE(h.undo.count(), edits + 1);
}

void PageHelpersTest::equalsSignOpensTheEditorWhenAsked() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  bool showOnEquals = true;
  QStringList opened;
  std::optional<QString> answer = "=K*0.5";
  h.context.showEquationDialogOnEquals = [&] { return showOnEquals; };
  h.context.openEquationEditor = [&](const QString& text) {
    opened << text;
    return answer;
  };
  GridView* view = FocusFirstCell(h, "gridCarryingCap1");
  QTest::keyClicks(view, "=");
  QCOMPARE(opened, QStringList{"300"});
  QCOMPARE(h.cell("gridCarryingCap1", 1, 1), std::string("=K*0.5"));

  // Cancel keeps the value; a cell that takes no function types "=" as text.
  answer.reset();
  QTest::keyClicks(view, "=");
  QCOMPARE(h.cell("gridCarryingCap1", 1, 1), std::string("=K*0.5"));
  QTest::keyClicks(FocusFirstCell(h, "gridPopLabels"), "=");
  QCOMPARE(opened.size(), 2);

  // A box that may hold a function opens the editor on "=" typed at its start.
  answer = "=D*(1-N/K)";
  auto* box = h.find<QLineEdit>("txtDensDispersal");
  h.showPageOf(box);
  box->setFocus();
  box->setCursorPosition(0);
  QTest::keyClicks(box, "=");
  QCOMPARE(opened.size(), 3);
  QCOMPARE(box->text(), QString("=D*(1-N/K)"));

  showOnEquals = false;
  QTest::keyClicks(FocusFirstCell(h, "gridCarryingCap1"), "=");
  auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  QVERIFY(editor);
  QCOMPARE(editor->text(), QString("="));
}

// The catastrophe scope takes the first letter of its word; stable ages fill the age grids.
void PageHelpersTest::stableAgesAndCatastropheScope() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  GridView* scope = FocusFirstCell(h, "gridCatastrophes1");
  QTest::keyClicks(scope, "g");
  QCOMPARE(h.cell("gridCatastrophes1", 1, 1), std::string("Global"));
  QTest::keyClicks(scope, "L");
  QCOMPARE(h.cell("gridCatastrophes1", 1, 1), std::string("Local"));
  QCOMPARE(h.undo.count(), 2);

  std::vector<std::size_t> asked;
  h.context.stableAgeDistribution = [&](tamsic::clsScenario& record, std::size_t number) {
    asked.push_back(number);
    tamsic::Grid females = record.GetGrid(tamsic::F("gridInitPopFemale"));
    females.at(1, 1) = "31";
    record.SetGrid(tamsic::F("gridInitPopFemale"), females);
    return std::optional<std::string>{};
  };
  auto* given = h.find<QAbstractButton>("optStartWith_1");
  auto* stable = h.find<QAbstractButton>("optStartWith_0");
  h.showPageOf(given);
  given->click();
  QVERIFY(asked.empty());
  stable->click();
  QCOMPARE(asked, std::vector<std::size_t>{1});
  QCOMPARE(h.cell("gridInitPopFemale", 1, 1), std::string("31"));
  QCOMPARE(h.grid("gridInitPopFemale")->grid()->indexAt(1, 1).data().toString(), QString("31"));

  h.context.stableAgeDistribution = [](tamsic::clsScenario&, std::size_t) {
    return std::optional<std::string>{"Error: the engine library could not be loaded"};
  };
  given->click();
  h.box.expect("Error: the engine library could not be loaded");
  stable->click();
  QVERIFY(h.record().Truth(tamsic::F("optStartWith_0")));
}

QTEST_MAIN(PageHelpersTest)
#include "PageHelpersTest.moc"
