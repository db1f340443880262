// Every value is checked when the user leaves its box or cell; a refused
// value is never stored and keeps the focus. Edits are undone and redone.
// The limits themselves are the core's (its tests go through them); these
// rows are one of each kind of check as a user meets it.
#include "PagesHarness.h"

using tamsic::F;

class PageChecksTest : public QObject {
  Q_OBJECT
 private slots:
  void textBoxes_data();
  void textBoxes();
  void cells_data();
  void cells();
  void aRefusedValueNeverOutlivesItsBoxAndATypedOneIsStored();
  void undoFollowsTheEditAndRestoresTheGrids();
};

void PageChecksTest::textBoxes_data() {
  QTest::addColumn<QString>("box");
  QTest::addColumn<QString>("text");
  QTest::addColumn<bool>("accepted");
  QTest::addColumn<QString>("message");
  QTest::newRow("years at the limit") << "txtNumYear" << "2000" << true << "";
  QTest::newRow("years above") << "txtNumYear" << "2001" << false
                               << "Number of years: the value must be at most 2000.";
  QTest::newRow("not a number nor a function")
      << "txtSexRatio" << "many" << false << "Sex ratio at birth (% Males): the value must be a number, a function";
  QTest::newRow("female age 2.5") << "txtAgeReproF" << "2.5" << false << "Age of reproduction must be a integer value!";
  QTest::newRow("dispersal ages reversed")
      << "txtDispOld" << "0" << false << "The lower age for dispersal must be less than the upper age for dispersal";
  QTest::newRow("sex ratio function") << "txtSexRatio" << "=50+Y/100" << true << "";
  QTest::newRow("sex ratio refused function") << "txtSexRatio" << "=BAD" << false << "Error: BAD is not a variable";
  QTest::newRow("forbidden name character") << "txtSceneName" << "Dry/wet" << false
                                            << "Scenario names cannot contain characters";
  QTest::newRow("name with a colon") << "txtSceneName" << "Dry: 10 years" << true << "";
}

void PageChecksTest::textBoxes() {
  QFETCH(QString, box);
  QFETCH(QString, text);
  QFETCH(bool, accepted);
  QFETCH(QString, message);
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  const tamsic::clsScenario before = h.record();
  if (!message.isEmpty()) h.box.expect(message.toStdString());
  h.type(box.toUtf8().constData(), text);
  QVERIFY(h.box.allShown());
  if (accepted) {
    QCOMPARE(QString::fromStdString(h.record().Text(*tamsic::FieldByMember(box.toStdString()))), text);
    QCOMPARE(h.undo.count(), 1);
  } else {
    QVERIFY(h.record() == before);
    QTRY_VERIFY(h.find<QLineEdit>(box.toUtf8().constData())->hasFocus());
    QCOMPARE(h.find<QLineEdit>(box.toUtf8().constData())->text(), text);
  }
}

void PageChecksTest::cells_data() {
  QTest::addColumn<QString>("grid");
  QTest::addColumn<int>("row");
  QTest::addColumn<int>("col");
  QTest::addColumn<QString>("text");
  QTest::addColumn<bool>("accepted");
  QTest::addColumn<QString>("message");
  const QString invalid = "Invalid input";
  const QString proportion = "Value should be a percent (< 100), but appears to be entered as a proportion (< 1).";
  QTest::newRow("mortality 0.5 is questioned") << "gridMortFemales" << 1 << 1 << "0.5" << true << proportion;
  QTest::newRow("mortality 100.5") << "gridMortMales" << 1 << 3 << "100.5" << false << invalid;
  QTest::newRow("mortality function") << "gridMortMales" << 1 << 1 << "=N/K" << true << "";
  QTest::newRow("mortality file") << "gridMortMales" << 1 << 1 << "file=rates.txt" << true << "";
  QTest::newRow("mortality refused function") << "gridMortMales" << 1 << 1 << "=BAD" << false << "Error: BAD";
  QTest::newRow("initial size emptied") << "gridInitPopStable" << 1 << 1 << "" << true << "";
  QTest::newRow("siring takes numbers only") << "gridDegMonop" << 2 << 1 << "=N" << false << invalid;
  QTest::newRow("harvest criterion") << "gridHarvest" << 5 << 1 << "=N>50" << true << "";
  QTest::newRow("state variable takes any text") << "gridIndividualStateParams" << 1 << 1 << "Weight" << true << "";
}

void PageChecksTest::cells() {
  QFETCH(QString, grid);
  QFETCH(int, row);
  QFETCH(int, col);
  QFETCH(QString, text);
  QFETCH(bool, accepted);
  QFETCH(QString, message);
  pagestest::Harness h;
  if (grid == "gridIndividualStateParams") h.type("txtNumIndividualStateParams", "1");
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  const tamsic::clsScenario before = h.record();
  if (!message.isEmpty()) h.box.expect(message.toStdString());
  h.editCell(grid.toUtf8().constData(), row, col, text);
  QTRY_VERIFY(h.box.allShown());  // the view commits after the key press has been handled
  const QByteArray name = grid.toUtf8();
  if (accepted) {
    QTRY_COMPARE(QString::fromStdString(h.cell(name.constData(), row, col)), text);
    if (text.startsWith("=")) QCOMPARE(h.engine.formulas.back(), text.toStdString());
    if (text.startsWith("file")) QVERIFY(h.engine.formulas.empty());
  } else {
    QVERIFY(h.record() == before);
    GridView* view = h.grid(name.constData());
    QTRY_VERIFY(view->isAncestorOf(QApplication::focusWidget()));
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(editor);
    QCOMPARE(editor->text(), text);
    QCOMPARE(editor->cursorPosition(), static_cast<int>(text.size()));
  }
}

