#include "results/ui/ResultsPage.h"

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <filesystem>
#include <fstream>
#include <set>

#include "app/ui/Program.h"
#include "engine/OutputFiles.h"
#include "files/TextCodec.h"
#include "model/Errors.h"
#include "model/TextSplit.h"
#include "results/GraphSeries.h"
#include "results/ResultVariables.h"
#include "results/TableExport.h"
#include "results/ui/NamedButton.h"
#include "results/ui/ResultsChart.h"
#include "results/ui/frmSpecify.h"

using tamsic::F;

namespace {

QComboBox* Combo(const char* name, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  return combo;
}

enum GraphKind { kSimulationResults = 0, kDeterministic = 1 };

}  // namespace

ResultsPage::ResultsPage(Program& program, const tamsic::ProjectState& state,
                         std::function<std::optional<std::string>(std::size_t)> deterministicValues,
                         QWidget* parent)
    : QWidget(parent),
      program_(program),
      state_(state),
      deterministicValues_(std::move(deterministicValues)),
      tableVariables_(tamsic::DefaultTableVariables()) {
  setObjectName("ResultsPage");
  setWindowTitle(Q(program_.strings.text(1900)));
  askSavePath = [this](const QString& caption, const QString& proposed, const QString& filter) {
    return QFileDialog::getSaveFileName(this, caption, proposed, filter);
  };

  lstScenarios_ = new QListWidget(this);
  lstScenarios_->setObjectName("lstScenarios");
  lstScenarios_->setToolTip(Q(program_.strings.text(1944)));
  cboPops_ = Combo("cboPops", this);
  auto* choices = new QVBoxLayout;
  choices->addWidget(new QLabel(Q(program_.strings.text(1908)), this));
  choices->addWidget(lstScenarios_, 1);
  choices->addWidget(new QLabel(Q(program_.strings.text(1905)), this));
  choices->addWidget(cboPops_);

  tabs_ = new QTabWidget(this);
  tabs_->addTab(buildGraphTab(), Q(program_.strings.text(1902)));
  tabs_->addTab(buildTableTab(), Q(program_.strings.text(1901)));
  lblStatus_ = new QLabel(this);
  lblStatus_->setObjectName("lblStatus");
  lblStatus_->setWordWrap(true);

  auto* body = new QHBoxLayout;
  body->addLayout(choices);
  body->addWidget(tabs_, 1);
  auto* page = new QVBoxLayout(this);
  page->addLayout(body, 1);
  page->addWidget(lblStatus_);

  connect(lstScenarios_, &QListWidget::itemChanged, this, &ResultsPage::refreshChoices);
  fillScenarios();
  refreshModifier();
}

QWidget* ResultsPage::buildGraphTab() {
  auto* tab = new QWidget(this);
  cboGraphKind_ = Combo("cboGraphKind", tab);
  cboGraphKind_->addItems({Q(program_.strings.text(1937)), Q(program_.strings.text(1938))});
  cboVars_ = Combo("cboVars", tab);
  cboVarMod_ = Combo("cboVarMod", tab);
  cboVarMod_->setToolTip(Q(program_.strings.text(1945)));
  for (const std::string& text : tamsic::ModifierTexts(program_.strings)) cboVarMod_->addItem(Q(text));
  cboBand_ = Combo("cboBand", tab);
  cboBand_->addItems(
      {Q(program_.strings.text(1934)), Q(program_.strings.text(1935)), Q(program_.strings.text(1936))});
  auto* cmdMakeGraph = Button(program_.strings.text(1910), "cmdMakeGraph", tab);
  auto* cmdSaveGraph = Button(program_.strings.text(1940), "cmdSaveGraph", tab);
  chtResults_ = new QChartView(new QChart, tab);
  chtResults_->setObjectName("chtResults");
  chtResults_->setRenderHint(QPainter::Antialiasing);

  auto* form = new QFormLayout;
  form->addRow(Q(program_.strings.text(1902)), cboGraphKind_);
  auto* variable = new QHBoxLayout;
  variable->addWidget(cboVars_, 1);
  variable->addWidget(cboVarMod_, 1);
  form->addRow(Q(program_.strings.text(1907)), variable);
  form->addRow(Q(program_.strings.text(1941)), cboBand_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdMakeGraph);
  buttons->addWidget(cmdSaveGraph);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(tab);
  layout->addLayout(form);
  layout->addLayout(buttons);
  layout->addWidget(chtResults_, 1);

  connect(cboVars_, &QComboBox::currentTextChanged, this, &ResultsPage::refreshModifier);
  connect(cboGraphKind_, &QComboBox::currentIndexChanged, this, &ResultsPage::refreshModifier);
  connect(cmdMakeGraph, &QPushButton::clicked, this, &ResultsPage::makeGraph);
  connect(cmdSaveGraph, &QPushButton::clicked, this, &ResultsPage::saveGraph);
  return tab;
}

