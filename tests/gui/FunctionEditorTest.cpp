// The function editor and the function preview against the real engine: what
// they show for a cell's value, what OK hands back, the engine's refusal with
// the place it names, and graphs that are the engine's own values.
#include <QCheckBox>
#include <QChartView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include "GuiTestSupport.h"
#include "app/ui/mdiMain.h"
#include "engine/Engine.h"
#include "functions/FormulaHistory.h"
#include "functions/ui/frmEquation.h"
#include "functions/ui/frmEquationPreview.h"
#include "pages/ui/GridModel.h"
#include "pages/ui/GridView.h"
#include "pages/ui/frmProject.h"

using namespace guitest;

namespace {

QList<QPointF> GraphPoints(QWidget& window) {
  auto* view = window.findChild<QChartView*>("graphPreview");
  const auto series = view->chart()->series();
  if (series.isEmpty()) return {};
  return qobject_cast<QLineSeries*>(series.front())->points();
}

// The engine's reply read as the points a graph over 0..100 by 1 must show.
QList<QPointF> EnginePoints(tamsic::Engine& engine, const std::string& formula, int variable) {
  tamsic::GraphRequest range;
  range.variable = variable;
  const QStringList values = QString::fromStdString(engine.formulaGraphValues(formula, range)).split(';');
  QList<QPointF> points;
  for (int i = 0; i < values.size(); ++i) points << QPointF(i, values[i].toDouble());
  return points;
}

void Click(QWidget& window, const QString& name) { window.findChild<QPushButton*>(name)->click(); }

}  // namespace

class FunctionEditorTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { ClearSettings(); }
  void theEditorShowsTheFormulaItsVariablesAndTheEnginesGraph();
  void buttonsInsertAtTheCaretAndOkAlwaysGivesAFunction();
  void aRefusedFormulaIsMarkedWhereTheEngineFoundItWrong();
  void thePreviewGraphsTheBreedingFunction();
  void theToolbarOpensTheEditorOnTheCellInFocus();
};

void FunctionEditorTest::theEditorShowsTheFormulaItsVariablesAndTheEnginesGraph() {
  TestProgram test;
  tamsic::LibraryEngine engine;
  frmEquation editor(test.program, engine, "=N/K");
  QCOMPARE(editor.findChild<QComboBox*>("cboEQ")->currentText(), QString("N/K"));
  auto* variables = editor.findChild<QComboBox*>("cboVars");
  QCOMPARE(variables->count(), 2);
  QCOMPARE(variables->itemText(0), QString("N"));
  QCOMPARE(variables->itemText(1), QString("K"));
  QCOMPARE(editor.findChild<QListWidget*>("lstVars")->count(), 86);

  // Drawn once on opening, over N, with the engine's own values.
  const QList<QPointF> points = GraphPoints(editor);
  QCOMPARE(points.size(), 101);
  QCOMPARE(points, EnginePoints(engine, "N/K", 11));

  // Over K instead, on a narrower range with a fractional step.
  variables->setCurrentIndex(1);
  editor.findChild<QLineEdit*>("txtMin")->setText("1");
  editor.findChild<QLineEdit*>("txtMax")->setText("2");
  editor.findChild<QLineEdit*>("txtIncr")->setText("0.25");
  Click(editor, "ssUpdateGraph");
  const QList<QPointF> overK = GraphPoints(editor);
  QCOMPARE(overK.size(), 5);
  QCOMPARE(overK.back().x(), 2.0);
  QCOMPARE(overK.back().y(), 50.0);  // N = 100 while no scenario is loaded

  // A graphed formula is offered again the next time.
  QCOMPARE(tamsic::FormulaHistory(test.store).Entries().front(), std::string("N/K"));
  frmEquation again(test.program, engine, "");
  QCOMPARE(again.findChild<QComboBox*>("cboEQ")->itemText(0), QString("N/K"));
  QCOMPARE(again.findChild<QComboBox*>("cboEQ")->currentText(), QString());
}

