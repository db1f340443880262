#include "st/ui/STAnalysisPanel.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "files/AtomicFile.h"
#include "files/TextCodec.h"
#include "model/Errors.h"
#include "results/ResultVariables.h"
#include "results/TableExport.h"
#include "results/ui/NamedButton.h"
#include "results/ui/ResultsChart.h"
#include "st/ui/STAnalysisCharts.h"

namespace {

QComboBox* Combo(const char* name, const std::string& hint, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setToolTip(Q(hint));
  return combo;
}

QChartView* ChartView(const char* name, QWidget* parent) {
  auto* view = new QChartView(new QChart, parent);
  view->setObjectName(name);
  view->setRenderHint(QPainter::Antialiasing);
  return view;
}

// The file a table export writes: tab-separated lines ending in CR LF, in
// Windows-1252 like every file the program writes.
std::string TableText(const tamsic::Table& table) {
  std::string text;
  for (char c : tamsic::ToTabText(table)) {
    if (c == '\n') text += '\r';
    text += c;
  }
  return tamsic::Utf8ToCp1252(text);
}

}  // namespace

STAnalysisPanel::STAnalysisPanel(Program& program, tamsic::Engine& engine, QWidget* parent)
    : QWidget(parent), program_(program), engine_(engine) {
  setObjectName("STAnalysisPanel");
  setWindowTitle(Q(program_.strings.text(8612)));
  askSavePath = [this](const QString& caption, const QString& proposed, const QString& filter) {
    return QFileDialog::getSaveFileName(this, caption, proposed, filter);
  };
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("tabAnalysis");
  tabs_->addTab(buildTableTab(), Q(program_.strings.text(8654)));
  tabs_->addTab(buildGraphTab(), Q(program_.strings.text(8655)));
  tabs_->addTab(buildRankingTab(), Q(program_.strings.text(8656)));
  lblMissing_ = new QLabel(Q(program_.strings.text(8674)), this);
  lstMissing_ = new QListWidget(this);
  lstMissing_->setObjectName("lstMissing");
  lstMissing_->setToolTip(Q(program_.strings.text(8686)));
  lstMissing_->setMaximumHeight(fontMetrics().height() * 5);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(buildChoices());
  layout->addWidget(tabs_, 1);
  layout->addWidget(lblMissing_);
  layout->addWidget(lstMissing_);
  refresh();
}

QWidget* STAnalysisPanel::buildChoices() {
  auto* box = new QWidget(this);
  cboVars_ = Combo("cboVars", program_.strings.text(8680), box);
  cboVarMod_ = Combo("cboVarMod", program_.strings.text(8681), box);
  for (const std::string& text : tamsic::ModifierTexts(program_.strings)) cboVarMod_->addItem(Q(text));
  cboYears_ = Combo("cboYears", program_.strings.text(8682), box);
  cboPops_ = Combo("cboPops", program_.strings.text(8683), box);
  cboGroup_ = Combo("cboGroup", program_.strings.text(8684), box);
  // In the order of tamsic::STGrouping.
  cboGroup_->addItems(
      {Q(program_.strings.text(8613)), Q(program_.strings.text(8614)), Q(program_.strings.text(8615))});

  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(new QLabel(Q(program_.strings.text(8650)), box), 0, 0);
  grid->addWidget(cboVars_, 0, 1);
  grid->addWidget(cboVarMod_, 0, 2);
  grid->addWidget(new QLabel(Q(program_.strings.text(8651)), box), 0, 3);
  grid->addWidget(cboYears_, 0, 4);
  grid->addWidget(new QLabel(Q(program_.strings.text(8652)), box), 1, 0);
  grid->addWidget(cboPops_, 1, 1, 1, 2);
  grid->addWidget(new QLabel(Q(program_.strings.text(8653)), box), 1, 3);
  grid->addWidget(cboGroup_, 1, 4);
  grid->setColumnStretch(5, 1);

  for (QComboBox* combo : {cboVars_, cboVarMod_, cboYears_, cboPops_, cboGroup_})
    connect(combo, &QComboBox::currentIndexChanged, this, &STAnalysisPanel::refresh);
  return box;
}

QWidget* STAnalysisPanel::buildTableTab() {
  auto* tab = new QWidget(this);
  grdTable_ = new QTableWidget(tab);
  grdTable_->setObjectName("grdTable");
  grdTable_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grdTable_->verticalHeader()->hide();
  auto* cmdExportTable = Button(program_.strings.text(1911), "cmdExportTable", tab);
  auto* layout = new QVBoxLayout(tab);
  layout->addWidget(grdTable_, 1);
  layout->addWidget(cmdExportTable, 0, Qt::AlignLeft);
  connect(cmdExportTable, &QPushButton::clicked, this, &STAnalysisPanel::exportTable);
  return tab;
}

