#include "functions/ui/FunctionGraphPanel.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QPushButton>
#include <QValueAxis>
#include <QVBoxLayout>

#include "functions/FunctionEditing.h"
#include "functions/FunctionVariables.h"

namespace {

// A formula without variables is a constant; it is drawn over the years.
constexpr const char* kConstantAxis = "Y";

QLineEdit* RangeBox(const char* name, const QString& text, const QString& hint, QWidget* parent) {
  auto* box = new QLineEdit(text, parent);
  box->setObjectName(name);
  box->setToolTip(hint);
  box->setMaximumWidth(90);
  return box;
}

}  // namespace

FunctionGraphPanel::FunctionGraphPanel(const Texts& texts, tamsic::Messages& messages, tamsic::Engine& engine,
                                       QWidget* parent)
    : QWidget(parent), messages_(messages), engine_(engine) {
  const auto text = [&messages](int number) { return QString::fromStdString(messages.text(number)); };
  cboVars_ = new QComboBox(this);
  cboVars_->setObjectName("cboVars");
  cboVars_->setToolTip(text(texts.variableHint));
  cboVars_->setMinimumContentsLength(6);
  txtMin_ = RangeBox("txtMin", "0", text(texts.fromHint), this);
  txtMax_ = RangeBox("txtMax", "100", text(texts.toHint), this);
  txtIncr_ = RangeBox("txtIncr", "1", text(texts.incrementHint), this);
  ssUpdateGraph_ = new QPushButton(text(texts.update), this);
  ssUpdateGraph_->setObjectName("ssUpdateGraph");
  ssUpdateGraph_->setToolTip(text(texts.updateHint));
  graphPreview_ = new QChartView(new QChart, this);
  graphPreview_->setObjectName("graphPreview");
  graphPreview_->setToolTip(text(texts.graphHint));
  graphPreview_->setRenderHint(QPainter::Antialiasing);
  graphPreview_->setMinimumSize(360, 260);
  graphPreview_->chart()->legend()->hide();

  auto* range = new QFormLayout;
  range->addRow(text(texts.variableLabel), cboVars_);
  range->addRow(text(texts.from), txtMin_);
  range->addRow(text(texts.to), txtMax_);
  range->addRow(text(texts.increment), txtIncr_);
  range->addRow(ssUpdateGraph_);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(range);
  layout->addWidget(graphPreview_, 1);

  connect(ssUpdateGraph_, &QPushButton::clicked, this, &FunctionGraphPanel::updateGraph);
}

void FunctionGraphPanel::detectVariables() {
  const QString chosen = cboVars_->currentText();
  cboVars_->clear();
  for (const std::string& name : tamsic::VariablesIn(formula())) cboVars_->addItem(QString::fromStdString(name));
  const int again = cboVars_->findText(chosen);
  if (again >= 0) cboVars_->setCurrentIndex(again);
}

void FunctionGraphPanel::updateGraph() {
  const std::string text = formula();
  const auto range = tamsic::ReadGraphRange(txtMin_->text().toStdString(), txtMax_->text().toStdString(),
                                            txtIncr_->text().toStdString(), messages_);
  if (!range) return;
  const QString xName = cboVars_->currentText().isEmpty() ? QString(kConstantAxis) : cboVars_->currentText();
  const tamsic::GraphAnswer answer =
      tamsic::GraphValues(text, tamsic::GraphVariableNumber(xName.toStdString()), *range, engine_, messages_);
  if (!answer.values) {
    if (!answer.reason.empty()) emit refused(QString::fromStdString(answer.reason), answer.errorAt);
    return;
  }
  plot(range->from, range->increment, *answer.values, xName);
  emit graphed();
}

void FunctionGraphPanel::plot(double from, double increment, const std::vector<double>& values,
                              const QString& xName) {
  auto* chart = new QChart;
  chart->legend()->hide();
  auto* line = new QLineSeries(chart);
  for (std::size_t i = 0; i < values.size(); ++i) line->append(from + static_cast<double>(i) * increment, values[i]);
  chart->addSeries(line);
  auto* xAxis = new QValueAxis(chart);
  auto* yAxis = new QValueAxis(chart);
  xAxis->setTitleText(xName);
  chart->addAxis(xAxis, Qt::AlignBottom);
  chart->addAxis(yAxis, Qt::AlignLeft);
  line->attachAxis(xAxis);
  line->attachAxis(yAxis);
  // A flat line still gets a visible band of the y axis around it.
  if (yAxis->min() == yAxis->max()) yAxis->setRange(yAxis->min() - 1, yAxis->max() + 1);
  xAxis->applyNiceNumbers();
  yAxis->applyNiceNumbers();
  QChart* old = graphPreview_->chart();
  graphPreview_->setChart(chart);
  delete old;
}
