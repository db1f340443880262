// The global settings and the recent-projects list as they live in the
// user's settings files, and what the windows make of them.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QMenuBar>
#include <QPushButton>
#include <QListWidget>
#include <QTabWidget>
#include <QTreeWidget>

#include "GuiTestSupport.h"
#include "app/ui/StartUp.h"
#include "app/ui/frmSettings.h"
#include "app/ui/frmSplash.h"
#include "app/ui/frmWelcome.h"
#include "app/ui/mdiMain.h"
#include "pages/ui/frmProject.h"

using namespace guitest;


class SettingsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { ClearSettings(); }

  void settingsDialogKeepsItsChoicesForTheNextStart() {
    {
      TestProgram t;
      frmSettings dialog(t.program);
      dialog.findChild<QCheckBox*>("chkShowWelcome")->setChecked(false);
      dialog.findChild<QComboBox*>("cboLanguage")->setCurrentIndex(2);
      dialog.accept();
    }
    QSettings file = GlobalSettingsFile();
    QCOMPARE(file.value("GlobalSettings/ShowWelcome").toString(), QString("0"));
    QCOMPARE(file.value("GlobalSettings/Language").toString(), QString("2"));
    TestProgram next;
    QCOMPARE(next.strings.language(), tamsic::Language::Spanish);
  }

  // The list's order and length are the core's; opening a project puts it at the top of the file and the menu.
  void openingPutsTheProjectFirst() {
    QTemporaryDir folder;
    const QString koalas = folder.filePath("Koalas.tpj");
    QVERIFY(QFile::copy(Example("Koalas.tpj"), koalas));
    TestProgram t;
    mdiMain frame(t.program);
    t.program.recent.Add("/p/other.tpj", "");
    QVERIFY(frame.openProject(koalas) != nullptr);
    QSettings file = RecentFile();
    QCOMPARE(file.value("MRUList/1Name").toString(), koalas);
    QCOMPARE(file.value("MRUList/1Title").toString(), QString("Koalas in three fragments"));
    QCOMPARE(frame.findChild<QAction*>("mniRecent1")->text(), "&1 " + koalas);
  }

  // A window manager puts the main frame, shown second, above the splash
  // unless the splash stays on top; the modal welcome would cover it too.
  void theSplashStaysInFrontAndTheWelcomeFollowsIt() {
    TestProgram t;
    mdiMain frame(t.program);
    QString shown;
    QPointer<frmSplash> splash;
    bool splashGone = false;
    QTimer closer;
    connect(&closer, &QTimer::timeout, [&] {
      if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        shown = dialog->objectName();
        splashGone = splash.isNull();
        dialog->reject();
      }
    });
    closer.start(5);
    StartUp(frame, t.program, {});
    splash = frame.findChild<frmSplash*>();
    QVERIFY(splash && splash->isVisible());
    QVERIFY(splash->windowFlags() & Qt::WindowStaysOnTopHint);
    QTest::qWait(20);
    QVERIFY(shown.isEmpty());

    QTest::mouseClick(splash->findChild<QPushButton*>("SSClose"), Qt::LeftButton);
    QTRY_COMPARE(shown, QString("frmWelcome"));
    QVERIFY(splashGone);
  }

  // The examples start new projects of the user's own: the example file is
  // only read, and the new project is unsaved under its new name.
  void anExampleProjectStartsANewOne() {
    QTemporaryDir folder;
    TestProgram t;
    frmWelcome welcome(t.program);
    auto* examples = welcome.findChild<QListWidget*>("lstExamples");
    const auto found = examples->findItems("Koalas in three fragments", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    welcome.findChild<QTabWidget*>()->setCurrentIndex(1);
    examples->setCurrentItem(found.front());
    welcome.accept();
    QVERIFY(!welcome.blankProjectChosen());
    const QString example = welcome.chosenTemplate();
    QCOMPARE(QFileInfo(example).fileName(), QString("Koalas.tpj"));
    const QByteArray before = ReadFile(example);

    mdiMain frame(t.program);
    frmProject* project = frame.newProject({folder.path(), "Mine", "Ann", example});
    QVERIFY(project);
    const tamsic::ProjectState& state = project->state();
    QCOMPARE(state.document.title, std::string("Mine"));
    QCOMPARE(state.document.users, std::vector<std::string>{"Ann"});
    QCOMPARE(state.document.scenarios.Count(), std::size_t{3});
    QVERIFY(state.document.reportLocation.empty());
    QVERIFY(state.Changed() && state.FullPath().empty());
    QCOMPARE(ReadFile(example), before);
    QCOMPARE(QDir(QFileInfo(example).path()).entryList({"*.bak"}, QDir::Files), QStringList());
  }

  void welcomeMarksMissingRecentProjects() {
    QTemporaryDir folder;
    // A path deep enough to have been cut short in a narrow column.
    QVERIFY(QDir(folder.path()).mkpath("field seasons/2026/koala surveys/southern fragments"));
    const QString koalas = folder.filePath("field seasons/2026/koala surveys/southern fragments/Koalas.tpj");
    QVERIFY(QFile::copy(Example("Koalas.tpj"), koalas));
    TestProgram t;
    t.program.recent.Add(folder.filePath("Gone.tpj").toStdString(), "Gone");
    t.program.recent.Add(koalas.toStdString(), "Koalas");
    frmWelcome welcome(t.program);
    const auto* list = welcome.findChild<QTreeWidget*>("lstRecent");
    QCOMPARE(list->topLevelItemCount(), 2);
    QCOMPARE(list->topLevelItem(0)->text(3), QString("Koalas in three fragments"));
    const QString path = list->topLevelItem(0)->text(1);
    QVERIFY(list->columnWidth(1) > list->fontMetrics().horizontalAdvance(path));
    QVERIFY(list->topLevelItem(1)->text(2) == "Not Found!");
    QVERIFY(!(list->topLevelItem(1)->flags() & Qt::ItemIsEnabled));

    welcome.findChild<QCheckBox*>("chkShowWelcome")->setChecked(false);
    welcome.accept();
    QCOMPARE(welcome.chosenPath(), koalas);
    QCOMPARE(GlobalSettingsFile().value("GlobalSettings/ShowWelcome").toString(), QString("0"));
  }
};

QTEST_MAIN(SettingsTest)
#include "SettingsTest.moc"
