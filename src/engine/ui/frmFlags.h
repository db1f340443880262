#pragma once
// The special options of a project: ten switches, three of them with a value
// box, and further codes typed by the user. The dialog edits a copy; OK makes
// it the project's accepted state, Cancel leaves that state as it was.
#include <QDialog>
#include <array>

#include "files/ProjectDocument.h"

struct Program;
class QCheckBox;
class QLineEdit;

class frmFlags : public QDialog {
  Q_OBJECT
 public:
  frmFlags(Program& program, const tamsic::SpecialOptions& accepted, QWidget* parent = nullptr);

  // The options as the controls stand now.
  tamsic::SpecialOptions options() const;
  // The options string the engine would receive from the controls as they stand.
  QString Flags() const;

 private:
  QWidget* buildSwitch(int index);
  QString text(int number) const;

  Program& program_;
  std::array<QCheckBox*, 10> chkAdditional_{};
  std::array<QLineEdit*, 10> txtAdditional_{};  // only 1, 6 and 8 have one
  QLineEdit* txtUndoc_ = nullptr;
};
