#pragma once
// What accompanies the project windows of the main frame: the notes window,
// which follows the project window last active; each project's report
// window, which closes before its project does; and printing what the user
// is looking at: the notes while they have the focus, else the report when
// its window is active, else the active project window's view.
#include <QObject>
#include <QPointer>

#include "notes/ui/Printing.h"

struct Program;
class QMainWindow;
class QMdiArea;
class QMdiSubWindow;
class frmNotes;
class frmProject;
class frmReport;

class ProjectCompanions : public QObject {
  Q_OBJECT
 public:
  ProjectCompanions(Program& program, QMainWindow& frame, QMdiArea& area);

  // The notes of the project window last active; without one the user is told.
  void showNotes();
  frmNotes* notes() const { return notes_; }
  // The project's report window, opened or brought to the front.
  frmReport* openReport(frmProject& project);

  // Whether there is a window whose contents can be printed.
  bool canPrint() const;
  void print();
  // What print() prints of a project or report window; empty when the notes have the focus.
  Printable printable() const;

 protected:
  // A project window about to close has its report window close first, and
  // stays open when that one does (the user cancelled saving the report).
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void activated(QMdiSubWindow* window);
  QMdiSubWindow* reportWindowOf(const frmProject& project) const;
  bool notesHaveFocus() const;

  Program& program_;
  QMainWindow& frame_;
  QMdiArea& area_;
  frmNotes* notes_ = nullptr;
  QPointer<frmProject> lastProject_;
};