void FunctionEditorTest::buttonsInsertAtTheCaretAndOkAlwaysGivesAFunction() {
  TestProgram test;
  tamsic::LibraryEngine engine;
  frmEquation empty(test.program, engine, "");
  QCOMPARE(empty.function(), QString("="));

  frmEquation editor(test.program, engine, "N+K");
  QLineEdit* line = editor.findChild<QComboBox*>("cboEQ")->lineEdit();
  line->setCursorPosition(2);
  Click(editor, "ssOperator_20");  // SQRT
  QCOMPARE(line->text(), QString("N+SQRT()K"));
  QCOMPARE(line->cursorPosition(), 7);  // between the brackets
  auto* variables = editor.findChild<QListWidget*>("lstVars");
  emit variables->itemDoubleClicked(variables->item(8));  // K
  QCOMPARE(line->text(), QString("N+SQRT(K)K"));
  line->setCursorPosition(1);
  Click(editor, "ssOperator_13");  // AND keeps blanks round it, so that "N AND" is not "NAND"
  QCOMPARE(editor.function(), QString("=N AND +SQRT(K)K"));

  // The "=" setting is the user's, kept for the next start.
  auto* showOnEquals = editor.findChild<QCheckBox*>("chkShowOnEquals");
  QVERIFY(showOnEquals->isChecked());
  showOnEquals->setChecked(false);
  QCOMPARE(tamsic::ReadGlobalSettings(test.store).showEquationDialogOnEquals, 0);

  // What OK gave a cell is offered again next time.
  Click(editor, "cmdOk");
  QCOMPARE(tamsic::FormulaHistory(test.store).Entries().front(), std::string("N AND +SQRT(K)K"));
}

void FunctionEditorTest::aRefusedFormulaIsMarkedWhereTheEngineFoundItWrong() {
  TestProgram test;
  tamsic::LibraryEngine engine;
  test.box.expect(test.strings.text(9106));
  frmEquation editor(test.program, engine, "=N*FOO+1");
  QVERIFY(test.box.allShown());
  QCOMPARE(test.box.shown.back().caption, test.strings.text(9111));
  QVERIFY(GraphPoints(editor).isEmpty());
  QVERIFY(editor.findChild<QLabel*>("lblAnswer")->text().contains("FOO"));
  QLineEdit* line = editor.findChild<QComboBox*>("cboEQ")->lineEdit();
  QCOMPARE(line->selectionStart(), 2);
  QCOMPARE(line->selectedText(), QString("F"));

  line->setText("");
  test.box.expect(test.strings.text(9105));
  Click(editor, "SSShowPolish");
  line->setText("(50-((50-20)*((N/K)^2)))*(N/(5+N))");
  Click(editor, "SSShowPolish");
  QCOMPARE(editor.findChild<QLabel*>("lblAnswer")->text(),
           QString("Polish: * - 50 * - 50 20 ^ / N K 2 / N + 5 N"));
  editor.findChild<QLineEdit*>("txtIncr")->setText("0");
  test.box.expect(test.strings.text(9198));
  Click(editor, "ssUpdateGraph");
  QVERIFY(test.box.allShown());
}

void FunctionEditorTest::thePreviewGraphsTheBreedingFunction() {
  TestProgram test;
  tamsic::LibraryEngine engine;
  const std::string function = "(50-((50-20)*((N/K)^2)))*(N/(5+N))";
  frmEquationPreview preview(test.program.messages, engine, QString::fromStdString(function));
  QCOMPARE(preview.findChild<QLineEdit*>("txtFunction")->text(), QString::fromStdString(function));
  QCOMPARE(preview.findChild<QComboBox*>("cboVars")->currentText(), QString("N"));
  QCOMPARE(GraphPoints(preview), EnginePoints(engine, function, 11));
}

void FunctionEditorTest::theToolbarOpensTheEditorOnTheCellInFocus() {
  TestProgram test;
  QTemporaryDir folder;
  mdiMain frame(test.program);
  frame.show();
  frmProject* project = frame.newProject({folder.path(), "Trout", "Ann"});
  auto* grid = project->findChild<GridView*>("gridCarryingCap1");
  auto* toolbarKey = frame.findChild<QAction*>("tblEquation");

  // Nothing that takes a function has the focus yet.
  project->findChild<QLineEdit*>("txtProjectTitle")->setFocus();
  test.box.expect(test.strings.text(9199));
  toolbarKey->trigger();
  QVERIFY(test.box.allShown());

  QVERIFY(QTest::qWaitForWindowActive(&frame));
  project->findChild<QListWidget*>("hypInput")->setCurrentRow(10);  // Carrying Capacity
  grid->setFocus();
  grid->setCurrentIndex(grid->grid()->indexAt(1, 1));
  auto* poll = new QTimer(&frame);
  QObject::connect(poll, &QTimer::timeout, [poll] {
    if (auto* editor = qobject_cast<frmEquation*>(QApplication::activeModalWidget())) {
      poll->stop();
      editor->findChild<QComboBox*>("cboEQ")->setEditText("K*0.9");
      editor->accept();
    }
  });
  poll->start(5);
  toolbarKey->trigger();
  QCOMPARE(grid->grid()->grid().at(1, 1), std::string("=K*0.9"));
}

QTEST_MAIN(FunctionEditorTest)
#include "FunctionEditorTest.moc"
