#include "notes/ui/frmReport.h"

#include <QBuffer>
#include <QChartView>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "files/AtomicFile.h"
#include "files/ProjectFile.h"
#include "model/Errors.h"
#include "notes/ReportFile.h"
#include "notes/ReportHtml.h"
#include "notes/ui/FormatBar.h"
#include "notes/ui/Printing.h"
#include "pages/ui/frmProject.h"
#include "results/ui/ResultsPage.h"

namespace {

constexpr int kTitle = 7007;
constexpr int kSave = 7003;
constexpr int kPrint = 7004;
constexpr int kReload = 7009;
constexpr int kSaveAs = 7010;
constexpr int kExportPdf = 7011;
constexpr int kInsert = 7012;
constexpr int kScenarios = 7013;
constexpr int kSummaryTable = 7014;
constexpr int kGraph = 7015;
constexpr int kSaveHint = 7026;
constexpr int kSaveAsHint = 7027;
constexpr int kReloadHint = 7028;
constexpr int kPrintHint = 7029;
constexpr int kExportPdfHint = 7032;
constexpr int kPdfFiles = 7033;
constexpr int kInsertHint = 7034;
constexpr int kReportFiles = 7035;

constexpr int kOverwrite = 9120;
constexpr int kFileMissing = 9127;
constexpr int kForeignFile = 9189;
constexpr int kReplaceForeign = 9190;
constexpr int kNotSaved = 9191;
constexpr int kSaveBeforeClosing = 9192;
constexpr int kNotRead = 9193;
constexpr int kCannotPrint = 9194;

// A graph fits the width of a printed page.
constexpr QSize kGraphSize(680, 425);

// The picture inside the report's one file: its name is its own data.
QString DataUrl(const QImage& image) {
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return "data:image/png;base64," + QString::fromLatin1(png.toBase64());
}

}  // namespace

frmReport::frmReport(Program& program, frmProject& project, QWidget* parent)
    : QWidget(parent), program_(program), project_(&project) {
  setObjectName("frmReport");
  askSavePath = [this](const QString& caption, const QString& proposed, const QString& filter) {
    return QFileDialog::getSaveFileName(this, caption, proposed, filter);
  };
  path_ = QString::fromStdString(tamsic::ReportPath(project.state()));
  txtReport_ = new QTextEdit(this);
  txtReport_->setObjectName("txtReport");
  auto* column = new QVBoxLayout(this);
  column->addWidget(buildCommands());
  column->addWidget(new FormatBar(*txtReport_, [this](int number) { return text(number); }, this));
  column->addWidget(txtReport_, 1);
  // The editor's own signal: loading may give it a new document.
  connect(txtReport_, &QTextEdit::textChanged, this, [this] { setWindowModified(document()->isModified()); });
  load();
}

QWidget* frmReport::buildCommands() {
  auto* bar = new QToolBar(this);
  bar->setObjectName("tbrReport");
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const auto add = [this, bar](const char* name, const char* icon, int caption, int hint) {
    QAction* item = bar->addAction(QIcon::fromTheme(icon), text(caption));
    item->setObjectName(name);
    item->setToolTip(text(hint));
    return item;
  };
  connect(add("cmdSaveReport", "document-save", kSave, kSaveHint), &QAction::triggered, this, &frmReport::save);
  connect(add("cmdSaveReportAs", "document-save-as", kSaveAs, kSaveAsHint), &QAction::triggered, this,
          &frmReport::saveAs);
  connect(add("cmdReload", "view-refresh", kReload, kReloadHint), &QAction::triggered, this, &frmReport::reload);
  bar->addSeparator();
  connect(add("cmdPrintReport", "document-print", kPrint, kPrintHint), &QAction::triggered, this, &frmReport::print);
  connect(add("cmdExportPdf", "x-office-document", kExportPdf, kExportPdfHint), &QAction::triggered, this,
          &frmReport::exportPdf);
  bar->addSeparator();
  auto* insert = new QToolButton(bar);
  insert->setObjectName("cmdInsert");
  insert->setText(text(kInsert));
  insert->setToolTip(text(kInsertHint));
  insert->setIcon(QIcon::fromTheme("insert-object"));
  insert->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  insert->setPopupMode(QToolButton::InstantPopup);
  insert->setMenu(buildInsertMenu(insert));
  bar->addWidget(insert);
  return bar;
}

