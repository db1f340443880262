#pragma once
// The sensitivity-testing window of a project: the scheme's items, each a
// label, a baseline scenario and the variables to change with their values;
// designs that add many items at once; generating the "ST." scenarios and
// running them; and the analysis of their results. The window edits its own
// copy of the scheme; the project takes it over when its scenarios are
// generated, when they are run, and on OK.
#include <QDialog>
#include <functional>
#include <vector>

#include "engine/Engine.h"
#include "files/ProjectState.h"
#include "st/STSchemeEditor.h"

struct Program;
class QLabel;
class QPushButton;
class QTableWidget;
class QTabWidget;
class STAnalysisPanel;

class frmSTSetup : public QDialog {
  Q_OBJECT
 public:
  // What the project window does for the window.
  struct Project {
    // Takes the scheme over and generates its scenarios; false when nothing changed (the user was told why).
    std::function<bool(const tamsic::STScheme&)> generate;
    // Runs the generated scenarios through the run dialog.
    std::function<void()> run;
  };

  frmSTSetup(Program& program, tamsic::Engine& engine, const tamsic::ProjectState& state, Project project,
             QWidget* parent = nullptr);

  const tamsic::STScheme& scheme() const { return editor_.scheme(); }

 protected:
  void reject() override;

 private:
  QWidget* buildItemsTab();
  QWidget* buildCommands();
  void wire();

  void showItems(int select);
  void showVariables();
  int currentItem() const;
  int currentVariable() const;

  void addItem();
  void duplicateItem();
  void deleteItem();
  void addDesign();
  void addVariable();
  void removeVariable();
  void labelEdited(int row);
  void valueEdited(int row);

  // Generates when the scheme differs from the project's; false when that failed.
  bool generateIfChanged();
  void generate();
  void run();
  void accept() override;
  void refreshStatus();

  QString text(int number) const;
  QString scenarioName(std::size_t number) const;

  Program& program_;
  tamsic::Engine& engine_;
  const tamsic::ProjectState& state_;
  Project project_;
  tamsic::STSchemeEditor editor_;
  QTabWidget* tabs_ = nullptr;
  QTableWidget* gridItems_ = nullptr;
  QTableWidget* gridVars_ = nullptr;
  QPushButton* cmdDuplicateItem_ = nullptr;
  QPushButton* cmdDeleteItem_ = nullptr;
  QPushButton* cmdAddVar_ = nullptr;
  QPushButton* cmdRemoveVar_ = nullptr;
  QLabel* lblStatus_ = nullptr;
  STAnalysisPanel* analysis_ = nullptr;
  // Set while the window fills its tables, whose change signals are then not edits.
  bool filling_ = false;
};