// Checked each time the box is left, taken back while the user stays, and put
// back to the stored value when the user moves on or presses Escape. A value
// still being typed when the project is saved is checked and stored first.
void PageChecksTest::aRefusedValueNeverOutlivesItsBoxAndATypedOneIsStored() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  const std::string atMost = "Number of years: the value must be at most 2000.";
  QLineEdit* years = h.find<QLineEdit>("txtNumYear");
  h.box.expect(atMost);
  h.type("txtNumYear", "3000");
  QTRY_VERIFY(years->hasFocus());
  h.box.expect(atMost);
  QTest::keyClick(years, Qt::Key_Tab);
  QVERIFY(h.box.allShown());
  QTRY_VERIFY(years->hasFocus());
  QCOMPARE(years->text(), QString("3000"));
  QTest::keyClick(years, Qt::Key_Escape);
  QCOMPARE(years->text(), QString("100"));

  h.box.expect(atMost);
  h.type("txtNumYear", "3000");
  h.box.expect(atMost);
  h.pages->showPage(InputPages::Mortality);
  QTRY_COMPARE(years->text(), QString("100"));

  h.pages->showPage(InputPages::Settings);
  h.box.expect(atMost);
  h.type("txtNumYear", "2500");
  h.box.expect(atMost);
  h.pages->commitPending();
  QCOMPARE(years->text(), QString("100"));
  QCOMPARE(h.record().Text(F("txtNumYear")), std::string("100"));

  GridView* view = h.grid("gridMortMales");
  h.box.expect("Invalid input");
  h.editCell("gridMortMales", 1, 3, "100.5");
  QTRY_VERIFY(h.box.allShown());
  h.box.expect("Invalid input");
  h.pages->commitPending();
  QVERIFY(view->indexWidget(view->currentIndex()) == nullptr);
  QCOMPARE(view->grid()->indexAt(1, 3).data().toString(), QString::fromStdString(h.cell("gridMortMales", 1, 3)));
  QCOMPARE(h.undo.count(), 0);

  h.showPageOf(years);
  years->setFocus();
  years->selectAll();
  QTest::keyClicks(years, "300");
  QCOMPARE(h.record().Text(F("txtNumYear")), std::string("100"));
  h.pages->commitPending();
  QCOMPARE(h.record().Text(F("txtNumYear")), std::string("300"));
  view = h.grid("gridCarryingCap1");
  h.showPageOf(view);
  view->setFocus();
  view->setCurrentIndex(view->grid()->indexAt(1, 1));
  view->edit(view->currentIndex());
  auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  QVERIFY(editor);
  editor->end(false);
  QTest::keyClicks(editor, "0");
  h.pages->commitPending();
  QTRY_COMPARE(h.cell("gridCarryingCap1", 1, 1), std::string("3000"));
}

// Undo shows the page of the edit, and undoing a count gives the grids back their rows and columns.
void PageChecksTest::undoFollowsTheEditAndRestoresTheGrids() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  h.type("txtNumYear", "250");
  h.editCell("gridCarryingCap1", 1, 1, "400");
  QTRY_COMPARE(h.undo.count(), 2);
  QCOMPARE(h.pages->currentPage(), int(InputPages::CarryingCapacity));
  h.undo.undo();
  h.undo.undo();
  QCOMPARE(h.pages->currentPage(), int(InputPages::Settings));
  QCOMPARE(h.find<QLineEdit>("txtNumYear")->text(), QString("100"));
  QVERIFY(h.record() == tamsic::NewScenarioDefaults());

  h.editCell("gridMortFemales", 1, 1, "30");
  QTRY_COMPARE(h.undo.count(), 1);
  h.type("txtNumPop", "3");
  QCOMPARE(h.grid("gridMortFemales")->grid()->rowCount(), 3);
  QCOMPARE(h.cell("gridMortFemales", 1, 1), std::string("30"));
  h.type("txtNumPop", "1");
  h.type("txtAgeReproF", "1");
  QCOMPARE(h.grid("gridMortFemales")->grid()->columnCount(), 4);
  h.undo.undo();
  h.undo.undo();
  QCOMPARE(h.grid("gridMortFemales")->grid()->rowCount(), 3);
  QCOMPARE(h.grid("gridMortFemales")->grid()->columnCount(), 6);
  QCOMPARE(h.find<QLineEdit>("txtNumPop")->text(), QString("3"));
}

QTEST_MAIN(PageChecksTest)
#include "PageChecksTest.moc"
