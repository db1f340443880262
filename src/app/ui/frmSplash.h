#pragma once
// The splash window shown while the program starts: name, purpose, version.
// It closes with its button, or by itself a few seconds after the main frame
// is up, so that it never hides the work for long.
#include <QWidget>

struct Program;

class frmSplash : public QWidget {
  Q_OBJECT
 public:
  explicit frmSplash(Program& program, QWidget* parent = nullptr);

  // The program is ready: the "Loading..." line goes and the closing countdown starts.
  void loaded();

 private:
  class QLabel* status_ = nullptr;
};
