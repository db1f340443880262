#include "notes/ui/ProjectCompanions.h"

#include <QApplication>
#include <QChartView>
#include <QCloseEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTextDocument>

#include "app/ui/Program.h"
#include "engine/ui/TextOutputPage.h"
#include "notes/ReportHtml.h"
#include "notes/ui/frmNotes.h"
#include "notes/ui/frmReport.h"
#include "pages/ui/frmProject.h"
#include "results/ui/ResultsPage.h"

namespace {
constexpr int kCannotLoadNotes = 9104;

// A results table printed as the report shows it.
Printable TablePrintable(const QString& title, const tamsic::Table& table) {
  auto document = std::make_shared<QTextDocument>();
  document->setHtml(QString::fromStdString(tamsic::SummaryTableHtml(table)));
  Printable printed = Printable::Text(title, document.get());
  printed.made = document;
  return printed;
}
}  // namespace

ProjectCompanions::ProjectCompanions(Program& program, QMainWindow& frame, QMdiArea& area)
    : QObject(&frame), program_(program), frame_(frame), area_(area) {
  connect(&area_, &QMdiArea::subWindowActivated, this, &ProjectCompanions::activated);
}

void ProjectCompanions::activated(QMdiSubWindow* window) {
  auto* project = window ? qobject_cast<frmProject*>(window->widget()) : nullptr;
  if (project == nullptr) return;
  lastProject_ = project;
  if (notes_ != nullptr) notes_->follow(project);
}

void ProjectCompanions::showNotes() {
  if (lastProject_ == nullptr) {
    program_.messages.show(program_.messages.text(kCannotLoadNotes), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Exclamation);
    return;
  }
  if (notes_ == nullptr) {
    notes_ = new frmNotes(program_, &frame_);
    frame_.addDockWidget(Qt::RightDockWidgetArea, notes_);
  }
  notes_->follow(lastProject_);
  notes_->show();
  notes_->raise();
  notes_->setFocus();
}

QMdiSubWindow* ProjectCompanions::reportWindowOf(const frmProject& project) const {
  for (QMdiSubWindow* window : area_.subWindowList())
    if (auto* report = qobject_cast<frmReport*>(window->widget()); report && report->project() == &project)
      return window;
  return nullptr;
}

frmReport* ProjectCompanions::openReport(frmProject& project) {
  QMdiSubWindow* window = reportWindowOf(project);
  if (window == nullptr) {
    window = area_.addSubWindow(new frmReport(program_, project));
    window->setAttribute(Qt::WA_DeleteOnClose);
    const QSize space = area_.viewport()->size();
    window->setGeometry(space.width() / 10, space.height() / 20, space.width() * 8 / 10, space.height() * 9 / 10);
    window->show();
    project.parentWidget()->installEventFilter(this);
  }
  area_.setActiveSubWindow(window);
  return qobject_cast<frmReport*>(window->widget());
}

bool ProjectCompanions::eventFilter(QObject* watched, QEvent* event) {
  auto* window = qobject_cast<QMdiSubWindow*>(watched);
  auto* project = window ? qobject_cast<frmProject*>(window->widget()) : nullptr;
  if (project != nullptr && event->type() == QEvent::Close)
    if (QMdiSubWindow* report = reportWindowOf(*project); report && !report->close()) {
      event->ignore();
      return true;
    }
  return QObject::eventFilter(watched, event);
}

bool ProjectCompanions::notesHaveFocus() const {
  const QWidget* focus = QApplication::focusWidget();
  return notes_ != nullptr && focus != nullptr && notes_->isAncestorOf(focus);
}

bool ProjectCompanions::canPrint() const { return area_.currentSubWindow() != nullptr; }

void ProjectCompanions::print() {
  if (notesHaveFocus()) {
    notes_->print();
    return;
  }
  QMdiSubWindow* window = area_.currentSubWindow();
  if (auto* report = window ? qobject_cast<frmReport*>(window->widget()) : nullptr) {
    report->print();
    return;
  }
  const Printable what = printable();
  if (what.document != nullptr || what.view != nullptr) PrintWithDialog(&frame_, what, program_.messages);
}

Printable ProjectCompanions::printable() const {
  QMdiSubWindow* window = area_.currentSubWindow();
  if (window == nullptr || notesHaveFocus()) return {};
  const QString title = window->windowTitle().remove("[*]");
  if (auto* report = qobject_cast<frmReport*>(window->widget())) return Printable::Text(title, report->document());
  auto* project = qobject_cast<frmProject*>(window->widget());
  if (project == nullptr) return {};
  QWidget* view = project->activeView();
  if (auto* text = qobject_cast<TextOutputPage*>(view)) return Printable::Text(title, text->reportDocument());
  // Before a graph or table is made, the tab itself is what the user sees.
  if (auto* results = qobject_cast<ResultsPage*>(view)) {
    if (results->graphOnShow() && results->graph() != nullptr) return Printable::View(title, results->graph());
    if (!results->graphOnShow() && results->table() != nullptr) return TablePrintable(title, *results->table());
  }
  return Printable::View(title, view);
}
