// The ST analysis panel on hand-made ST scenarios: what the graph draws is
// what the table lists, in every grouping; the tornado ranks the inputs with
// the largest at the top; the items without results are listed; the table
// is exported, and a failed export is reported.
#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QHorizontalStackedBarSeries>
#include <QLabel>
#include <QLineSeries>
#include <QXYSeries>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

#include "GuiTestSupport.h"
#include "st/STTestProject.h"
#include "st/ui/STAnalysisPanel.h"
#include "support/FakeEngine.h"

using namespace guitest;

namespace {

// Sex ratio and K of population 1 in each item, and N[extant] of the
// metapopulation in the last year: the sex ratio matters far more, and
// raises it; K lowers it a little.
struct Level {
  int sexRatio;
  int k;
};
constexpr Level kLevels[] = {{45, 300}, {50, 250}, {55, 300}, {40, 350}, {50, 350}, {60, 200}, {45, 250}};

double Result(const Level& level, int item) { return 1000 + 20 * level.sexRatio - 0.5 * level.k + (item % 3); }

template <typename T>
T* Find(const QObject* parent, const char* name) {
  T* found = parent->findChild<T*>(name);
  if (found == nullptr) qFatal("no control %s", name);
  return found;
}

// The table's rows as (heading, cells) read from the widget.
QList<QStringList> Rows(const QTableWidget& table) {
  QList<QStringList> rows;
  for (int r = 0; r < table.rowCount(); ++r) {
    QStringList row;
    for (int c = 0; c < table.columnCount(); ++c) row << (table.item(r, c) ? table.item(r, c)->text() : QString());
    rows << row;
  }
  return rows;
}

bool Near(double a, double b) { return std::abs(a - b) <= 1e-5 * std::max(1.0, std::abs(b)); }

}  // namespace

class STAnalysisPanelTest : public QObject {
  Q_OBJECT