QWidget* ResultsPage::buildTableTab() {
  auto* tab = new QWidget(this);
  cboRows_ = Combo("cboRows", tab);
  cboRows_->setToolTip(Q(program_.strings.text(1918)));
  // In the order of tamsic::RowDimension.
  cboRows_->addItems(
      {Q(program_.strings.text(1908)), Q(program_.strings.text(1906)), Q(program_.strings.text(1905))});
  cboCols_ = Combo("cboCols", tab);
  cboCols_->setToolTip(Q(program_.strings.text(1919)));
  // In the order of tamsic::TableStatistic.
  const std::string mean = program_.strings.text(1914);
  cboCols_->addItems({Q(mean), Q(mean + ", " + program_.strings.text(1916)),
                      Q(mean + ", " + program_.strings.text(1915))});
  cboYears_ = Combo("cboYears", tab);
  for (int step : tamsic::YearSteps()) cboYears_->addItem(Q(tamsic::YearStepText(step, program_.strings)), step);
  auto* cmdSpecify = Button(program_.strings.text(1917), "cmdSpecify", tab);
  auto* cmdMakeTable = Button(program_.strings.text(1909), "cmdMakeTable", tab);
  auto* cmdExportTable = Button(program_.strings.text(1911), "cmdExportTable", tab);
  auto* cmdCopy = Button(program_.strings.text(1912), "cmdCopy", tab);
  grdTable_ = new QTableWidget(tab);
  grdTable_->setObjectName("grdTable");
  grdTable_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grdTable_->verticalHeader()->hide();

  auto* form = new QFormLayout;
  form->addRow(Q(program_.strings.text(1903)), cboRows_);
  form->addRow(Q(program_.strings.text(1904)), cboCols_);
  form->addRow(Q(program_.strings.text(1906)), cboYears_);
  auto* buttons = new QHBoxLayout;
  for (auto* button : {cmdSpecify, cmdMakeTable, cmdExportTable, cmdCopy}) buttons->addWidget(button);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(tab);
  layout->addLayout(form);
  layout->addLayout(buttons);
  layout->addWidget(grdTable_, 1);

  connect(cmdSpecify, &QPushButton::clicked, this, &ResultsPage::specifyColumns);
  connect(cmdMakeTable, &QPushButton::clicked, this, &ResultsPage::makeTable);
  connect(cmdExportTable, &QPushButton::clicked, this, &ResultsPage::exportTable);
  connect(cmdCopy, &QPushButton::clicked, this, &ResultsPage::copyTable);
  return tab;
}

bool ResultsPage::graphOnShow() const { return tabs_->currentIndex() == 0; }

void ResultsPage::resultsChanged() {
  loaded_.clear();
  fillScenarios();
  if (graphShown_) makeGraph();
  if (tableShown_) makeTable();
}

// Keeps the checks of scenarios that are still there, by name.
void ResultsPage::fillScenarios() {
  std::set<QString> checked;
  for (int row = 0; row < lstScenarios_->count(); ++row)
    if (lstScenarios_->item(row)->checkState() == Qt::Checked) checked.insert(lstScenarios_->item(row)->text());
  const QSignalBlocker blocker(lstScenarios_);
  lstScenarios_->clear();
  for (std::size_t n = 1; n <= state_.document.scenarios.Count(); ++n) {
    auto* item = new QListWidgetItem(scenarioName(n), lstScenarios_);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(checked.contains(item->text()) ? Qt::Checked : Qt::Unchecked);
  }
  refreshChoices();
}

// Populations as in the first checked scenario (or the first scenario), and
// the user variables that any checked scenario has.
void ResultsPage::refreshChoices() {
  const auto checked = checkedScenarios();
  const auto& scenarios = state_.document.scenarios;
  const QString pop = cboPops_->currentText();
  const QString variable = cboVars_->currentText();
  cboPops_->clear();
  cboVars_->clear();
  if (scenarios.Count() == 0) return;
  populationEntries_ =
      tamsic::PopulationEntries(scenarios.Item(checked.empty() ? 1 : checked.front()), program_.strings);
  for (const auto& entry : populationEntries_) cboPops_->addItem(Q(entry.text));
  cboPops_->setCurrentIndex(std::max(0, cboPops_->findText(pop)));
  int userVariables = 0;
  for (std::size_t n : checked)
    userVariables = std::max(userVariables, tamsic::ShapeOf(scenarios.Item(n)).userVariables);
  for (const std::string& base : tamsic::BaseVariables(userVariables)) cboVars_->addItem(Q(base));
  cboVars_->setCurrentIndex(std::max(0, cboVars_->findText(variable)));
}

