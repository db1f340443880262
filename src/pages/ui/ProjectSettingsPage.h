#pragma once
// The "Project Settings" tab of the project window: the project's notes, its
// users, where it lives, and the special options of its runs.
#include <QWidget>

#include "files/ProjectState.h"

struct Program;
class QLabel;
class QListWidget;
class QPlainTextEdit;

class ProjectSettingsPage : public QWidget {
  Q_OBJECT
 public:
  ProjectSettingsPage(Program& program, tamsic::ProjectState& state, QWidget* parent = nullptr);

  // Shows the file, folder and users as they are now.
  void refresh();

 signals:
  void changed();
  void addUser();
  void editUser();
  void removeUser();

 private:
  void editSpecialOptions();
  QString text(int number) const;

  Program& program_;
  tamsic::ProjectState& state_;
  QPlainTextEdit* txtNotes_ = nullptr;
  QListWidget* lstUsers_ = nullptr;
  QLabel* lblFolder_ = nullptr;
  QLabel* lblFile_ = nullptr;
};
