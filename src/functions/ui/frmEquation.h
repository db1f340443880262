#pragma once
// The function editor: composes a function from operator buttons and the
// list of variables, shows its Polish form and graphs it over a range of one
// variable before it goes into the cell or box it was opened on.
#include <QDialog>
#include <optional>

#include "engine/Engine.h"
#include "functions/FormulaHistory.h"

struct Program;
class FunctionGraphPanel;
class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

class frmEquation : public QDialog {
  Q_OBJECT
 public:
  // `cellText` is the value of the cell or box; a leading "=" is not shown.
  frmEquation(Program& program, tamsic::Engine& engine, const QString& cellText, QWidget* parent = nullptr);

  // The value for the cell: "=" and the formula, even an empty one.
  QString function() const;
  // Opens the editor on a value and answers the new one, or nothing on Cancel.
  static std::optional<QString> Edit(Program& program, tamsic::Engine& engine, const QString& cellText,
                                     QWidget* parent);

 private:
  QWidget* buildOperators();
  QWidget* buildVariables();
  void insertAtCaret(const QString& text, int caretBack);
  void showPolish();
  void showRefusal(const QString& reason, std::optional<std::size_t> at);
  void formulaEdited();
  QString text(int number) const;

  Program& program_;
  tamsic::Engine& engine_;
  tamsic::FormulaHistory history_;
  QComboBox* cboEQ_ = nullptr;
  QLabel* lblAnswer_ = nullptr;
  QListWidget* lstVars_ = nullptr;
  FunctionGraphPanel* graph_ = nullptr;
  QCheckBox* chkShowOnEquals_ = nullptr;
};