void ResultsPage::refreshModifier() {
  const bool results = cboGraphKind_->currentIndex() == kSimulationResults;
  cboVars_->setEnabled(results);
  cboBand_->setEnabled(results);
  cboVarMod_->setEnabled(results && tamsic::ModifiersApply(cboVars_->currentText().toStdString()));
  if (!cboVarMod_->isEnabled()) cboVarMod_->setCurrentIndex(tamsic::kMean);
}

std::vector<std::size_t> ResultsPage::checkedScenarios() const {
  std::vector<std::size_t> numbers;
  for (int row = 0; row < lstScenarios_->count(); ++row)
    if (lstScenarios_->item(row)->checkState() == Qt::Checked) numbers.push_back(static_cast<std::size_t>(row) + 1);
  return numbers;
}

QString ResultsPage::scenarioName(std::size_t number) const {
  const std::string& name = state_.document.scenarios.Item(number).Text(F("txtSceneName"));
  return Q(tamsic::Cp1252ToUtf8(tamsic::Trim(name)));
}

tamsic::PopulationChoice ResultsPage::populationChoice() const {
  const int index = cboPops_->currentIndex();
  if (index < 0 || index >= static_cast<int>(populationEntries_.size())) return {};
  return populationEntries_[index].choice;
}

const tamsic::YearlyData* ResultsPage::data(std::size_t number, QStringList& status) {
  // A broken file is remembered as nothing, so that the user is told once.
  if (const auto found = loaded_.find(number); found != loaded_.end())
    return found->second ? &*found->second : nullptr;
  const tamsic::clsScenario& scenario = state_.document.scenarios.Item(number);
  const auto file = tamsic::ScenarioOutputFile(tamsic::ResultsFolder(state_), state_.document.title,
                                               scenario.Text(F("txtSceneName")), tamsic::ScenarioOutput::YearlyData);
  if (!std::filesystem::exists(file)) {
    const std::string shown = (file.parent_path() / tamsic::Cp1252ToUtf8(file.filename().string())).string();
    status << Q(program_.messages.text(9112) + shown + program_.messages.text(9113)) + scenarioName(number) + ".'";
    return nullptr;
  }
  try {
    return &*loaded_.emplace(number, tamsic::LoadYearlyData(file, scenario)).first->second;
  } catch (const tamsic::FileError&) {
    loaded_.emplace(number, std::nullopt);
    program_.messages.show(program_.messages.text(9131), tamsic::msg::kError, tamsic::MsgIcon::Critical);
    return nullptr;
  }
}

void ResultsPage::showStatus(const QStringList& lines) { lblStatus_->setText(lines.join('\n')); }

void ResultsPage::makeGraph() {
  graphShown_ = true;
  QStringList status;
  if (checkedScenarios().empty()) status << Q(program_.strings.text(1943));
  const bool results = cboGraphKind_->currentIndex() == kSimulationResults;
  const auto lines = results ? resultLines(status) : deterministicLines();
  const std::string variable = cboVars_->currentText().toStdString();
  const QString yTitle = results ? Q(tamsic::AxisTitle(variable, cboVarMod_->currentIndex(), program_.strings))
                                 : Q(program_.strings.text(1939));
  QChart* old = chtResults_->chart();
  const bool symbols = state_.document.specialOptions.checked[0] == 1;
  chtResults_->setChart(MakeResultsChart(lines, Q(program_.strings.text(1928)), yTitle, symbols));
  delete old;
  showStatus(status);
}

std::vector<ChartLine> ResultsPage::resultLines(QStringList& status) {
  const std::string variable = cboVars_->currentText().toStdString();
  const auto band = static_cast<tamsic::GraphBand>(cboBand_->currentIndex());
  const auto choice = populationChoice();
  std::vector<ChartLine> lines;
  bool missingStatistic = false;
  for (std::size_t number : checkedScenarios()) {
    const tamsic::YearlyData* yearly = data(number, status);
    if (!yearly) continue;
    const auto titles = tamsic::BlockTitles(state_.document.scenarios.Item(number), program_.strings);
    for (int block : tamsic::ChosenBlocks(choice, yearly->shape())) {
      auto series = tamsic::MakeGraphSeries(*yearly, block, variable, cboVarMod_->currentIndex(), band);
      if (!series) {
        missingStatistic = true;
        continue;
      }
      QString name = scenarioName(number);
      if (choice.kind == tamsic::PopulationChoice::Kind::Within) name += " - " + Q(titles.at(block));
      lines.push_back({name, std::move(*series)});
    }
  }
  if (missingStatistic) status << Q(program_.strings.text(1942));
  return lines;
}

