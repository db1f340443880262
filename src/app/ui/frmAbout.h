#pragma once
// The about window: the program's name, version and purpose.
#include <QDialog>

struct Program;

class frmAbout : public QDialog {
  Q_OBJECT
 public:
  explicit frmAbout(Program& program, QWidget* parent = nullptr);
};
