#pragma once
// The "Graphs and Tables" tab of the project window: the yearly data of the
// checked scenarios as a graph of one variable against the year, or as a
// summary table, with their exports; and the engine's deterministic
// projection of N. A scenario's file is read when a graph or table first
// needs it and kept until resultsChanged().
#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "files/ProjectState.h"
#include "results/ResultChoices.h"
#include "results/SummaryTable.h"
#include "results/YearlyData.h"

struct Program;
struct ChartLine;
class QChartView;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QTabWidget;
class QTableWidget;

class ResultsPage : public QWidget {
  Q_OBJECT
 public:
  // deterministicValues(scenario number from 1) answers the engine's detGraphValues reply
  // ("N0;N1;..." or "Error: ..."), or nothing when the call failed (the user was told).
  ResultsPage(Program& program, const tamsic::ProjectState& state,
              std::function<std::optional<std::string>(std::size_t)> deterministicValues,
              QWidget* parent = nullptr);
  // A run has replaced result files (or scenarios were added, renamed, removed):
  // forget every loaded file and refresh the scenario list; the shown graph/table is rebuilt.
  void resultsChanged();

  // What the project report and printing take from the tab: the graph and
  // the table last made (null before one is made), and which one is on show.
  QChartView* graph() const { return graphShown_ ? chtResults_ : nullptr; }
  const tamsic::Table* table() const { return tableShown_ ? &table_ : nullptr; }
  bool graphOnShow() const;

  // Where an export goes (caption, proposed file name, filter); empty when
  // the user cancels. A save-file dialog, unless a test stands in for it.
  std::function<QString(const QString& caption, const QString& proposed, const QString& filter)> askSavePath;

 private:
  QWidget* buildGraphTab();
  QWidget* buildTableTab();
  void fillScenarios();
  void refreshChoices();
  void refreshModifier();
  std::vector<std::size_t> checkedScenarios() const;
  // The scenario's data, loaded on first use; nothing when its file is
  // missing (a status line says so) or broken (message 9131, once until
  // resultsChanged).
  const tamsic::YearlyData* data(std::size_t number, QStringList& status);
  QString scenarioName(std::size_t number) const;
  tamsic::PopulationChoice populationChoice() const;

  void makeGraph();
  std::vector<ChartLine> resultLines(QStringList& status);
  std::vector<ChartLine> deterministicLines();
  void makeTable();
  void specifyColumns();
  void saveGraph();
  void exportTable();
  void copyTable();
  void showStatus(const QStringList& lines);

  Program& program_;
  const tamsic::ProjectState& state_;
  std::function<std::optional<std::string>(std::size_t)> deterministicValues_;
  std::map<std::size_t, std::optional<tamsic::YearlyData>> loaded_;
  std::vector<tamsic::PopulationEntry> populationEntries_;
  std::vector<std::string> tableVariables_;
  tamsic::Table table_;
  // What resultsChanged() rebuilds.
  bool graphShown_ = false;
  bool tableShown_ = false;

  QTabWidget* tabs_ = nullptr;
  QListWidget* lstScenarios_ = nullptr;
  QComboBox* cboPops_ = nullptr;
  QComboBox* cboGraphKind_ = nullptr;
  QComboBox* cboVars_ = nullptr;
  QComboBox* cboVarMod_ = nullptr;
  QComboBox* cboBand_ = nullptr;
  QChartView* chtResults_ = nullptr;
  QComboBox* cboRows_ = nullptr;
  QComboBox* cboCols_ = nullptr;
  QComboBox* cboYears_ = nullptr;
  QTableWidget* grdTable_ = nullptr;
  QLabel* lblStatus_ = nullptr;
};
