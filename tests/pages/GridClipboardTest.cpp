// Blocks of cells copied and pasted as spreadsheets exchange them: each
// pasted cell passes the check of a typed one, and a paste is one edit.
#include <QClipboard>

#include "PagesHarness.h"

class GridClipboardTest : public QObject {
  Q_OBJECT
 private slots:
  void pasteAndCopy();
};

namespace {

// Selects the cells between two corners (grid coordinates) and presses a key with Ctrl.
void PressOnBlock(pagestest::Harness& h, const char* grid, QPoint from, QPoint to, Qt::Key key) {
  GridView* view = h.grid(grid);
  h.showPageOf(view);
  view->setFocus();
  const QModelIndex first = view->grid()->indexAt(from.y(), from.x());
  view->setCurrentIndex(first);
  view->selectionModel()->select(QItemSelection(first, view->grid()->indexAt(to.y(), to.x())),
                                 QItemSelectionModel::ClearAndSelect);
  QTest::keyClick(view, key, Qt::ControlModifier);
}

QString Clipboard() { return QGuiApplication::clipboard()->text(); }
void SetClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }

}  // namespace

void GridClipboardTest::pasteAndCopy() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  h.type("txtNumPop", "2");

  // Check boxes take yes/no words, choices their words in any case, a single
  // value fills the selected cells; copying gives what the cells show.
  SetClipboard("TRUE\tfalse\r\n");
  PressOnBlock(h, "gridHarvest", {1, 1}, {1, 1}, Qt::Key_V);
  SetClipboard("global\n");
  PressOnBlock(h, "gridCatastrophes1", {1, 1}, {1, 2}, Qt::Key_V);
  SetClipboard("7");
  PressOnBlock(h, "gridCarryingCap1", {1, 1}, {2, 2}, Qt::Key_V);
  QVERIFY(h.box.shown.empty());

  PressOnBlock(h, "gridHarvest", {1, 1}, {2, 2}, Qt::Key_C);
  QCOMPARE(Clipboard(), QString("1\t0\n\t"));
  PressOnBlock(h, "gridCatastrophes1", {1, 1}, {2, 2}, Qt::Key_C);
  QCOMPARE(Clipboard(), QString("Global\t10\nGlobal\t"));
  PressOnBlock(h, "gridCarryingCap1", {1, 1}, {2, 2}, Qt::Key_C);
  QCOMPARE(Clipboard(), QString("7\t7\n7\t7"));
  QCOMPARE(h.undo.count(), 4);

  // A refused value keeps its cell and is named in one message; cells beyond
  // the grid are dropped; one undo takes the whole paste back.
  const tamsic::clsScenario before = h.record();

  SetClipboard("10\t20\t100.5\t7\t8\t9\t99\r\n=BAD\t5\r\n");
  h.box.expect("These pasted values were refused and not stored:");
  PressOnBlock(h, "gridMortFemales", {1, 1}, {1, 1}, Qt::Key_V);
  const std::string message = h.box.shown.back().text;
  for (const char* part : {"Population 1, Mortality From Age 1 to 2: 100.5\nInvalid input",
                           "the value must be at most 100",
                           "2, Mortality From Age 0 to 1: =BAD\nError: BAD is not a variable"})
    QVERIFY2(message.find(part) != std::string::npos, message.c_str());
  QCOMPARE(h.box.shown.size(), std::size_t{1});

  const std::vector<std::string> first = {"10", "20", "15", "7", "8", "9"};
  for (int col = 1; col <= 6; ++col) QCOMPARE(h.cell("gridMortFemales", 1, col), first[col - 1]);
  QCOMPARE(h.cell("gridMortFemales", 2, 1), before.GetGrid(tamsic::F("gridMortFemales")).at(2, 1));
  QCOMPARE(h.cell("gridMortFemales", 2, 2), std::string("5"));
  QCOMPARE(h.undo.count(), 5);
  h.undo.undo();
  QVERIFY(h.record() == before);
  QCOMPARE(h.grid("gridMortFemales")->grid()->indexAt(1, 1).data().toString(), QString("25"));
}

QTEST_MAIN(GridClipboardTest)
#include "GridClipboardTest.moc"
