#pragma once
// The scenario strip of the project window: previous, selector, next, and
// the commands that add, delete and reorder scenarios. Renaming happens in
// txtSceneName on the first page. Adding, deleting and reordering cannot be
// undone (deleting says so); they clear the window's undo history, whose
// entries address scenarios by number.
#include <QWidget>
#include <functional>

#include "model/ScenarioCollection.h"
#include "pages/ui/PageContext.h"

class InputPages;
class QComboBox;
class QDialog;
class QPushButton;
class QToolButton;
class QUndoStack;

class ScenarioBar : public QWidget {
  Q_OBJECT
 public:
  ScenarioBar(const PageContext& context, tamsic::ScenarioCollection& scenarios, InputPages& pages,
              QUndoStack& undo, QWidget* parent = nullptr);

  void addScenarios();
  void deleteScenario();
  void reorderScenarios();
  void previous();
  void next();

  // Fills the selector with the names in list order and marks the current scenario.
  void UpdateScenarioSelector();
  void EnableDisableNav();

  // Shows a dialog and answers whether it was accepted; tests put in their own.
  std::function<bool(QDialog& dialog)> runDialog;

  QToolButton* cmdPrevScene;
  QComboBox* cboScenario;
  QToolButton* cmdNextScene;
  QPushButton* cmdAddScene;
  QPushButton* cmdDeleteScene;
  QPushButton* cmdSceneFrm;

 signals:
  // Scenarios were added, deleted or put in another order.
  void scenarioListChanged();

 private:
  void layOut();
  void wire();
  void select(int index);
  void listChanged(std::size_t show);

  const PageContext& context_;
  tamsic::ScenarioCollection& scenarios_;
  InputPages& pages_;
  QUndoStack& undo_;
  bool updating_ = false;
};
