// The "Graphs and Tables" tab, headless: graphs and tables of small
// hand-written yearly data files, their exports, and what the user is told
// when a file is missing or broken.
#include <QClipboard>
#include <QGuiApplication>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QLabel>
#include <QLineSeries>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

#include "gui/GuiTestSupport.h"
#include "results/ui/ResultsPage.h"
#include "results/ui/frmSpecify.h"
#include "results/ResultsData.h"

using resultstest::Cell;

class ResultsPageTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;
  tamsic::ProjectState state_;

  std::filesystem::path datFile(const std::string& scenario) {
    return std::filesystem::path(folder_.path().toStdString()) / ("Koalas_" + scenario + ".dat");
  }
  template <typename T>
  static T* child(QWidget& page, const char* name) {
    T* found = page.findChild<T*>(name);
    if (!found) qFatal("no control %s", name);
    return found;
  }
  static void choose(QComboBox* combo, const QString& text) {
    const int index = combo->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo->setCurrentIndex(index);
  }
  static QLineSeries* line(QChart* chart, const QString& name) {
    for (auto* series : chart->series())
      if (auto* found = qobject_cast<QLineSeries*>(series); found && found->name() == name) return found;
    return nullptr;
  }

 private slots:
  void init() {
    state_ = {};
    state_.document.title = "Koalas";
    state_.SetFullPath((folder_.path() + "/Koalas.tpj").toStdString());
    state_.document.scenarios.Add(resultstest::Scenario("Base", 2, 2));
    state_.document.scenarios.Add(resultstest::Scenario("Managed", 1, 2));
    resultstest::Write(datFile("Base"), resultstest::DatText("Base", 3, 2));
    resultstest::Write(datFile("Managed"), resultstest::DatText("Managed", 1, 2));
  }

  void graphOfTwoScenariosWithAnSDBand() {
    guitest::TestProgram test;
    ResultsPage page(test.program, state_, [](std::size_t) { return std::nullopt; });
    auto* scenarios = child<QListWidget>(page, "lstScenarios");
    scenarios->item(0)->setCheckState(Qt::Checked);
    scenarios->item(1)->setCheckState(Qt::Checked);
    choose(child<QComboBox>(page, "cboPops"), "Metapopulation");
    auto* variables = child<QComboBox>(page, "cboVars");
    choose(variables, "Det.r");
    QVERIFY(!child<QComboBox>(page, "cboVarMod")->isEnabled());
    choose(variables, "N[extant]");
    QVERIFY(child<QComboBox>(page, "cboVarMod")->isEnabled());
    child<QComboBox>(page, "cboBand")->setCurrentIndex(2);
    child<QPushButton>(page, "cmdMakeGraph")->click();

    QChart* chart = child<QChartView>(page, "chtResults")->chart();
    QCOMPARE(chart->series().size(), 4);  // a line and a band per scenario
    // Base's metapopulation is its third block; Managed's whole is its only population.
    for (auto [name, block] : {std::pair{"Base", 2}, std::pair{"Managed", 0}}) {
      QLineSeries* mean = line(chart, name);
      QVERIFY(mean);
      QCOMPARE(mean->count(), 3);
      for (int year = 0; year <= 2; ++year) QCOMPARE(mean->at(year), QPointF(year, Cell(block, year, 9)));
    }
    QCOMPARE(chart->axes(Qt::Vertical).front()->titleText(), QString("N[extant](Mean)"));

    // Saved as a drawing or as an image, by the name's ending.
    QString picture = folder_.path() + "/graph.svg";
    page.askSavePath = [&](const QString&, const QString&, const QString&) { return picture; };
    child<QPushButton>(page, "cmdSaveGraph")->click();
    QVERIFY(guitest::ReadFile(picture).contains("<svg"));
    picture = folder_.path() + "/graph.png";
    child<QPushButton>(page, "cmdSaveGraph")->click();
    QVERIFY(guitest::ReadFile(picture).startsWith("\x89PNG"));

    // P[survive] has no SD: nothing to draw, and the status says why.
    choose(variables, "P[survive]");
    child<QComboBox>(page, "cboVarMod")->setCurrentIndex(2);
    child<QPushButton>(page, "cmdMakeGraph")->click();
    QVERIFY(child<QChartView>(page, "chtResults")->chart()->series().isEmpty());
    QVERIFY(!child<QLabel>(page, "lblStatus")->text().isEmpty());
  }

  void tableAndItsCsvThenAMissingAndABrokenFile() {
    guitest::TestProgram test;
    ResultsPage page(test.program, state_, [](std::size_t) { return std::nullopt; });
    const QString csv = folder_.path() + "/table.csv";
    page.askSavePath = [&](const QString&, const QString&, const QString&) { return csv; };
    auto* scenarios = child<QListWidget>(page, "lstScenarios");
    scenarios->item(0)->setCheckState(Qt::Checked);
    scenarios->item(1)->setCheckState(Qt::Checked);
    choose(child<QComboBox>(page, "cboPops"), "Metapopulation");
    child<QComboBox>(page, "cboCols")->setCurrentIndex(2);  // mean and SD
    child<QPushButton>(page, "cmdMakeTable")->click();
    auto* grid = child<QTableWidget>(page, "grdTable");
    QCOMPARE(grid->rowCount(), 2);
    QCOMPARE(grid->horizontalHeaderItem(5)->text(), QString("SD(N[extant])"));
    // The core's exports of the table on show (their form is tested there).
    child<QPushButton>(page, "cmdExportTable")->click();
    QVERIFY(guitest::ReadFile(csv).endsWith("\r\nManaged,-200.25,206.25,208.25,209.25,211.25,215.25,217.25\r\n"));
    child<QPushButton>(page, "cmdCopy")->click();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("Scenario\tP[extinct]\t"));

    // A run that left no file for Managed: the rebuilt table says so.
    std::filesystem::remove(datFile("Managed"));
    page.resultsChanged();
    QCOMPARE(grid->rowCount(), 1);
    const QString status = child<QLabel>(page, "lblStatus")->text();
    QVERIFY2(status.startsWith("The file '") && status.endsWith("Koalas_Managed.dat' does not exist.  "
                                                                 "You probably have not run 'Managed.'"),
             qPrintable(status));

    // A file cut short is an error the user is shown once, though the graph
    // on show is rebuilt too.
    child<QPushButton>(page, "cmdMakeGraph")->click();
    resultstest::Write(datFile("Base"), resultstest::DatText("Base", 2, 2));
    test.box.expect("Error loading files.");
    page.resultsChanged();
    QVERIFY(test.box.allShown());
    QCOMPARE(grid->rowCount(), 0);
    QVERIFY(child<QChartView>(page, "chtResults")->chart()->series().isEmpty());
  }

  void deterministicProjection() {
    guitest::TestProgram test;
    ResultsPage page(test.program, state_, [](std::size_t number) -> std::optional<std::string> {
      return number == 1 ? "50;55;60.5" : "Error: Managed cannot be projected";
    });
    child<QListWidget>(page, "lstScenarios")->item(0)->setCheckState(Qt::Checked);
    child<QListWidget>(page, "lstScenarios")->item(1)->setCheckState(Qt::Checked);
    child<QComboBox>(page, "cboGraphKind")->setCurrentIndex(1);
    test.box.expect("Error: Managed cannot be projected");
    child<QPushButton>(page, "cmdMakeGraph")->click();
    QChart* chart = child<QChartView>(page, "chtResults")->chart();
    QCOMPARE(chart->series().size(), 1);
    QCOMPARE(line(chart, "Base")->at(2), QPointF(2, 60.5));
  }

  void specifyChoosesAndOrdersColumns() {
    guitest::TestProgram test;
    frmSpecify dialog(test.strings, {"P[survive]", "N[extant]", "GeneDiv", "TE"}, {"N[extant]", "TE"});
    QCOMPARE(dialog.lstAvailable->count(), 2);
    dialog.lstAvailable->setCurrentRow(1);  // GeneDiv
    dialog.cmdAdd->click();
    dialog.cmdUp->click();
    QCOMPARE(dialog.chosen(), (std::vector<std::string>{"N[extant]", "GeneDiv", "TE"}));
    dialog.lstChosen->setCurrentRow(0);
    dialog.cmdRemove->click();
    dialog.cmdDown->click();  // GeneDiv, now first and current, goes below TE
    QCOMPARE(dialog.chosen(), (std::vector<std::string>{"TE", "GeneDiv"}));
    QCOMPARE(dialog.lstAvailable->item(1)->text(), QString("N[extant]"));  // back in its place
  }
};

QTEST_MAIN(ResultsPageTest)
#include "ResultsPageTest.moc"
