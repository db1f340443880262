#pragma once
// The fourteen input pages of a project window and the scenario they show.
// Every accepted edit is stored straight into the scenario's record together
// with what follows from it (AfterEdit) and pushed on the window's undo stack
// as the record before and after; moving to another scenario therefore only
// has to show the next record. The page links and the selector belong to the
// window; this widget says which pages are available.
#include <QWidget>
#include <array>
#include <cstddef>

#include "model/ScenarioCollection.h"
#include "pages/ui/PageContext.h"

class CopyInputValuesBar;
class InputPage;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QUndoStack;
class ScenarioSettingsPage;

class InputPages : public QWidget {
  Q_OBJECT
 public:
  static constexpr int kPageCount = 14;
  enum Page { Settings, Species, Labels, Dispersal, ReproSystem, ReproRates, Mortality, Catastrophes,
              Monopolization, InitialPopulation, CarryingCapacity, Harvest, Supplementation, Genetics };

  InputPages(const PageContext& context, tamsic::ScenarioCollection& scenarios, QUndoStack& undo,
             QWidget* parent = nullptr);
  ~InputPages() override;

  InputPage* page(int index) const { return pages_[static_cast<std::size_t>(index)]; }
  QString pageTitle(int index) const;
  // The hint of a page link.
  QString linkHint(int index) const;
  // Dispersal needs two populations, the catastrophes page one type of catastrophe.
  bool pageAvailable(int index) const;
  int currentPage() const;
  void showPage(int index);

  std::size_t currentScenario() const { return current_; }
  // Shows another scenario; the one shown is already in its record.
  void showScenario(std::size_t number);
  // Shows the current scenario again after the list changed under it.
  void reload();

  // A box or cell being typed in has not been left yet; before a save or a
  // run, leaving it checks and stores what it holds, or puts back the stored
  // value of a box that its check refuses.
  void commitPending();

  // Record <-> pages, every field.
  void storePages(tamsic::clsScenario& record) const;
  void restorePages(const tamsic::clsScenario& record);

  // Used by undo and redo: puts a record back and shows where it changed.
  void putBack(std::size_t scenario, int page, const tamsic::clsScenario& record);

  // The undo and redo commands: a text box or cell editor in focus takes back
  // what was typed in it and not yet stored; then the page's edits go back.
  void undo();
  void redo();

 protected:
  // A text box claims the undo and redo keys even with nothing of its own to
  // take back; then they go on to the commands, which take back page edits.
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void hintChanged(const QString& hint);
  void availabilityChanged();
  void pageShown(int index);
  void scenarioShown(std::size_t number);
  // A scenario was renamed.
  void scenarioNamesChanged();

 private:
  void createPages();
  void layOut();
  void wire();
  void commit(int page);
  void copyInputValues(int from, bool allSections);
  void matchMatesMeasures(const tamsic::clsScenario& before, tamsic::clsScenario& after);
  void spreadByStableAges(const tamsic::clsScenario& before, tamsic::clsScenario& after);
  void applyCrossPageRules(const tamsic::clsScenario& record);
  // The text box or cell editor of these pages that has the focus, if any.
  QLineEdit* focusedBox() const;
  // A cell editor in focus closes, storing what it holds, before the record
  // it shows changes under it; else it would store its old text over the record put back.
  void closeCellEditor();

  const PageContext& context_;
  tamsic::ScenarioCollection& scenarios_;
  QUndoStack& undo_;
  std::size_t current_ = 1;
  std::array<InputPage*, kPageCount> pages_{};
  ScenarioSettingsPage* settings_ = nullptr;
  QStackedWidget* stack_ = nullptr;
  QLabel* title_ = nullptr;
  CopyInputValuesBar* copyBar_ = nullptr;
  int populations_ = 0;
  int catastrophes_ = 0;
  bool updating_ = false;
};
