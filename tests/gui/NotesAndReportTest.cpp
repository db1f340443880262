// The notes window, the project report and printing, as a user meets them:
// notes typed on two pages come back after saving and reopening, whatever
// they hold; the report keeps its text, tables and pictures in its file and
// leaves another program's Rich Text file alone; printing writes PDF files.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTextDocument>
#include <QTextTable>
#include <QToolBar>
#include <QToolButton>

#include "GuiTestSupport.h"
#include "app/ui/mdiMain.h"
#include "notes/ui/NoteText.h"
#include "notes/ui/Printing.h"
#include "notes/ui/ProjectCompanions.h"
#include "notes/ui/frmNotes.h"
#include "notes/ui/frmReport.h"
#include "pages/ui/frmProject.h"
#include "results/ui/ResultsPage.h"

using namespace guitest;

namespace {

// The control of that name, or the only one of its type.
template <typename T>
T* Find(const QObject* parent, const char* name = nullptr) {
  T* found = parent->findChild<T*>(name ? QString(name) : QString());
  if (found == nullptr) qFatal("no control %s", name ? name : T::staticMetaObject.className());
  return found;
}

// Types as a keyboard would, letters beyond ASCII included.
void Type(QWidget* widget, const QString& text) {
  for (const QChar letter : text) {
    if (letter == '\n')
      QTest::keyClick(widget, Qt::Key_Return);
    else
      QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(letter), Qt::NoModifier);
  }
}

// Presses a button of the main frame's toolbar, which dispatches on the button's key.
void PressToolbar(mdiMain& frame, const char* key) {
  auto* toolbar = Find<QToolBar>(&frame, "tbrMain");
  qobject_cast<QToolButton*>(toolbar->widgetForAction(Find<QAction>(&frame, key)))->click();
}

QString CopyOfKoalas(const QTemporaryDir& folder) {
  const QString path = folder.filePath("Koalas.tpj");
  QFile::copy(Example("Koalas.tpj"), path);
  return path;
}

void ShowPage(frmProject* project, int page) { Find<QListWidget>(project, "hypInput")->setCurrentRow(page); }

// Closes a report window and lets it go, so that the next one is a new window.
void CloseReport(frmReport* report) {
  report->parentWidget()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Whether the editor shows the first letter of `text` in bold.
bool BoldAt(const QTextDocument& document, const QString& text) {
  QTextCursor cursor(const_cast<QTextDocument*>(&document));
  cursor.setPosition(static_cast<int>(document.toPlainText().indexOf(text)) + 1);
  return cursor.charFormat().fontWeight() > QFont::Normal;
}

QImage FirstImage(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it)
      if (it.fragment().charFormat().isImageFormat()) {
        const QVariant picture =
            document.resource(QTextDocument::ImageResource, QUrl(it.fragment().charFormat().toImageFormat().name()));
        return picture.typeId() == QMetaType::QByteArray ? QImage::fromData(picture.toByteArray())
                                                           : picture.value<QImage>();
      }
  return {};
}

bool HasTable(const QTextDocument& document) {
  for (QTextFrame* frame : document.rootFrame()->childFrames())
    if (qobject_cast<QTextTable*>(frame) != nullptr) return true;
  return false;
}

bool IsPdf(const QString& path) {
  const QByteArray bytes = ReadFile(path);
  return bytes.startsWith("%PDF") && bytes.size() > 1000;
}

}  // namespace

class NotesAndReportTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { ClearSettings(); }

  void notesFollowThePageAndComeBackAsTyped() {
    QTemporaryDir folder;
    const QString path = CopyOfKoalas(folder);
    TestProgram t;
    mdiMain frame(t.program);
    frame.show();
    t.box.expect(t.textIn(1, 9104));
    PressToolbar(frame, "tblNotes");

    frmProject* project = frame.openProject(path);
    PressToolbar(frame, "tblNotes");
    auto* notes = Find<frmNotes>(&frame);
    auto* editor = Find<NoteEdit>(notes, "txtNotes");
    // A page edit before the note, which undo takes back without the note.
    auto* years = Find<QLineEdit>(project, "txtNumYear");
    years->setFocus();
    years->selectAll();
    QTest::keyClicks(years, "77");
    QTest::keyClick(years, Qt::Key_Return);
    QCOMPARE(project->state().document.scenarios.Item(1).Text(tamsic::F("txtNumYear")), std::string("77"));
    const QString first = QString::fromUtf8("Dry #1; \"wet\": ü ý 袋熊 `x` 50%");
    Type(editor, first + "\n");
    Find<QAction>(notes, "cmdBold")->trigger();
    QTest::keyClicks(editor, "Bold koala");
    QVERIFY(project->state().Changed());
    QVERIFY(project->windowTitle().contains("Koalas"));
    Find<QAction>(&frame, "mniUndo")->trigger();
    QCOMPARE(project->state().document.scenarios.Item(1).Text(tamsic::F("txtNumYear")), std::string("100"));
    QCOMPARE(editor->toPlainText(), first + "\nBold koala");
    Find<QAction>(notes, "cmdBullets")->trigger();
    Find<QAction>(notes, "cmdBold")->trigger();
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClicks(editor, "second item");
    const QString typed = editor->document()->toHtml();

    ShowPage(project, 6);
    QCOMPARE(Find<QLabel>(notes, "lblSection")->text(), project->pageTitle(6));
    QVERIFY(editor->toPlainText().isEmpty());
    const QString second = QString::fromUtf8("Mortality: Коала ;  two blanks\n  ");
    editor->setPlainText(second);
    project->showScenario(2);
    QVERIFY(editor->toPlainText().isEmpty());
    project->showScenario(1);
    QCOMPARE(editor->toPlainText(), second);

    t.box.expect(t.textIn(1, 9136), tamsic::MsgAnswer::No);
    Find<QPushButton>(notes, "cmdSave")->click();
    QVERIFY(!project->state().Changed());
    frame.mdiArea()->closeAllSubWindows();
    QTRY_VERIFY(notes->project() == nullptr);
    QVERIFY(!editor->isEnabled());
    t.box.expect(t.textIn(1, 9102));
    Find<QPushButton>(notes, "cmdSave")->click();

    project = frame.openProject(path);
    QCOMPARE(notes->project(), project);
    // The same paragraphs, lists, spacing and formats as typed.
    QCOMPARE(editor->document()->toHtml(), typed);
    QVERIFY(BoldAt(*editor->document(), "Bold koala"));
    QVERIFY(!BoldAt(*editor->document(), "Dry"));
    ShowPage(project, 6);
    QCOMPARE(editor->toPlainText(), second);
    QVERIFY(!project->state().Changed());
  }

  void theReportKeepsItsFileAndLeavesAnotherProgramsAlone() {
    QTemporaryDir folder;
    const QString path = CopyOfKoalas(folder);
    TestProgram t;
    mdiMain frame(t.program);
    frame.show();
    frmProject* project = frame.openProject(path);
    Find<QPushButton>(project, "cmdReport")->click();
    auto* report = Find<frmReport>(&frame);
    QCOMPARE(report->path(), folder.filePath("Koalas_report.rtf"));
    QVERIFY(!report->isWindowModified());
    auto* editor = Find<QTextEdit>(report, "txtReport");
    QTest::keyClicks(editor, "Koalas: what we found");
    QVERIFY(report->isWindowModified());
    QTest::keyClick(editor, Qt::Key_Return);
    report->insertScenarios();
    Find<QPushButton>(project->results(), "cmdMakeGraph")->click();
    report->insertGraph();
    QVERIFY(report->save());
    QVERIFY(!report->isWindowModified());
    QVERIFY(ReadFile(report->path()).contains("data:image/png;base64,"));
    CloseReport(report);

    Find<QPushButton>(project, "cmdReport")->click();
    report = Find<frmReport>(&frame);
    editor = Find<QTextEdit>(report, "txtReport");
    QVERIFY(editor->toPlainText().startsWith("Koalas: what we found"));
    QVERIFY(editor->toPlainText().contains("Baseline"));
    QVERIFY(HasTable(*editor->document()));
    QVERIFY(FirstImage(*editor->document()).width() > 100);

    // Reloading over changes asks first; a file that has gone is told.
    QTest::keyClicks(editor, "more");
    t.box.expect(t.textIn(1, 9120), tamsic::MsgAnswer::No);
    report->reload();
    QVERIFY(editor->toPlainText().startsWith("more"));
    t.box.expect(t.textIn(1, 9120), tamsic::MsgAnswer::Yes);
    report->reload();
    QVERIFY(editor->toPlainText().startsWith("Koalas"));
    QFile::rename(report->path(), report->path() + ".away");
    t.box.expect(t.textIn(1, 9127));
    report->reload();
    CloseReport(report);

    // Another program's Rich Text file is never replaced unasked.
    const QByteArray rtf = "{\\rtf1\\ansi Field notes of 2019\\par}";
    WriteFile(folder.filePath("Koalas_report.rtf"), rtf);
    t.box.expect(t.textIn(1, 9189));
    Find<QPushButton>(project, "cmdReport")->click();
    report = Find<frmReport>(&frame);
    editor = Find<QTextEdit>(report, "txtReport");
    QVERIFY(editor->toPlainText().isEmpty());
    QTest::keyClicks(editor, "new report");
    t.box.expect(t.textIn(1, 9190), tamsic::MsgAnswer::No);
    QVERIFY(!report->save());
    QCOMPARE(ReadFile(report->path()), rtf);

    // A file that cannot be written is named, with the reason; the report keeps its changes.
    const QString nowhere = folder.filePath("gone/report.rtf");
    report->askSavePath = [&](const QString&, const QString&, const QString&) { return nowhere; };
    t.box.expect(t.textIn(1, 9191));
    QVERIFY(!report->saveAs());
    QVERIFY(QString::fromStdString(t.box.shown.back().text).contains(nowhere));
    QVERIFY(report->document()->isModified());

    t.box.expect(t.textIn(1, 9192), tamsic::MsgAnswer::Yes);
    t.box.expect(t.textIn(1, 9190), tamsic::MsgAnswer::Yes);
    QVERIFY(report->parentWidget()->close());
    QVERIFY(ReadFile(folder.filePath("Koalas_report.rtf")).contains("new report"));
  }

  void printingWritesTheReportAndAnInputPageAsPdf() {
    QTemporaryDir folder;
    const QString path = CopyOfKoalas(folder);
    TestProgram t;
    mdiMain frame(t.program);
    frame.show();
    auto* mniPrint = Find<QAction>(&frame, "mniPrint");
    QVERIFY(!mniPrint->isEnabled());
    frmProject* project = frame.openProject(path);
    QVERIFY(mniPrint->isEnabled());
    ShowPage(project, 6);
    const Printable page = Find<ProjectCompanions>(&frame)->printable();
    QCOMPARE(page.view, project->activeView());
    QVERIFY(ExportPdf(page, folder.filePath("page.pdf")));
    QVERIFY(IsPdf(folder.filePath("page.pdf")));

    Find<QPushButton>(project, "cmdReport")->click();
    auto* report = Find<frmReport>(&frame);
    report->insertScenarios();
    QCOMPARE(Find<ProjectCompanions>(&frame)->printable().document, report->document());
    report->askSavePath = [&](const QString&, const QString&, const QString&) { return folder.filePath("r.pdf"); };
    report->exportPdf();
    QVERIFY(IsPdf(folder.filePath("r.pdf")));
    t.box.expect(t.textIn(1, 9194));
    report->askSavePath = [&](const QString&, const QString&, const QString&) { return folder.filePath("no/r.pdf"); };
    report->exportPdf();
    report->document()->setModified(false);
  }
};

QTEST_MAIN(NotesAndReportTest)
#include "NotesAndReportTest.moc"
