#pragma once
// The scenario order: Up and Down swap the chosen scenario with its
// neighbour in the project's list itself.
#include <QDialog>

#include "model/ScenarioCollection.h"
#include "pages/ui/PageContext.h"

class QListWidget;
class QPushButton;

class frmScenarios : public QDialog {
  Q_OBJECT
 public:
  frmScenarios(const PageContext& context, tamsic::ScenarioCollection& scenarios, std::size_t current,
               QWidget* parent = nullptr);

  // Where the scenario that was current when the dialog opened is now.
  std::size_t followed() const { return followed_; }

  QListWidget* lstScenarios;
  QPushButton* cmdUp;
  QPushButton* cmdDown;
  QPushButton* cmdOK;

 private:
  void move(bool up);
  void fill();

  tamsic::ScenarioCollection& scenarios_;
  std::size_t followed_;
};
