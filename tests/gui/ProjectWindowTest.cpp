// Opening, saving and closing projects through the main frame, its clipboard
// and undo commands, and tiling.
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "GuiTestSupport.h"
#include "app/ui/frmNewProject.h"
#include "app/ui/mdiMain.h"
#include "pages/ui/ScenarioBar.h"
#include "pages/ui/frmProject.h"

using namespace guitest;

namespace {

// Types into a box of the project window and presses Return.
void Type(frmProject* project, const char* box, const QString& text) {
  auto* line = project->findChild<QLineEdit*>(box);
  line->setFocus();
  line->selectAll();
  QTest::keyClicks(line, text);
  QTest::keyClick(line, Qt::Key_Return);
}

const std::string& Years(const frmProject* project) {
  return project->state().document.scenarios.Item(1).Text(tamsic::F("txtNumYear"));
}

}  // namespace

class ProjectWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { ClearSettings(); }

  void newProjectDialogCreatesTheFolderOrSaysWhy() {
    QTemporaryDir folder;
    TestProgram t;
    frmNewProject dialog(t.program);
    auto* dir = dialog.findChild<QLineEdit*>("txtDir");
    auto* name = dialog.findChild<QLineEdit*>("txtName");

    dir->setText(folder.filePath("a/b"));
    t.box.expect(t.textIn(1, 9107));
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));

    WriteFile(folder.filePath("plain"), "x");
    dir->setText(folder.filePath("plain/sub"));
    QTest::keyClicks(name, "Trout");
    t.box.expect(t.textIn(1, 9108));
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));

    dir->setText(folder.filePath("a/b"));
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(QFileInfo(folder.filePath("a/b")).isDir());
    QCOMPARE(dialog.request().name, QString("Trout"));
  }

  // The backups themselves are the core's (its tests rotate them); the frame
  // opens through it and keeps one window per project.
  void openingMakesABackupAndOneWindowPerProject() {
    QTemporaryDir folder;
    const QString path = folder.filePath("Koalas.tpj");
    WriteFile(path, ReadFile(Example("Koalas.tpj")));
    TestProgram t;
    mdiMain frame(t.program);
    frmProject* project = frame.openProject(path);
    QVERIFY(project != nullptr);
    QCOMPARE(project->windowTitle(), "Koalas in three fragments - " + path);
    QVERIFY(QFile::exists(path + ".bak"));
    QCOMPARE(frame.openProject(path), project);
    // A name relative to the working folder, as a file manager or a shell gives it, is the same project.
    const QString home = QDir::currentPath();
    QDir::setCurrent(folder.path());
    QCOMPARE(frame.openProject("Koalas.tpj"), project);
    QDir::setCurrent(home);
    QCOMPARE(frame.mdiArea()->subWindowList().size(), 1);
  }

  void saveAndSaveAsFollowTheTitleAndTheCaption() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frmProject* project = frame.newProject({folder.path(), "Trout", "Ann"});
    QCOMPARE(project->windowTitle(), QString("Trout - not previously saved"));

    const QString trout = folder.filePath("Trout.tpj");
    t.saveDialog.answer = trout.toStdString();
    frame.findChild<QAction*>("mniSave")->trigger();
    QCOMPARE(t.saveDialog.proposed.back(), std::string("Trout"));
    QCOMPARE(project->windowTitle(), "Trout - " + trout);
    QVERIFY(ReadFile(trout).startsWith("# TPSIG9.99"));
    QCOMPARE(RecentFile().value("MRUList/1Name").toString(), trout);

    auto* title = project->findChild<QLineEdit*>("txtProjectTitle");
    title->clear();
    QTest::keyClicks(title, "Salmon");
    QCOMPARE(project->windowTitle(), "Salmon - " + trout);
    t.box.expect(t.textIn(1, 9136), tamsic::MsgAnswer::No);
    frame.findChild<QAction*>("mniSave")->trigger();
    QVERIFY(t.box.allShown());
    QCOMPARE(project->state().FullPath(), trout.toStdString());
    QVERIFY(!project->state().Changed());

    const QString charr = folder.filePath("Char.tpj");
    t.saveDialog.answer = charr.toStdString();
    t.box.expect(t.textIn(1, 9137), tamsic::MsgAnswer::Yes);
    frame.findChild<QAction*>("mniSaveAs")->trigger();
    QCOMPARE(title->text(), QString("Char"));
    QCOMPARE(project->windowTitle(), "Char - " + charr);
    QVERIFY(QFile::exists(charr));
  }

  void brokenFilesAreReportedAndLeftAsTheyWere() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    const QString truncated = folder.filePath("Truncated.tpj");
    const QByteArray bytes = ReadFile(Example("Koalas.tpj")).left(400);
    WriteFile(truncated, bytes);
    t.box.expect(t.textIn(1, 9145));
    QVERIFY(frame.openProject(truncated) == nullptr);

    const QString foreign = folder.filePath("Notes.tpj");
    WriteFile(foreign, "Shopping list\r\n");
    t.box.expect(t.textIn(1, 9128));
    QVERIFY(frame.openProject(foreign) == nullptr);

    QVERIFY(t.box.allShown());
    QVERIFY(frame.mdiArea()->subWindowList().isEmpty());
    QCOMPARE(ReadFile(truncated), bytes);
    QCOMPARE(ReadFile(foreign), QByteArray("Shopping list\r\n"));
  }

  void editCommandsWorkOnTheFocusedControl() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frame.show();
    frame.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&frame));
    frmProject* project = frame.newProject({folder.path(), "Koalas", "Ann"});
    auto* title = project->findChild<QLineEdit*>("txtProjectTitle");
    title->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), title);

    title->selectAll();
    frame.findChild<QAction*>("mniCopy")->trigger();
    title->end(false);
    frame.findChild<QAction*>("mniPaste")->trigger();
    QCOMPARE(title->text(), QString("KoalasKoalas"));
    QCOMPARE(project->windowTitle(), QString("KoalasKoalas - not previously saved"));

    title->selectAll();
    frame.findChild<QAction*>("mniCut")->trigger();
    QCOMPARE(title->text(), QString());
    QCOMPARE(project->windowTitle(), QString("Unnamed Tamsic Project - not previously saved"));

    // Undo: the box's own first, then the page's; the menu names the edit and follows the active window.
    project = frame.newProject({folder.path(), "Trout", "Ann"});
    auto* undo = frame.findChild<QAction*>("mniUndo");
    QVERIFY(!undo->isEnabled());
    Type(project, "txtNumYear", "250");
    QVERIFY(undo->isEnabled());
    QCOMPARE(undo->text(), QString("Undo Scenario Settings"));

    auto* years = project->findChild<QLineEdit*>("txtNumYear");
    QTRY_COMPARE(QApplication::focusWidget(), years);
    years->end(false);
    QTest::keyClicks(years, "7");
    QTest::keyClick(years, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(years->text(), QString("250"));
    QCOMPARE(Years(project), std::string("250"));
    QTest::keyClick(years, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Years(project), std::string("100"));
    QCOMPARE(years->text(), QString("100"));
    QVERIFY(!undo->isEnabled());
    QTest::keyClick(years, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(Years(project), std::string("250"));
    QCOMPARE(years->text(), QString("250"));

    frame.newProject({folder.path(), "Salmon", "Ann"});
    QVERIFY(!undo->isEnabled());
    frame.mdiArea()->setActiveSubWindow(frame.mdiArea()->subWindowList().at(1));
    QVERIFY(undo->isEnabled());
  }

  // Undo back to the saved state leaves nothing to save, unless a change that
  // no undo takes back was made meanwhile.
  void undoToTheSavedStateLeavesNothingToSave() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frame.show();
    frmProject* project = frame.newProject({folder.path(), "Trout", "Ann"});
    t.saveDialog.answer = folder.filePath("Trout.tpj").toStdString();
    auto* save = frame.findChild<QAction*>("mniSave");
    auto* undo = frame.findChild<QAction*>("mniUndo");
    save->trigger();
    QVERIFY(!project->state().Changed());
    Type(project, "txtNumYear", "250");
    QVERIFY(project->state().Changed());
    undo->trigger();
    QVERIFY(!project->state().Changed());
    frame.findChild<QAction*>("mniRedo")->trigger();
    QVERIFY(project->state().Changed());
    undo->trigger();

    auto* bar = project->findChild<ScenarioBar*>();
    bar->runDialog = [](QDialog&) { return true; };
    bar->addScenarios();
    Type(project, "txtNumYear", "300");
    undo->trigger();
    QVERIFY(project->state().Changed());

    save->trigger();
    Type(project, "txtNumYear", "400");
    undo->trigger();
    QVERIFY(!project->state().Changed());
    QVERIFY(frame.close());
  }

  void tilingSharesTheFrameWithoutOverlap() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frame.show();
    frame.newProject({folder.path(), "Trout", "Ann"});
    frame.newProject({folder.path(), "Salmon", "Ann"});
    const QRect space = frame.mdiArea()->viewport()->rect();
    const auto windows = frame.mdiArea()->subWindowList();

    frame.findChild<QAction*>("mniTileV")->trigger();
    QCOMPARE(windows[0]->geometry(), QRect(0, 0, space.width() / 2, space.height()));
    QCOMPARE(windows[1]->geometry().right(), space.right());

    frame.findChild<QAction*>("mniTileH")->trigger();
    QCOMPARE(windows[0]->geometry(), QRect(0, 0, space.width(), space.height() / 2));
    QCOMPARE(windows[1]->geometry().bottom(), space.bottom());
    QVERIFY(!windows[0]->geometry().intersects(windows[1]->geometry()));
  }

  void closingAsksForChangedProjectsAndThenClosesTheEngine() {
    QTemporaryDir folder;
    TestProgram t;
    mdiMain frame(t.program);
    frame.show();
    frame.newProject({folder.path(), "Trout", "Ann"});
    frame.newProject({folder.path(), "Salmon", "Ann"});

    const auto closeProject = [&frame] { frame.findChild<QAction*>("mniCloseProject")->trigger(); };
    t.box.expect(t.textIn(1, 9185), tamsic::MsgAnswer::Cancel);
    closeProject();
    t.box.expect(t.textIn(1, 9118), tamsic::MsgAnswer::Cancel);
    QVERIFY(!frame.close());
    QVERIFY(frame.isVisible());
    QCOMPARE(t.engineClosed, 0);
    t.box.expect(t.textIn(1, 9185), tamsic::MsgAnswer::Cancel);
    closeProject();
    QCOMPARE(frame.mdiArea()->subWindowList().size(), 2);

    t.box.expect(t.textIn(1, 9118), tamsic::MsgAnswer::No);
    t.box.expect(t.textIn(1, 9118), tamsic::MsgAnswer::No);
    QVERIFY(frame.close());
    QVERIFY(t.box.allShown());
    QCOMPARE(t.engineClosed, 1);
  }
};

QTEST_MAIN(ProjectWindowTest)
#include "ProjectWindowTest.moc"
