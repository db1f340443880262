#pragma once
// The graph part that the function editor and the function preview share:
// the variable on the x axis, the range boxes, the update button and the
// chart. It asks the engine for the values of whatever formula its owner
// hands it, and tells the owner where the engine found the formula wrong.
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "engine/Engine.h"
#include "model/Messages.h"

class QChartView;
class QComboBox;
class QLineEdit;
class QPushButton;

class FunctionGraphPanel : public QWidget {
  Q_OBJECT
 public:
  // The message numbers of the panel's texts, which each window has its own of.
  struct Texts {
    int from, to, increment, update, updateHint, graphHint, variableLabel, variableHint, fromHint, toHint,
        incrementHint;
  };

  FunctionGraphPanel(const Texts& texts, tamsic::Messages& messages, tamsic::Engine& engine, QWidget* parent);

  // The formula (without "=") the update button graphs.
  std::function<std::string()> formula;

  // Fills the variable chooser with the variables the formula uses, keeping the
  // one chosen when it is still used.
  void detectVariables();
  // Checks the formula, asks the engine for its values and draws them; a
  // refused formula or range leaves the graph as it was.
  void updateGraph();

 signals:
  // The engine's words about a formula it could not read or graph, and the
  // character it named (from 0) when it named one.
  void refused(const QString& reason, std::optional<std::size_t> at);
  void graphed();

 private:
  void plot(double from, double increment, const std::vector<double>& values, const QString& xName);

  tamsic::Messages& messages_;
  tamsic::Engine& engine_;
  QComboBox* cboVars_;
  QLineEdit* txtMin_;
  QLineEdit* txtMax_;
  QLineEdit* txtIncr_;
  QPushButton* ssUpdateGraph_;
  QChartView* graphPreview_;
};