// The table and the graph are offered once the results tab has made them.
QMenu* frmReport::buildInsertMenu(QWidget* parent) {
  auto* menu = new QMenu(parent);
  menu->setObjectName("mnuInsert");
  const auto add = [this, menu](const char* name, int caption, void (frmReport::*insert)()) {
    QAction* item = menu->addAction(text(caption));
    item->setObjectName(name);
    connect(item, &QAction::triggered, this, insert);
    return item;
  };
  QAction* scenarios = add("mniInsertScenarios", kScenarios, &frmReport::insertScenarios);
  QAction* table = add("mniInsertTable", kSummaryTable, &frmReport::insertSummaryTable);
  QAction* graph = add("mniInsertGraph", kGraph, &frmReport::insertGraph);
  connect(menu, &QMenu::aboutToShow, this, [this, scenarios, table, graph] {
    ResultsPage* results = project_ ? project_->results() : nullptr;
    scenarios->setEnabled(project_ != nullptr);
    table->setEnabled(results != nullptr && results->table() != nullptr);
    graph->setEnabled(results != nullptr && results->graph() != nullptr);
  });
  return menu;
}

QTextDocument* frmReport::document() const { return txtReport_->document(); }

void frmReport::load() {
  replaceQuestion_ = 0;
  txtReport_->clear();
  const std::string file = path_.toStdString();
  if (tamsic::FileExists(file)) {
    try {
      const std::string bytes = tamsic::ReadReportFile(file);
      const QString contents = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
      if (tamsic::IsRtf(bytes)) {
        replaceQuestion_ = kReplaceForeign;
        program_.messages.show(program_.messages.text(kForeignFile) + "\n\n" + file, tamsic::msg::kWarning,
                               tamsic::MsgIcon::Exclamation);
      } else if (Qt::mightBeRichText(contents)) {
        txtReport_->setHtml(contents);
      } else {
        txtReport_->setPlainText(contents);
      }
    } catch (const tamsic::FileError& error) {
      replaceQuestion_ = kOverwrite;
      program_.messages.show(program_.messages.text(kNotRead) + "\n\n" + error.what(), tamsic::msg::kError,
                             tamsic::MsgIcon::Critical);
    }
  }
  txtReport_->document()->setModified(false);
  txtReport_->document()->clearUndoRedoStacks();
  refreshCaption();
}

