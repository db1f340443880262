// Help as the user asks for it: F1 opens the topic of what has the focus, a
// dialog's Help button its own topic (also from a modal dialog, whose help
// window must take input), "What's This?" shows a control's hint, and a
// missing manual is reported.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QWhatsThis>

#include "GuiTestSupport.h"
#include "app/ui/ControlHint.h"
#include "app/ui/HelpDesk.h"
#include "app/ui/frmHelp.h"
#include "app/ui/mdiMain.h"
#include "engine/ui/frmFlags.h"
#include "engine/ui/frmSimRun.h"
#include "pages/ui/GridView.h"
#include "pages/ui/InputPages.h"
#include "pages/ui/ScenarioBar.h"
#include "pages/ui/frmProject.h"

using namespace guitest;

namespace {

// The control of that name, or the only one of its type.
template <typename T>
T* Find(const QObject* parent, const char* name = nullptr) {
  T* found = name != nullptr ? parent->findChild<T*>(name) : parent->findChild<T*>();
  if (found == nullptr) qFatal("no control %s", name != nullptr ? name : T::staticMetaObject.className());
  return found;
}

// The help window on show, and the page it shows.
QString ShownTopic(const mdiMain& frame) {
  const auto windows = frame.findChildren<frmHelp*>();
  if (windows.size() != 1 || !windows.front()->isVisible()) return "no single help window on show";
  return windows.front()->currentTarget();
}

bool WhatsThisPopupShown() {
  for (const QWidget* top : QApplication::topLevelWidgets())
    if (top->inherits("QWhatsThat") && top->isVisible()) return true;
  return false;
}

}  // namespace

class HelpTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    ClearSettings();
    QDir::setCurrent(folder_.path());
    QFile::remove(folder_.filePath("Koalas.tpj"));
    QVERIFY(QFile::copy(Example("Koalas.tpj"), folder_.filePath("Koalas.tpj")));
    t_ = std::make_unique<TestProgram>();
    frame_ = std::make_unique<mdiMain>(t_->program);
    frame_->show();
    QVERIFY(QTest::qWaitForWindowExposed(frame_.get()));
    project_ = frame_->openProject(folder_.filePath("Koalas.tpj"));
    QVERIFY(project_ != nullptr);
  }

  void cleanup() {
    frame_.reset();
    t_.reset();
  }

  void f1OpensTheTopicOfThePageOrTabOnShow() {
    Find<QListWidget>(project_, "hypInput")->setCurrentRow(InputPages::Mortality);
    QTest::keyClick(Find<GridView>(project_, "gridMortFemales"), Qt::Key_F1);
    QCOMPARE(ShownTopic(*frame_), QString("page-mortality.html"));
    QCOMPARE(Find<QTreeWidget>(frame_.get(), "trvContents")->currentItem()->text(0), QString("Mortality Rates"));

    Find<QTabWidget>(project_, "tabProject")->setCurrentIndex(3);
    QTest::keyClick(Find<QWidget>(project_, "ResultsPage")->findChild<QListWidget*>("lstScenarios"), Qt::Key_F1);
    QCOMPARE(ShownTopic(*frame_), QString("graphs-and-tables.html"));

    // The scenario bar stands above the tabs: its topic is that of the tab on show.
    Find<QTabWidget>(project_, "tabProject")->setCurrentIndex(0);
    Find<QListWidget>(project_, "hypInput")->setCurrentRow(InputPages::Species);
    QTest::keyClick(Find<ScenarioBar>(project_)->findChild<QComboBox*>("cboScenario"), Qt::Key_F1);
    QCOMPARE(ShownTopic(*frame_), QString("page-species-description.html"));
  }

  void helpButtonsOpenTheirDialogsTopicEvenFromAModalDialog() {
    frmFlags flags(t_->program, {}, project_);
    flags.show();
    Find<QPushButton>(&flags, "cmdHelp")->click();
    QCOMPARE(ShownTopic(*frame_), QString("special-options.html"));
    QVERIFY(!Find<frmHelp>(frame_.get())->isModal());

    frmSimRun run(t_->program, {"Baseline", "Managed"}, project_);
    Qt::WindowModality helpModality = Qt::NonModal;
    QString topic;
    QTimer::singleShot(0, &run, [&] {
      Find<QPushButton>(&run, "cmdHelp")->click();
      topic = ShownTopic(*frame_);
      auto* help = Find<frmHelp>(frame_.get());
      helpModality = help->windowModality();
      help->close();
      run.reject();
    });
    run.exec();
    QCOMPARE(topic, QString("running.html#run-dialog"));
    QCOMPARE(Find<QTreeWidget>(frame_.get(), "trvContents")->currentItem()->text(0), QString("The run dialog"));
    QCOMPARE(helpModality, Qt::ApplicationModal);

    // Asked for again with no dialog open, the one window takes input beside the others again.
    Find<QAction>(frame_.get(), "mniContents")->trigger();
    QCOMPARE(ShownTopic(*frame_), QString("contents.html"));
    QVERIFY(!Find<frmHelp>(frame_.get())->isModal());
  }

  void whatsThisShowsAControlsHint() {
    auto* years = Find<QLineEdit>(project_, "txtNumYear");
    auto* links = Find<QListWidget>(project_, "hypInput");
    QListWidgetItem* mortality = links->item(InputPages::Mortality);
    auto* grid = Find<GridView>(project_, "gridMortFemales");
    QCOMPARE(ControlHint(years, {}), years->toolTip());
    QCOMPARE(ControlHint(links->viewport(), links->visualItemRect(mortality).center()), mortality->toolTip());
    QCOMPARE(ControlHint(grid->viewport(), {5, 5}), grid->toolTip());
    QVERIFY(!years->toolTip().isEmpty() && !mortality->toolTip().isEmpty() && !grid->toolTip().isEmpty());

    Find<QAction>(frame_.get(), "tblQuickHelp")->trigger();
    QVERIFY(QWhatsThis::inWhatsThisMode());
    QTest::mouseClick(years, Qt::LeftButton);
    QVERIFY(WhatsThisPopupShown());
    QWhatsThis::hideText();
    QWhatsThis::leaveWhatsThisMode();
  }

  void aMissingManualIsReported() {
    QTemporaryDir nowhere;
    Find<HelpDesk>(frame_.get())->places = {nowhere.path().toStdString()};
    t_->box.expect(t_->strings.text(9195));
    Find<QAction>(frame_.get(), "mniContents")->trigger();
    QVERIFY(t_->box.allShown());
    QVERIFY(QString::fromStdString(t_->box.shown.back().text).contains(nowhere.path()));
    QVERIFY(frame_->findChild<frmHelp*>() == nullptr);
  }

 private:
  QTemporaryDir folder_;
  std::unique_ptr<TestProgram> t_;
  std::unique_ptr<mdiMain> frame_;
  frmProject* project_ = nullptr;
};

QTEST_MAIN(HelpTest)
#include "HelpTest.moc"