QWidget* STAnalysisPanel::buildGraphTab() {
  auto* tab = new QWidget(this);
  chtGraph_ = ChartView("chtGraph", tab);
  auto* cmdSaveGraph = Button(program_.strings.text(1940), "cmdSaveGraph", tab);
  auto* layout = new QVBoxLayout(tab);
  layout->addWidget(chtGraph_, 1);
  layout->addWidget(cmdSaveGraph, 0, Qt::AlignLeft);
  connect(cmdSaveGraph, &QPushButton::clicked, this, [this] { saveChart(*chtGraph_, "_ST_graph"); });
  return tab;
}

QWidget* STAnalysisPanel::buildRankingTab() {
  auto* tab = new QWidget(this);
  lblRanking_ = new QLabel(tab);
  lblRanking_->setObjectName("lblRanking");
  lblRanking_->setWordWrap(true);
  chtTornado_ = ChartView("chtTornado", tab);
  chtTornado_->setToolTip(Q(program_.strings.text(8685)));
  auto* cmdSaveTornado = Button(program_.strings.text(1940), "cmdSaveTornado", tab);
  auto* layout = new QVBoxLayout(tab);
  layout->addWidget(lblRanking_);
  layout->addWidget(chtTornado_, 1);
  layout->addWidget(cmdSaveTornado, 0, Qt::AlignLeft);
  connect(cmdSaveTornado, &QPushButton::clicked, this, [this] { saveChart(*chtTornado_, "_ST_ranking"); });
  return tab;
}

void STAnalysisPanel::setProject(const tamsic::ProjectState& state, const tamsic::STScheme& scheme) {
  analysis_ = tamsic::ReadSTResults(state, scheme, engine_, program_.strings);
  folder_ = tamsic::ResultsFolder(state);
  title_ = Q(tamsic::TrimmedTitle(state.document));
  fillChoices();
  refresh();
}

// Keeps the variable and population chosen before, by text; at first N[extant]
// of the whole system. The year goes to the last of the new results.
void STAnalysisPanel::fillChoices() {
  const QSignalBlocker blockVars(cboVars_);
  const QSignalBlocker blockYears(cboYears_);
  const QSignalBlocker blockPops(cboPops_);
  const QString variable = cboVars_->count() > 0 ? cboVars_->currentText() : Q(tamsic::STResultChoice().variable);
  const QString population = cboPops_->currentText();
  cboVars_->clear();
  for (const std::string& base : tamsic::BaseVariables(analysis_.userVariables)) cboVars_->addItem(Q(base));
  cboVars_->setCurrentIndex(std::max(0, cboVars_->findText(variable)));
  cboYears_->clear();
  for (int year = 0; year <= analysis_.years; ++year) cboYears_->addItem(QString::number(year), year);
  cboYears_->setCurrentIndex(analysis_.years);
  cboPops_->clear();
  for (const tamsic::PopulationEntry& entry : analysis_.populations) cboPops_->addItem(Q(entry.text));
  const int found = cboPops_->findText(population);
  cboPops_->setCurrentIndex(found >= 0 ? found : cboPops_->count() - 1);
}

tamsic::STResultChoice STAnalysisPanel::choice() const {
  tamsic::STResultChoice chosen;
  chosen.variable = cboVars_->currentText().toStdString();
  chosen.modifier = std::max(0, cboVarMod_->currentIndex());
  chosen.year = cboYears_->currentData().toInt();
  const int population = cboPops_->currentIndex();
  if (population >= 0 && population < static_cast<int>(analysis_.populations.size()))
    chosen.population = analysis_.populations[population].choice;
  return chosen;
}

void STAnalysisPanel::refresh() {
  const bool modifiers = tamsic::ModifiersApply(cboVars_->currentText().toStdString());
  cboVarMod_->setEnabled(modifiers);
  if (!modifiers && cboVarMod_->currentIndex() != tamsic::kMean) {
    const QSignalBlocker blocker(cboVarMod_);
    cboVarMod_->setCurrentIndex(tamsic::kMean);
  }
  const tamsic::STResultChoice chosen = choice();
  const auto grouping = static_cast<tamsic::STGrouping>(std::max(0, cboGroup_->currentIndex()));
  view_ = tamsic::BuildSTView(analysis_, chosen, grouping, program_.strings);
  showTable();
  QChart* old = chtGraph_->chart();
  chtGraph_->setChart(MakeSTChart(view_));
  delete old;
  showRanking(tamsic::RankSTInputs(analysis_, chosen));
  showMissing();
}

