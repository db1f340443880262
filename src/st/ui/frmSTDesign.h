#pragma once
// Adds many ST items at once, as sensitivity studies lay them out: one
// variable over a range, a full factorial over two or three ranges, or a
// Latin hypercube sample over up to ten. The items are ordinary ST items,
// one variable per range in each.
#include <QDialog>
#include <optional>
#include <utility>
#include <vector>

#include "engine/Engine.h"
#include "model/ScenarioCollection.h"
#include "st/STScheme.h"

struct Program;
class QComboBox;
class QRadioButton;
class QSpinBox;
class QTableWidget;

class frmSTDesign : public QDialog {
  Q_OBJECT
 public:
  frmSTDesign(Program& program, tamsic::Engine& engine, const tamsic::ScenarioCollection& scenarios,
              const std::vector<std::size_t>& baselines, QWidget* parent = nullptr);

  // The items of the design, once OK has accepted it.
  const std::vector<tamsic::STItem>& items() const { return items_; }

  void accept() override;

 private:
  QWidget* buildRanges();
  void addRange();
  void removeRange();
  // From 20 % below the baseline's value to 20 % above, when both ends pass the variable's check.
  std::optional<std::pair<QString, QString>> suggestedRange(const QString& name) const;
  void showSuggestedRange(int row);
  void kindChosen();
  const tamsic::clsScenario& baseline() const;
  // The design's items, or nothing when the choices do not make one (the user was told why).
  std::optional<std::vector<tamsic::STItem>> design();
  void refuse(int number);
  QString text(int number) const;

  Program& program_;
  tamsic::Engine& engine_;
  const tamsic::ScenarioCollection& scenarios_;
  QRadioButton* optRange_ = nullptr;
  QRadioButton* optFactorial_ = nullptr;
  QRadioButton* optLatin_ = nullptr;
  QComboBox* cboBaseline_ = nullptr;
  QTableWidget* gridRanges_ = nullptr;
  QSpinBox* txtSteps_ = nullptr;
  QSpinBox* txtSamples_ = nullptr;
  QSpinBox* txtSeed_ = nullptr;
  std::vector<tamsic::STItem> items_;
};
