#pragma once
// The run dialog: the project's scenarios, each with a check box, in project
// order. Run, Resume Run and Stepwise Run close it with the checked names and
// a run mode ("", "+" or "META"); with nothing checked they do nothing. Close
// leaves a run count of 0.
#include <QDialog>
#include <vector>

#include "engine/RunList.h"

struct Program;
class QCheckBox;
class QListWidget;

class frmSimRun : public QDialog {
  Q_OBJECT
 public:
  frmSimRun(Program& program, const QStringList& scenarios, QWidget* parent = nullptr);

  // Checks these scenarios, numbered from 1 in list order.
  void check(const std::vector<std::size_t>& scenarios);

  const tamsic::RunList& runList() const { return runList_; }
  const QString& runMode() const { return runMode_; }

 private:
  void confirm(const QString& mode);
  QString text(int number) const;

  Program& program_;
  QListWidget* lstScenarios_ = nullptr;
  QCheckBox* Check1_ = nullptr;
  tamsic::RunList runList_;
  QString runMode_;
};