std::vector<ChartLine> ResultsPage::deterministicLines() {
  std::vector<ChartLine> lines;
  for (std::size_t number : checkedScenarios()) {
    const auto reply = deterministicValues_(number);
    if (!reply) continue;
    auto parsed = tamsic::ParseDeterministicValues(*reply);
    if (!parsed.error.empty()) {
      program_.messages.show(parsed.error, tamsic::msg::kError, tamsic::MsgIcon::Critical);
      continue;
    }
    lines.push_back({scenarioName(number), {std::move(parsed.points), {}, {}}});
  }
  return lines;
}

void ResultsPage::makeTable() {
  tableShown_ = true;
  QStringList status;
  if (checkedScenarios().empty()) status << Q(program_.strings.text(1943));
  std::vector<tamsic::TableScenario> sources;
  for (std::size_t number : checkedScenarios())
    if (const tamsic::YearlyData* yearly = data(number, status))
      sources.push_back({scenarioName(number).toStdString(), yearly,
                         tamsic::BlockTitles(state_.document.scenarios.Item(number), program_.strings)});
  tamsic::TableChoice choice;
  choice.rows = static_cast<tamsic::RowDimension>(std::max(0, cboRows_->currentIndex()));
  choice.statistic = static_cast<tamsic::TableStatistic>(std::max(0, cboCols_->currentIndex()));
  choice.populations = populationChoice();
  choice.yearStep = cboYears_->currentData().toInt();
  choice.variables = tableVariables_;
  table_ = tamsic::BuildSummaryTable(sources, choice, program_.strings);

  grdTable_->clear();
  grdTable_->setColumnCount(static_cast<int>(table_.columns.size()) + 1);
  grdTable_->setRowCount(static_cast<int>(table_.rows.size()));
  QStringList headings{Q(table_.corner)};
  for (const std::string& column : table_.columns) headings << Q(column);
  grdTable_->setHorizontalHeaderLabels(headings);
  // Numbers line up on the right, after the scenario, population and year columns.
  const std::size_t keys = table_.columns.size() - tamsic::ValueColumns(choice.variables, choice.statistic).size();
  for (int r = 0; r < grdTable_->rowCount(); ++r) {
    const tamsic::TableRow& row = table_.rows[r];
    grdTable_->setItem(r, 0, new QTableWidgetItem(Q(row.heading)));
    for (std::size_t c = 0; c < row.cells.size(); ++c) {
      auto* item = new QTableWidgetItem(Q(row.cells[c]));
      if (c >= keys) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      grdTable_->setItem(r, static_cast<int>(c) + 1, item);
    }
  }
  grdTable_->resizeColumnsToContents();
  showStatus(status);
}

void ResultsPage::specifyColumns() {
  int userVariables = 0;
  for (std::size_t n : checkedScenarios())
    userVariables = std::max(userVariables, tamsic::ShapeOf(state_.document.scenarios.Item(n)).userVariables);
  frmSpecify dialog(program_.strings, tamsic::BaseVariables(userVariables), tableVariables_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  tableVariables_ = dialog.chosen();
  if (tableShown_) makeTable();
}

void ResultsPage::saveGraph() {
  const QString title = Q(tamsic::Cp1252ToUtf8(tamsic::Trim(state_.document.title)));
  const QString proposed = QDir(Q(tamsic::ResultsFolder(state_))).filePath(title + "_graph.png");
  const QString filters =
      Q(program_.strings.text(1947)) + " (*.png);;" + Q(program_.strings.text(1948)) + " (*.svg)";
  const QString path = askSavePath(Q(program_.strings.text(1940)), proposed, filters);
  if (path.isEmpty()) return;
  if (!SaveChartPicture(*chtResults_, path))
    program_.messages.show(program_.messages.text(1946) + path.toStdString(), tamsic::msg::kError,
                           tamsic::MsgIcon::Critical);
}

void ResultsPage::exportTable() {
  if (!tableShown_) makeTable();
  const QString title = Q(tamsic::Cp1252ToUtf8(tamsic::Trim(state_.document.title)));
  const QString proposed = QDir(Q(tamsic::ResultsFolder(state_))).filePath(title + "_table.csv");
  const QString path =
      askSavePath(Q(program_.strings.text(1911)), proposed, Q(program_.strings.text(1949)) + " (*.csv)");
  if (path.isEmpty()) return;
  // Files the program writes are Windows-1252, like the project file.
  std::ofstream out(std::filesystem::path(path.toStdString()), std::ios::binary | std::ios::trunc);
  out << tamsic::Utf8ToCp1252(tamsic::ToCsv(table_));
  out.close();
  if (!out)
    program_.messages.show(program_.messages.text(1946) + path.toStdString(), tamsic::msg::kError,
                           tamsic::MsgIcon::Critical);
}

// Both exports give what the choices make when no table is on show yet.
void ResultsPage::copyTable() {
  if (!tableShown_) makeTable();
  QApplication::clipboard()->setText(Q(tamsic::ToTabText(table_)));
}
