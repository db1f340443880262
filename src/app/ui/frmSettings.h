#pragma once
// The global program settings: the welcome dialog at start, the function
// editor on "=", and the language. OK keeps them for the next start too.
#include <QDialog>

struct Program;
class QCheckBox;
class QComboBox;

class frmSettings : public QDialog {
  Q_OBJECT
 public:
  explicit frmSettings(Program& program, QWidget* parent = nullptr);

  void accept() override;

 private:
  QString text(int number) const;

  Program& program_;
  QCheckBox* chkShowWelcome_ = nullptr;
  QCheckBox* chkShowOnEquals_ = nullptr;
  QComboBox* cboLanguage_ = nullptr;
};
