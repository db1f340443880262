// The whole path of a run through the desktop program with the real engine
// library: the run dialog, the progress dialog, the result files, and the
// views that read them.
#include <QAction>
#include <QApplication>
#include <QChartView>
#include <QLineSeries>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <functional>
#include <sstream>

#include "GuiTestSupport.h"
#include "app/ui/mdiMain.h"
#include "engine/OutputFiles.h"
#include "engine/ui/TextOutputPage.h"
#include "engine/ui/frmRunProgress.h"
#include "engine/ui/frmSimRun.h"
#include "files/UnfinishedRun.h"
#include "files/ProjectFile.h"
#include "pages/ui/frmProject.h"
#include "results/ui/ResultsPage.h"
#include "support/RecordingMessageBox.h"

using namespace guitest;

namespace {

// Acts on the next modal dialog of type Dialog once it shows, from inside its event loop.
template <class Dialog>
void WhenShown(std::function<void(Dialog&)> act) {
  auto* poll = new QTimer;
  poll->setInterval(5);
  QObject::connect(poll, &QTimer::timeout, [poll, act] {
    if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
      poll->stop();
      poll->deleteLater();
      act(*dialog);
    }
  });
  poll->start();
}

void Check(frmSimRun& dialog, std::initializer_list<int> rows) {
  auto* list = dialog.findChild<QListWidget*>("lstScenarios");
  for (int row : rows) list->item(row)->setCheckState(Qt::Checked);
}

void Click(QWidget& dialog, const char* name) { dialog.findChild<QPushButton*>(name)->click(); }

// A copy of an example with fewer iterations, so that a run takes a moment.
QString SmallCopy(const QTemporaryDir& folder, const char* example, int iterations, int years) {
  tamsic::test::MessageRecorder quiet;
  tamsic::ProjectDocument project = tamsic::LoadProject(Example(example).toStdString(), "9.99", quiet.messages);
  for (std::size_t n = 1; n <= project.scenarios.Count(); ++n) {
    project.scenarios.Item(n).SetText(tamsic::F("txtNumIter"), std::to_string(iterations));
    project.scenarios.Item(n).SetText(tamsic::F("txtNumYear"), std::to_string(years));
  }
  const QString path = folder.filePath(example);
  tamsic::SaveProject(project, path.toStdString(), quiet.messages);
  return path;
}

// The fields of the .dat line of a block and year, the blocks following one another after the scenario's name line.
QStringList DatFields(const QString& file, const QString& scenario, int block, int years, int year) {
  const QStringList lines = QString::fromLatin1(ReadFile(file)).split("\r\n");
  const int name = static_cast<int>(lines.indexOf(scenario));
  return lines.value(name + 1 + block * (years + 1) + year).split(';');
}

std::string SummaryLineOf(const std::string& summary, const std::string& scenario) {
  std::istringstream lines(summary);
  for (std::string line; std::getline(lines, line);)
    if (line.rfind(scenario + ";", 0) == 0) return line.substr(0, line.find_last_not_of("\r") + 1);
  return {};
}

}  // namespace

class RunAndResultsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { ClearSettings(); }
  void cleanup() { QDir(QCoreApplication::applicationDirPath() + "/Temp").removeRecursively(); }

  void runDialogRunsTheCheckedScenariosAndTheViewsReadTheirFiles() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frmProject* project = frame.openProject(SmallCopy(folder, "Koalas.tpj", 20, 30));
    QVERIFY(project != nullptr);
    const QByteArray before = ReadFile(folder.filePath("Koalas.tpj"));

    // Nothing checked: the dialog stays open; then both scenarios run.
    WhenShown<frmSimRun>([](frmSimRun& dialog) {
      Click(dialog, "cmdRun");
      QVERIFY(dialog.isVisible());
      Check(dialog, {0, 1});
      Click(dialog, "cmdRun");
    });
    bool progressShown = false;
    QString estimate;
    WhenShown<frmRunProgress>([&](frmRunProgress& dialog) {
      progressShown = true;
      QObject::connect(&dialog, &QDialog::accepted,
                       [&] { estimate = dialog.findChild<QLabel*>("lblEstimate")->text(); });
    });
    frame.findChild<QAction*>("mniRunSim")->trigger();

    QVERIFY(t.box.shown.empty());
    QVERIFY(progressShown);
    // The pilot's figures stay in view for the whole run.
    QVERIFY2(estimate.startsWith(QString::fromStdString(t.strings.text(8225))) &&
                 estimate.endsWith(QString::fromStdString(t.strings.text(8227))),
             qPrintable(estimate));
    QVERIFY(project->freshAnalysis());
    const std::filesystem::path results = folder.path().toStdString();
    const std::string title = project->state().document.title;
    for (const char* scenario : {"Baseline", "Managed"})
      QVERIFY(std::filesystem::exists(tamsic::ScenarioOutputFile(results, title, scenario,
                                                                 tamsic::ScenarioOutput::YearlyData)));
    QCOMPARE(ReadFile(folder.filePath("Koalas.tpj")), before);
    QVERIFY(!project->state().Changed());
    QVERIFY(QDir(QCoreApplication::applicationDirPath() + "/Temp").isEmpty());

    // The graph of N[all] for both scenarios, metapopulation, draws the .dat's numbers.
    auto* graphs = project->findChild<ResultsPage*>();
    auto* list = graphs->findChild<QListWidget*>("lstScenarios");
    list->item(0)->setCheckState(Qt::Checked);
    list->item(1)->setCheckState(Qt::Checked);
    auto* populations = graphs->findChild<QComboBox*>("cboPops");
    populations->setCurrentIndex(populations->findText("Metapopulation"));
    auto* variables = graphs->findChild<QComboBox*>("cboVars");
    variables->setCurrentIndex(variables->findText("N[all]"));
    graphs->findChild<QComboBox*>("cboBand")->setCurrentIndex(2);
    graphs->findChild<QPushButton*>("cmdMakeGraph")->click();
    QChart* chart = graphs->findChild<QChartView*>("chtResults")->chart();
    for (const QString scenario : {"Baseline", "Managed"}) {
      QLineSeries* line = nullptr;
      for (auto* series : chart->series())
        if (auto* found = qobject_cast<QLineSeries*>(series); found && found->name() == scenario) line = found;
      QVERIFY(line);
      QVERIFY(!line->pointsVisible());  // the special option "S" is off in the example
      QCOMPARE(line->count(), 31);
      const QString dat = QString::fromStdString(
          tamsic::ScenarioOutputFile(results, title, scenario.toStdString(), tamsic::ScenarioOutput::YearlyData)
              .string());
      for (int year : {0, 17, 30}) {
        const QStringList fields = DatFields(dat, scenario, 3, 30, year);
        QCOMPARE(fields.value(0).toInt(), year);
        QCOMPARE(line->at(year), QPointF(year, fields.value(12).toDouble()));
      }
    }

    // The summary grid holds the engine's line field for field, and exports it as CSV.
    auto* output = project->findChild<TextOutputPage*>();
    auto* other = output->findChild<QComboBox*>("cboOtherOutput");
    other->setCurrentIndex(1);
    emit other->activated(1);
    const std::string line = SummaryLineOf(
        ReadFile(QString::fromStdString(tamsic::SummaryFile(results, title).string())).toStdString(), "Managed");
    QVERIFY(!line.empty());
    QString csvLine = QString::fromStdString(line).replace(';', ',');
    QVERIFY2(output->otherOutputCsv().contains(csvLine + "\r\n"), qPrintable(output->otherOutputCsv()));

    // The output report of the scenario on show; a report never made is made on demand.
    output->findChild<QComboBox*>("cboReport")->setCurrentIndex(2);
    Click(*output, "cmdShow");
    QVERIFY(output->findChild<QPlainTextEdit*>("txtReport")->toPlainText().contains("Metapopulation"));
    QCOMPARE(output->findChild<QComboBox*>("cboPopulation")->count(), 5);
    output->findChild<QComboBox*>("cboReport")->setCurrentIndex(0);
    Click(*output, "cmdShow");
    QVERIFY(std::filesystem::exists(
        tamsic::ScenarioOutputFile(results, title, "Baseline", tamsic::ScenarioOutput::InputReport)));
    QVERIFY(!output->findChild<QPlainTextEdit*>("txtReport")->toPlainText().isEmpty());
    QVERIFY(t.box.shown.empty());
  }

  void missingFilesAreNamedAndAFailedRunShowsTheEnginesReply() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frmProject* project = frame.openProject(SmallCopy(folder, "Gorillas.tpj", 5, 10));
    QVERIFY(project != nullptr);
    auto* output = project->findChild<TextOutputPage*>();
    const std::string stem = folder.filePath(QString::fromStdString(project->state().document.title)).toStdString();
    output->findChild<QComboBox*>("cboReport")->setCurrentIndex(2);
    t.box.expect(t.strings.text(9123) + stem + "_Baseline.out");
    Click(*output, "cmdShow");
    auto* other = output->findChild<QComboBox*>("cboOtherOutput");
    other->setCurrentIndex(2);
    t.box.expect(t.strings.text(9112) + stem + "_Baseline.run");
    emit other->activated(2);
    QVERIFY(t.box.allShown());
    QVERIFY(t.box.shown.back().text.ends_with(".'"));

    // The resume mode is refused by this engine; the user reads why, in the error frame.
    WhenShown<frmSimRun>([](frmSimRun& dialog) {
      dialog.findChild<QCheckBox*>("Check1")->click();
      Click(dialog, "cmdResumeRun");
    });
    t.box.expect(t.strings.text(9110) + "\n\nError: ");
    frame.findChild<QAction*>("mniRunSim")->trigger();
    QVERIFY(t.box.allShown());
    QCOMPARE(t.box.shown.back().caption, t.strings.text(9111));
  }

  void cancellingARunSaysSoAndLeavesTheProjectAsItWas() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frmProject* project = frame.openProject(SmallCopy(folder, "Gorillas.tpj", 100000, 100));
    QVERIFY(project != nullptr);
    const QByteArray before = ReadFile(folder.filePath("Gorillas.tpj"));
    WhenShown<frmSimRun>([](frmSimRun& dialog) {
      dialog.findChild<QCheckBox*>("Check1")->click();
      Click(dialog, "cmdRun");
    });
    WhenShown<frmRunProgress>([](frmRunProgress& dialog) {
      QTimer::singleShot(50, &dialog, [&dialog] { Click(dialog, "cmdCancel"); });
    });
    t.box.expect(t.strings.text(8221));
    frame.findChild<QAction*>("mniRunSim")->trigger();
    QVERIFY(t.box.allShown());
    QCOMPARE(ReadFile(folder.filePath("Gorillas.tpj")), before);
    QVERIFY(!project->state().Changed());
  }


  // Stepwise: one scenario at a time, asking before the next; stopping there
  // leaves the rest for Resume Run, which keeps what was finished.
  void aStepwiseRunStopsWhenAskedAndResumeRunsTheRest() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frmProject* project = frame.openProject(SmallCopy(folder, "Koalas.tpj", 10, 20));
    QVERIFY(project != nullptr);
    const std::filesystem::path results = folder.path().toStdString();
    const std::string title = project->state().document.title;
    const auto dat = [&](const char* scenario) {
      return QString::fromStdString(
          tamsic::ScenarioOutputFile(results, title, scenario, tamsic::ScenarioOutput::YearlyData).string());
    };
    WhenShown<frmSimRun>([](frmSimRun& dialog) {
      Check(dialog, {0, 1, 2});
      Click(dialog, "StepWiseCommand");
    });
    // After each scenario, its name and the question.
    t.box.expect(t.strings.text(8214) + "Baseline", tamsic::MsgAnswer::Yes);
    t.box.expect(t.strings.text(8214) + "Managed", tamsic::MsgAnswer::No);
    frame.findChild<QAction*>("mniRunSim")->trigger();
    QVERIFY(t.box.allShown());
    QVERIFY(QFile::exists(dat("Baseline")) && QFile::exists(dat("Managed")));
    QVERIFY(!QFile::exists(dat("Isolated")));
    QVERIFY(std::filesystem::exists(tamsic::UnfinishedRunFile(results, title)));

    const QByteArray baseline = ReadFile(dat("Baseline"));
    WhenShown<frmSimRun>([](frmSimRun& dialog) {
      Check(dialog, {0, 1, 2});
      Click(dialog, "cmdResumeRun");
    });
    frame.findChild<QAction*>("mniRunSim")->trigger();
    QVERIFY(t.box.shown.size() == 2);
    QVERIFY(QFile::exists(dat("Isolated")));
    QCOMPARE(ReadFile(dat("Baseline")), baseline);
    QVERIFY(!std::filesystem::exists(tamsic::UnfinishedRunFile(results, title)));
  }
};

QTEST_MAIN(RunAndResultsTest)
#include "RunAndResultsTest.moc"
