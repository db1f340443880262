#pragma once
// The function preview: shows a function handed to it, such as one
// population's density-dependent breeding function, with its Polish form and
// its graph. It edits nothing.
#include <QDialog>

#include "engine/Engine.h"
#include "model/Messages.h"

class FunctionGraphPanel;
class QLabel;

class frmEquationPreview : public QDialog {
  Q_OBJECT
 public:
  // `function` may carry its leading "=" or not.
  frmEquationPreview(tamsic::Messages& messages, tamsic::Engine& engine, const QString& function,
                     QWidget* parent = nullptr);

 private:
  QString text(int number) const;

  tamsic::Messages& messages_;
  tamsic::Engine& engine_;
  QString formula_;
  QLabel* lblAnswer_ = nullptr;
};