void frmReport::reload() {
  if (!tamsic::FileExists(path_.toStdString())) {
    program_.messages.show(program_.messages.text(kFileMissing) + "\n\n" + path_.toStdString(),
                           tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return;
  }
  if (document()->isModified() &&
      program_.messages.show(program_.messages.text(kOverwrite), tamsic::msg::kConfirmation,
                             tamsic::MsgIcon::Question, tamsic::MsgButtons::YesNo) != tamsic::MsgAnswer::Yes)
    return;
  load();
}

bool frmReport::save() {
  if (replaceQuestion_ != 0 &&
      program_.messages.show(program_.messages.text(replaceQuestion_) + "\n\n" + path_.toStdString(),
                             tamsic::msg::kConfirmation, tamsic::MsgIcon::Question,
                             tamsic::MsgButtons::YesNo) != tamsic::MsgAnswer::Yes)
    return false;
  return writeTo(path_);
}

bool frmReport::saveAs() {
  const QString chosen = askSavePath(text(kSaveAs), path_, text(kReportFiles) + " (*.rtf *.html)");
  if (chosen.isEmpty()) return false;
  // Another program's Rich Text file under the chosen name is asked about as the report's own is.
  const std::string file = chosen.toStdString();
  if (chosen != path_ && tamsic::FileExists(file)) {
    try {
      if (tamsic::IsRtf(tamsic::ReadReportFile(file)) &&
          program_.messages.show(program_.messages.text(kReplaceForeign) + "\n\n" + file, tamsic::msg::kConfirmation,
                                 tamsic::MsgIcon::Question, tamsic::MsgButtons::YesNo) != tamsic::MsgAnswer::Yes)
        return false;
    } catch (const tamsic::FileError&) {
      // Writing tells what is wrong with the file.
    }
  }
  return writeTo(chosen);
}

// The report keeps its name in the project file when it is not the one the project's own name gives.
bool frmReport::writeTo(const QString& path) {
  try {
    tamsic::WriteFileReplacing(path.toStdString(), document()->toHtml().toStdString());
  } catch (const tamsic::FileError& error) {
    program_.messages.show(program_.messages.text(kNotSaved) + "\n\n" + error.what(), tamsic::msg::kError,
                           tamsic::MsgIcon::Critical);
    return false;
  }
  path_ = path;
  replaceQuestion_ = 0;
  document()->setModified(false);
  if (project_ != nullptr) {
    const std::string& projectFile = project_->state().FullPath();
    if (projectFile.empty() || path.toStdString() != tamsic::DefaultReportLocation(projectFile))
      project_->setReportLocation(path.toStdString());
  }
  refreshCaption();
  return true;
}

void frmReport::print() {
  PrintWithDialog(this, Printable::Text(windowTitle().remove("[*]"), document()), program_.messages);
}

void frmReport::exportPdf() {
  const QString proposed = QFileInfo(path_).path() + "/" + QFileInfo(path_).completeBaseName() + ".pdf";
  const QString chosen = askSavePath(text(kExportPdf), proposed, text(kPdfFiles) + " (*.pdf)");
  if (chosen.isEmpty()) return;
  if (!ExportPdf(Printable::Text(windowTitle().remove("[*]"), document()), chosen))
    program_.messages.show(program_.messages.text(kCannotPrint) + chosen.toStdString(), tamsic::msg::kError,
                           tamsic::MsgIcon::Critical);
}

void frmReport::insertScenarios() {
  if (project_ == nullptr) return;
  const auto& scenarios = project_->state().document.scenarios;
  txtReport_->textCursor().insertHtml(QString::fromStdString(tamsic::ScenarioInputsHtml(scenarios, program_.strings)));
}

void frmReport::insertSummaryTable() {
  const tamsic::Table* table = project_ ? project_->results()->table() : nullptr;
  if (table != nullptr) txtReport_->textCursor().insertHtml(QString::fromStdString(tamsic::SummaryTableHtml(*table)));
}

// The graph is drawn afresh at the size of a printed page's width, so its
// words are as large as on screen; the view then gets its own size back.
void frmReport::insertGraph() {
  QChartView* view = project_ ? project_->results()->graph() : nullptr;
  if (view == nullptr) return;
  const QSize shown = view->size();
  view->resize(kGraphSize);
  const QImage image = view->grab().toImage();
  view->resize(shown);
  const QString name = DataUrl(image);
  document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
  txtReport_->textCursor().insertImage(name);
}

void frmReport::refreshCaption() {
  setWindowTitle(text(kTitle) + " - " + path_ + "[*]");
  setWindowModified(document()->isModified());
}

void frmReport::closeEvent(QCloseEvent* event) {
  if (document()->isModified()) {
    auto& messages = program_.messages;
    const auto answer = messages.show(messages.text(kSaveBeforeClosing) + "\n\n" + path_.toStdString(),
                                      tamsic::msg::kConfirmation, tamsic::MsgIcon::Question,
                                      tamsic::MsgButtons::YesNoCancel);
    if (answer == tamsic::MsgAnswer::Cancel || (answer == tamsic::MsgAnswer::Yes && !save())) {
      event->ignore();
      return;
    }
    // Asked once: closing the program closes this window again.
    document()->setModified(false);
  }
  event->accept();
}

QString frmReport::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