 private slots:
  void graphsFollowTheTableAndTheTornadoRanks() {
    QTemporaryDir folder;
    tamsic::ProjectState state = sttest::KoalaProject(folder.path().toStdString());
    for (int i = 0; i < static_cast<int>(std::size(kLevels)); ++i) {
      const Level level = kLevels[i];
      sttest::AddItem(state, "Level " + std::to_string(i + 1),
                      {{"SexRatio", std::to_string(level.sexRatio)}, {"K_Pop1", std::to_string(level.k)}});
      sttest::WriteDat(state, "ST." + std::to_string(i + 1), [&](int b, int y, int f) {
        return b == 3 && y == sttest::kYears && f == 9 ? Result(level, i) : sttest::Where(b, y, f);
      });
    }
    sttest::AddItem(state, "Not run", {{"SexRatio", "70"}});
    sttest::WriteDat(state, "Baseline");

    TestProgram t;
    tamsic::test::FakeEngine engine;
    STAnalysisPanel panel(t.program, engine);
    panel.setProject(state, state.document.stScheme);
    panel.show();
    Find<QComboBox>(&panel, "cboVars")->setCurrentText("N[extant]");
    Find<QComboBox>(&panel, "cboPops")->setCurrentText("Metapopulation");
    QCOMPARE(Find<QComboBox>(&panel, "cboYears")->currentText(), QString::number(sttest::kYears));
    auto* table = Find<QTableWidget>(&panel, "grdTable");
    auto* graph = Find<QChartView>(&panel, "chtGraph");
    auto* group = Find<QComboBox>(&panel, "cboGroup");

    // By ST level: a bar per item with a result, the result column's value; the result comes before the inputs.
    group->setCurrentIndex(0);
    QList<QStringList> rows = Rows(*table);
    QCOMPARE(rows.size(), 8);
    QCOMPARE(rows.front(), (QStringList{"1", "Level 1", "ST.1", "1750", "45", "300"}));
    const QBarSet* bars = qobject_cast<QBarSeries*>(graph->chart()->series().front())->barSets().front();
    QCOMPARE(bars->count(), 7);
    for (int i = 0; i < bars->count(); ++i) QVERIFY(Near(bars->at(i), rows[i][3].toDouble()));
    QCOMPARE(rows.back()[3], QString());

    // By variable: a line per input through the rows of that input that have
    // a number and a result, the baseline among them; a scatter where the items change several inputs.
    group->setCurrentIndex(1);
    rows = Rows(*table);
    const auto lines = graph->chart()->series();
    QCOMPARE(lines.size(), 2);
    for (QAbstractSeries* series : lines) {
      QList<QPointF> expected;
      for (const QStringList& row : rows)
        if (row[0] == series->name() && !row[4].isEmpty()) expected << QPointF(row[1].toDouble(), row[4].toDouble());
      const QList<QPointF> drawn = qobject_cast<QXYSeries*>(series)->points();
      QCOMPARE(drawn.size(), expected.size());
      for (int i = 0; i < drawn.size(); ++i)
        QVERIFY2(Near(drawn[i].x(), expected[i].x()) && Near(drawn[i].y(), expected[i].y()),
                 qPrintable(series->name() + " point " + QString::number(i)));
      for (int i = 1; i < drawn.size(); ++i) QVERIFY(drawn[i - 1].x() <= drawn[i].x());
    }
    QVERIFY(rows.contains(QStringList{"SexRatio", "50", "Baseline scenario", "Baseline", "3509.25"}));

    // By scheme: the result against the item's number.
    group->setCurrentIndex(2);
    rows = Rows(*table);
    const QList<QPointF> drawn = qobject_cast<QLineSeries*>(graph->chart()->series().front())->points();
    QCOMPARE(drawn.size(), 7);
    for (int i = 0; i < drawn.size(); ++i)
      QVERIFY(Near(drawn[i].x(), rows[i][0].toDouble()) && Near(drawn[i].y(), rows[i][3].toDouble()));

    // The tornado: categories from the bottom up, so the largest is at the top.
    auto* tornado = Find<QChartView>(&panel, "chtTornado");
    auto* ranked = qobject_cast<QHorizontalStackedBarSeries*>(tornado->chart()->series().front());
    QVERIFY(ranked != nullptr);
    auto* categories = qobject_cast<QBarCategoryAxis*>(tornado->chart()->axes(Qt::Vertical).front());
    QCOMPARE(categories->categories(), (QStringList{"K_Pop1", "SexRatio"}));
    const QBarSet* raises = ranked->barSets()[0];
    const QBarSet* lowers = ranked->barSets()[1];
    QCOMPARE(raises->label(), QString("Raises the result"));
    QVERIFY(lowers->at(0) < 0 && raises->at(0) == 0);
    QVERIFY(raises->at(1) > 0 && lowers->at(1) == 0);
    QVERIFY(raises->at(1) > -lowers->at(0));
    const QString fit = Find<QLabel>(&panel, "lblRanking")->text();
    QVERIFY2(fit.startsWith("R-squared = ") && fit.section(' ', 2, 2).toDouble() > 0.99, qPrintable(fit));
    QVERIFY2(fit.endsWith("ST scenarios in the ranking: 7"), qPrintable(fit));

    auto* missing = Find<QListWidget>(&panel, "lstMissing");
    QCOMPARE(missing->count(), 1);
    QVERIFY(missing->item(0)->text().startsWith("8. Not run (ST.8): not run yet, there is no file "));

    // The table exported as tab-separated lines; a folder that is not there is reported.
    const QString exported = folder.filePath("Table.txt");
    panel.askSavePath = [&](const QString&, const QString& proposed, const QString&) {
      return QFileInfo(proposed).fileName() == "Table.txt" ? exported : QString();
    };
    Find<QPushButton>(&panel, "cmdExportTable")->click();
    const QByteArray text = ReadFile(exported);
    QVERIFY2(text.startsWith("Item\tLabel\tST scenario\tN[extant]\r\n1\tLevel 1\tST.1\t1750\r\n"), text.constData());
    QCOMPARE(text.count("\r\n"), 9);
    panel.askSavePath = [&](const QString&, const QString&, const QString&) {
      return folder.filePath("gone/Table.txt");
    };
    t.box.expect("Unable to write the file " + folder.filePath("gone/Table.txt").toStdString());
    Find<QPushButton>(&panel, "cmdExportTable")->click();
    QVERIFY(t.box.allShown());
  }
};

QTEST_MAIN(STAnalysisPanelTest)
#include "STAnalysisPanelTest.moc"
