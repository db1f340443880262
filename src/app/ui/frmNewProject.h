#pragma once
// The new-project dialog: the folder, the project's name and the user's name,
// for a blank project or one that starts from a template.
#include <QDialog>

#include "app/ui/NewProjectRequest.h"

struct Program;
class QLineEdit;

class frmNewProject : public QDialog {
  Q_OBJECT
 public:
  explicit frmNewProject(Program& program, QWidget* parent = nullptr, QString fromTemplate = {});

  NewProjectRequest request() const;
  // Creates the folder; refuses an empty name, or a folder that cannot be made, with the reason.
  void accept() override;

 private:
  void browse();
  QString text(int number) const;

  Program& program_;
  QLineEdit* txtDir_ = nullptr;
  QLineEdit* txtName_ = nullptr;
  QLineEdit* txtUser_ = nullptr;
  QString fromTemplate_;
};