void STAnalysisPanel::showTable() {
  const tamsic::Table& table = view_.table;
  grdTable_->clear();
  grdTable_->setColumnCount(static_cast<int>(table.columns.size()) + 1);
  grdTable_->setRowCount(static_cast<int>(table.rows.size()));
  QStringList headings{Q(table.corner)};
  for (const std::string& column : table.columns) headings << Q(column);
  grdTable_->setHorizontalHeaderLabels(headings);
  for (int r = 0; r < grdTable_->rowCount(); ++r) {
    grdTable_->setItem(r, 0, new QTableWidgetItem(Q(table.rows[r].heading)));
    for (std::size_t c = 0; c < table.rows[r].cells.size(); ++c) {
      auto* item = new QTableWidgetItem(Q(table.rows[r].cells[c]));
      // Numbers line up on the right.
      bool number = false;
      item->text().toDouble(&number);
      if (number) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      grdTable_->setItem(r, static_cast<int>(c) + 1, item);
    }
  }
  grdTable_->resizeColumnsToContents();
}

void STAnalysisPanel::showRanking(const tamsic::STRanking& ranked) {
  using Outcome = tamsic::Ranking::Outcome;
  const tamsic::Ranking& ranking = ranked.ranking;
  const auto& strings = program_.strings;
  QStringList lines;
  switch (ranking.outcome) {
    case Outcome::Ranked:
      lines << Q(strings.text(8660)) + QString::number(ranking.rSquared, 'f', 3) + "    " +
                   Q(strings.text(8661)) + QString::number(ranking.scenarios);
      break;
    case Outcome::NothingVaries: lines << Q(strings.text(8673)); break;
    case Outcome::TooFewScenarios:
      lines << Q(strings.text(8667)) + QString::number(ranking.scenarios) + Q(strings.text(8668)) +
                   QString::number(ranking.needed - 2) + Q(strings.text(8669)) + QString::number(ranking.needed) +
                   Q(strings.text(8670));
      break;
    case Outcome::ResultConstant: lines << Q(strings.text(8671)); break;
    case Outcome::Dependent: lines << Q(strings.text(8672)); break;
  }
  for (const tamsic::RankedInput& input : ranking.inputs)
    if (input.names.size() > 1) lines << Q(strings.text(8665)) + InputName(input);
  const auto joined = [](const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) list << Q(text);
    return list.join(", ");
  };
  if (!ranking.constant.empty()) lines << Q(strings.text(8664)) + joined(ranking.constant);
  if (!ranked.leftOut.empty()) lines << Q(strings.text(8666)) + joined(ranked.leftOut);
  if (!analysis_.engineFault.empty()) lines << Q(strings.text(8679) + analysis_.engineFault);
  lblRanking_->setText(lines.join('\n'));
  QChart* old = chtTornado_->chart();
  chtTornado_->setChart(MakeTornadoChart(ranking, {Q(strings.text(8662)), Q(strings.text(8663)),
                                                   Q(strings.text(8659))}));
  delete old;
}

void STAnalysisPanel::showMissing() {
  lstMissing_->clear();
  for (const std::string& line : tamsic::ItemsWithoutResults(analysis_, choice(), program_.strings))
    lstMissing_->addItem(Q(line));
  lblMissing_->setVisible(lstMissing_->count() > 0);
  lstMissing_->setVisible(lstMissing_->count() > 0);
}

void STAnalysisPanel::exportTable() {
  const QString proposed = QDir(Q(folder_)).filePath("Table.txt");
  const QString path =
      askSavePath(Q(program_.strings.text(1911)), proposed, Q(program_.strings.text(1821)) + " (*.txt)");
  if (path.isEmpty()) return;
  try {
    tamsic::WriteFileReplacing(path.toStdString(), TableText(view_.table));
  } catch (const tamsic::FileError& error) {
    writeFailed(path, error.what());
  }
}

void STAnalysisPanel::saveChart(QChartView& view, const QString& suffix) {
  const QString proposed = QDir(Q(folder_)).filePath(title_ + suffix + ".png");
  const QString filters =
      Q(program_.strings.text(1947)) + " (*.png);;" + Q(program_.strings.text(1948)) + " (*.svg)";
  const QString path = askSavePath(Q(program_.strings.text(1940)), proposed, filters);
  if (path.isEmpty()) return;
  if (!SaveChartPicture(view, path)) writeFailed(path, {});
}

void STAnalysisPanel::writeFailed(const QString& path, const std::string& why) {
  std::string text = program_.messages.text(1946) + path.toStdString();
  if (!why.empty()) text += "\n\n" + why;
  program_.messages.show(text, tamsic::msg::kError, tamsic::MsgIcon::Critical);
}
