#pragma once
// The analysis of a sensitivity test, for the ST window to embed: the
// chosen result (variable, statistic, year, population) of every ST
// scenario as a table and a graph grouped by ST level, by variable or by
// scheme, the ranking of the varied inputs as a tornado chart, and the
// items that have no results, with the reason. The files are read by
// setProject; changing a choice only redraws.
#include <QWidget>
#include <functional>

#include "engine/Engine.h"
#include "files/ProjectState.h"
#include "st/STAnalysisViews.h"
#include "st/STScheme.h"

struct Program;
class QChartView;
class QComboBox;
class QLabel;
class QListWidget;
class QTableWidget;
class QTabWidget;

class STAnalysisPanel : public QWidget {
  Q_OBJECT
 public:
  STAnalysisPanel(Program& program, tamsic::Engine& engine, QWidget* parent = nullptr);
  // Reads the results of the scheme's ST scenarios anew (after a run, or for another scheme).
  void setProject(const tamsic::ProjectState& state, const tamsic::STScheme& scheme);

  // Where an export goes (caption, proposed file name, filter); empty when
  // the user cancels. A save-file dialog, unless a test stands in for it.
  std::function<QString(const QString& caption, const QString& proposed, const QString& filter)> askSavePath;

 private:
  QWidget* buildChoices();
  QWidget* buildTableTab();
  QWidget* buildGraphTab();
  QWidget* buildRankingTab();
  void fillChoices();
  void refresh();
  tamsic::STResultChoice choice() const;
  void showTable();
  void showRanking(const tamsic::STRanking& ranked);
  void showMissing();
  void exportTable();
  void saveChart(QChartView& view, const QString& suffix);
  void writeFailed(const QString& path, const std::string& why);

  Program& program_;
  tamsic::Engine& engine_;
  tamsic::STAnalysisData analysis_;
  tamsic::STView view_;
  std::string folder_;  // where the exports are proposed
  QString title_;       // the project's, for the proposed names of pictures

  QComboBox* cboVars_ = nullptr;
  QComboBox* cboVarMod_ = nullptr;
  QComboBox* cboYears_ = nullptr;
  QComboBox* cboPops_ = nullptr;
  QComboBox* cboGroup_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  QTableWidget* grdTable_ = nullptr;
  QChartView* chtGraph_ = nullptr;
  QChartView* chtTornado_ = nullptr;
  QLabel* lblRanking_ = nullptr;
  QLabel* lblMissing_ = nullptr;
  QListWidget* lstMissing_ = nullptr;
};
