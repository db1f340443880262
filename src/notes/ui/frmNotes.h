#pragma once
// The notes window: a rich-text note on the input page on show, for the
// scenario on show, in the project window that was last active. It follows
// that window's page and scenario. Each change is stored in the scenario's
// record at once (NoteCoding gives the record the file's form of it), so a
// save, a run, another scenario or a copy of the scenario always finds it.
// Without a project window it says so and takes no typing.
#include <QDockWidget>
#include <QPointer>
#include <cstddef>

struct Program;
class NoteEdit;
class QLabel;
class QTextDocument;
class frmProject;

class frmNotes : public QDockWidget {
  Q_OBJECT
 public:
  explicit frmNotes(Program& program, QWidget* parent = nullptr);

  // The project window whose notes are shown; null when there is none.
  void follow(frmProject* project);
  frmProject* project() const { return project_; }
  QTextDocument* document() const;

  // Saves the project; without one the user is told.
  void save();
  // Prints the note through the print dialog; an empty note is told.
  void print();

 private:
  QWidget* buildButtons(QWidget* parent);
  // Shows the note of the project window's scenario and page on show.
  void showNote();
  void store();
  QString text(int number) const;

  Program& program_;
  QPointer<frmProject> project_;
  QMetaObject::Connection following_;
  QMetaObject::Connection ending_;
  std::size_t scenario_ = 0;
  int page_ = 0;
  QLabel* lblScenario_ = nullptr;
  QLabel* lblSection_ = nullptr;
  NoteEdit* txtNotes_ = nullptr;
  bool updating_ = false;
};
