#include "st/ui/frmSTSetup.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <stdexcept>

#include "app/HelpTopics.h"
#include "app/ui/HelpDesk.h"
#include "app/ui/Program.h"
#include "files/TextCodec.h"
#include "st/STGeneration.h"
#include "st/STAnswers.h"
#include "st/ui/STAnalysisPanel.h"
#include "st/ui/frmSTDesign.h"

namespace {

constexpr char kOk[] = "OK";

QString FromFile(const std::string& text) { return QString::fromStdString(tamsic::Cp1252ToUtf8(text)); }
std::string ToFile(const QString& text) { return tamsic::Utf8ToCp1252(text.toStdString()); }

// The scheme as the project holds it, without the unused slot a file gives it.
bool SameScheme(const tamsic::STScheme& a, const tamsic::STScheme& b) {
  if (a.NumItems != b.NumItems) return false;
  for (int i = 0; i < a.NumItems; ++i)
    if (!(a.Items[static_cast<std::size_t>(i)] == b.Items[static_cast<std::size_t>(i)])) return false;
  return true;
}

QTableWidget* Table(const char* name, const QStringList& headings, const QString& hint, QWidget* parent) {
  auto* table = new QTableWidget(0, static_cast<int>(headings.size()), parent);
  table->setObjectName(name);
  table->setHorizontalHeaderLabels(headings);
  table->setToolTip(hint);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->horizontalHeader()->setStretchLastSection(true);
  table->verticalHeader()->setVisible(false);
  return table;
}

}  // namespace

frmSTSetup::frmSTSetup(Program& program, tamsic::Engine& engine, const tamsic::ProjectState& state,
                       Project project, QWidget* parent)
    : QDialog(parent),
      program_(program),
      engine_(engine),
      state_(state),
      project_(std::move(project)),
      editor_(state.document.scenarios, state.document.stScheme, engine) {
  setObjectName("frmSTSetup");
  setWindowTitle(text(8601));
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("tabST");
  tabs_->addTab(buildItemsTab(), text(8803));
  analysis_ = new STAnalysisPanel(program_, engine_, tabs_);
  tabs_->addTab(analysis_, text(8612));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_, 1);
  layout->addWidget(buildCommands());
  wire();
  showItems(0);
  refreshStatus();
  analysis_->setProject(state_, state_.document.stScheme);
  resize(980, 620);
}

QWidget* frmSTSetup::buildItemsTab() {
  auto* page = new QWidget(this);
  gridItems_ = Table("gridItems", {text(8603), text(8602)}, text(8821), page);
  gridVars_ = Table("gridVars", {text(8604), text(8605)}, text(8822), page);
  gridItems_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                              QAbstractItemView::AnyKeyPressed);
  gridVars_->setColumnWidth(0, 300);

  const auto button = [this, page](const char* name, int caption, int hint) {
    auto* command = new QPushButton(text(caption), page);
    command->setObjectName(name);
    if (hint != 0) command->setToolTip(text(hint));
    command->setAutoDefault(false);
    return command;
  };
  QPushButton* cmdAddItem = button("cmdAddItem", 8606, 0);
  cmdDuplicateItem_ = button("cmdDuplicateItem", 8801, 0);
  cmdDeleteItem_ = button("cmdDeleteItem", 8607, 0);
  QPushButton* cmdDesign = button("cmdDesign", 8802, 8825);
  cmdAddVar_ = button("cmdAddVar", 8608, 0);
  cmdRemoveVar_ = button("cmdRemoveVar", 8609, 0);
  connect(cmdAddItem, &QPushButton::clicked, this, &frmSTSetup::addItem);
  connect(cmdDuplicateItem_, &QPushButton::clicked, this, &frmSTSetup::duplicateItem);
  connect(cmdDeleteItem_, &QPushButton::clicked, this, &frmSTSetup::deleteItem);
  connect(cmdDesign, &QPushButton::clicked, this, &frmSTSetup::addDesign);
  connect(cmdAddVar_, &QPushButton::clicked, this, &frmSTSetup::addVariable);
  connect(cmdRemoveVar_, &QPushButton::clicked, this, &frmSTSetup::removeVariable);

  auto* itemCommands = new QHBoxLayout;
  for (QPushButton* command : {cmdAddItem, cmdDuplicateItem_, cmdDeleteItem_, cmdDesign})
    itemCommands->addWidget(command);
  itemCommands->addStretch(1);
  auto* items = new QVBoxLayout;
  items->addWidget(gridItems_, 1);
  items->addLayout(itemCommands);

  auto* varCommands = new QHBoxLayout;
  varCommands->addWidget(cmdAddVar_);
  varCommands->addWidget(cmdRemoveVar_);
  varCommands->addStretch(1);
  auto* variables = new QVBoxLayout;
  variables->addWidget(gridVars_, 1);
  variables->addLayout(varCommands);

  auto* layout = new QHBoxLayout(page);
  layout->addLayout(items, 2);
  layout->addLayout(variables, 3);
  return page;
}

QWidget* frmSTSetup::buildCommands() {
  auto* bar = new QWidget(this);
  lblStatus_ = new QLabel(bar);
  lblStatus_->setObjectName("lblStatus");
  lblStatus_->setWordWrap(true);
  auto* cmdGenerate = new QPushButton(text(8610), bar);
  cmdGenerate->setObjectName("cmdGenerate");
  cmdGenerate->setToolTip(text(8823));
  auto* cmdRun = new QPushButton(text(8611), bar);
  cmdRun->setObjectName("cmdRun");
  cmdRun->setToolTip(text(8824));
  auto* buttons = new QDialogButtonBox(bar);
  QPushButton* cmdOk = buttons->addButton(text(8616), QDialogButtonBox::AcceptRole);
  QPushButton* cmdCancel = buttons->addButton(text(8617), QDialogButtonBox::RejectRole);
  QPushButton* cmdHelp = buttons->addButton(text(8618), QDialogButtonBox::HelpRole);
  cmdOk->setObjectName("cmdOk");
  cmdCancel->setObjectName("cmdCancel");
  cmdHelp->setObjectName("cmdHelp");
  for (QPushButton* command : {cmdGenerate, cmdRun, cmdOk, cmdCancel, cmdHelp}) command->setAutoDefault(false);
  connect(cmdGenerate, &QPushButton::clicked, this, &frmSTSetup::generate);
  connect(cmdRun, &QPushButton::clicked, this, &frmSTSetup::run);
  connect(buttons, &QDialogButtonBox::accepted, this, &frmSTSetup::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmSTSetup::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this,
          [this] { ShowHelpTopic(this, tamsic::help::kSensitivityTesting); });

  auto* layout = new QHBoxLayout(bar);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(lblStatus_, 1);
  layout->addWidget(cmdGenerate);
  layout->addWidget(cmdRun);
  layout->addWidget(buttons);
  return bar;
}

void frmSTSetup::wire() {
  connect(gridItems_, &QTableWidget::itemSelectionChanged, this, [this] {
    if (!filling_) showVariables();
  });
  connect(gridItems_, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* cell) {
    if (!filling_ && cell->column() == 0) labelEdited(cell->row());
  });
  connect(gridVars_, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* cell) {
    if (!filling_ && cell->column() == 1) valueEdited(cell->row());
  });
}

// The items, one row each: the label, which the user edits in place, and the baseline, chosen in the row.
void frmSTSetup::showItems(int select) {
  filling_ = true;
  const std::vector<std::size_t> baselines = editor_.baselineChoices();
  gridItems_->setRowCount(editor_.itemCount());
  for (int row = 0; row < editor_.itemCount(); ++row) {
    const tamsic::STItem& item = editor_.item(row);
    gridItems_->setItem(row, 0, new QTableWidgetItem(FromFile(item.Label)));
    auto* baseline = new QComboBox(gridItems_);
    baseline->setToolTip(text(8621));
    if (std::find(baselines.begin(), baselines.end(), static_cast<std::size_t>(std::max<int>(item.ScenarioIndex, 0))) ==
        baselines.end())
      baseline->addItem(QString(), 0);
    for (std::size_t number : baselines) baseline->addItem(scenarioName(number), static_cast<int>(number));
    baseline->setCurrentIndex(std::max(baseline->findData(static_cast<int>(item.ScenarioIndex)), 0));
    connect(baseline, &QComboBox::currentIndexChanged, this, [this, baseline, row] {
      if (baseline->currentData().toInt() < 1) return;
      editor_.setBaseline(row, baseline->currentData().toInt());
      gridItems_->selectRow(row);
      showVariables();
      refreshStatus();
    });
    gridItems_->setCellWidget(row, 1, baseline);
  }
  gridItems_->resizeColumnToContents(0);
  if (editor_.itemCount() > 0) gridItems_->selectRow(std::clamp(select, 0, editor_.itemCount() - 1));
  filling_ = false;
  cmdDuplicateItem_->setEnabled(editor_.itemCount() > 0);
  cmdDeleteItem_->setEnabled(editor_.itemCount() > 0);
  showVariables();
}

// The current item's variables: each chosen from its baseline's list, with its value beside it.
void frmSTSetup::showVariables() {
  filling_ = true;
  const int number = currentItem();
  const tamsic::STItem* item = number >= 0 ? &editor_.item(number) : nullptr;
  const int count = item != nullptr ? static_cast<int>(item->Vars.size()) : 0;
  gridVars_->setRowCount(count);
  const std::vector<std::string> choices = number >= 0 ? editor_.variableChoices(number) : std::vector<std::string>{};
  for (int row = 0; row < count; ++row) {
    const std::string& name = item->Vars[static_cast<std::size_t>(row)];
    auto* variable = new QComboBox(gridVars_);
    variable->setToolTip(text(8620));
    // A name the baseline does not offer stays visible, so that the user sees what the scheme holds.
    if (std::find(choices.begin(), choices.end(), name) == choices.end())
      variable->addItem(QString::fromStdString(name));
    for (const std::string& choice : choices) variable->addItem(QString::fromStdString(choice));
    variable->setCurrentText(QString::fromStdString(name));
    connect(variable, &QComboBox::currentTextChanged, this, [this, number, row](const QString& chosen) {
      editor_.setVariable(number, row, chosen.toStdString());
      showVariables();
      gridVars_->setCurrentCell(row, 1);
      refreshStatus();
    });
    gridVars_->setCellWidget(row, 0, variable);
    auto* value = new QTableWidgetItem(FromFile(item->Vals[static_cast<std::size_t>(row)]));
    value->setToolTip(text(8619));
    gridVars_->setItem(row, 1, value);
  }
  filling_ = false;
  cmdAddVar_->setEnabled(number >= 0);
  cmdRemoveVar_->setEnabled(count > 0);
}

int frmSTSetup::currentItem() const {
  const QModelIndexList rows = gridItems_->selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.front().row();
}

int frmSTSetup::currentVariable() const { return gridVars_->currentRow(); }

void frmSTSetup::addItem() {
  const std::vector<std::size_t> baselines = editor_.baselineChoices();
  if (baselines.empty()) return;
  const int current = currentItem();
  const int baseline = current >= 0 && editor_.item(current).ScenarioIndex > 0 ? editor_.item(current).ScenarioIndex
                                                                               : static_cast<int>(baselines.front());
  showItems(editor_.addItem(baseline));
  refreshStatus();
}

void frmSTSetup::duplicateItem() {
  if (currentItem() < 0) return;
  showItems(editor_.duplicateItem(currentItem()));
  refreshStatus();
}

void frmSTSetup::deleteItem() {
  const int current = currentItem();
  if (current < 0) return;
  editor_.removeItem(current);
  showItems(current);
  refreshStatus();
}

void frmSTSetup::addDesign() {
  const int first = editor_.itemCount();
  frmSTDesign design(program_, engine_, state_.document.scenarios, editor_.baselineChoices(), this);
  if (design.exec() != QDialog::Accepted) return;
  editor_.addItems(design.items());
  showItems(first);
  refreshStatus();
}

void frmSTSetup::addVariable() {
  const int number = currentItem();
  if (number < 0) return;
  const int added = editor_.addVariable(number);
  showVariables();
  if (added >= 0) gridVars_->setCurrentCell(added, 1);
  refreshStatus();
}

void frmSTSetup::removeVariable() {
  const int number = currentItem();
  if (number < 0 || currentVariable() < 0) return;
  editor_.removeVariable(number, currentVariable());
  showVariables();
  refreshStatus();
}

void frmSTSetup::labelEdited(int row) {
  editor_.setLabel(row, ToFile(gridItems_->item(row, 0)->text()));
  refreshStatus();
}

// A refused value is not kept: the cell shows the stored one again and the check says why.
void frmSTSetup::valueEdited(int row) {
  const int number = currentItem();
  if (number < 0) return;
  const std::string typed = ToFile(gridVars_->item(row, 1)->text());
  std::string answer;
  try {
    answer = editor_.setValue(number, row, typed);
  } catch (const std::out_of_range&) {
    answer.clear();
  }
  if (answer != kOk) {
    const std::string shown = answer.empty() ? program_.strings.text(8828)
                                             : tamsic::LocalizedSTAnswer(answer, program_.strings);
    filling_ = true;
    gridVars_->item(row, 1)->setText(FromFile(editor_.item(number).Vals[static_cast<std::size_t>(row)]));
    filling_ = false;
    program_.messages.show(shown, tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    gridVars_->setCurrentCell(row, 1);
  }
  refreshStatus();
}

bool frmSTSetup::generateIfChanged() {
  const bool current = SameScheme(editor_.scheme(), state_.document.stScheme) &&
                       tamsic::CountTrailingSTScenarios(state_.document.scenarios) ==
                           static_cast<std::size_t>(editor_.itemCount());
  return current || project_.generate(editor_.scheme());
}

void frmSTSetup::generate() {
  if (project_.generate(editor_.scheme())) analysis_->setProject(state_, state_.document.stScheme);
  refreshStatus();
}

void frmSTSetup::run() {
  if (!generateIfChanged()) return;
  refreshStatus();
  project_.run();
  analysis_->setProject(state_, state_.document.stScheme);
  tabs_->setCurrentWidget(analysis_);
}

void frmSTSetup::accept() {
  if (generateIfChanged()) QDialog::accept();
}

// Closing without keeping the edits asks first, so that no edited scheme is lost unnoticed.
void frmSTSetup::reject() {
  if (!SameScheme(editor_.scheme(), state_.document.stScheme) &&
      program_.messages.show(program_.strings.text(8806), tamsic::msg::kConfirmation, tamsic::MsgIcon::Question,
                             tamsic::MsgButtons::YesNo) != tamsic::MsgAnswer::Yes)
    return;
  QDialog::reject();
}

void frmSTSetup::refreshStatus() {
  const std::size_t generated = tamsic::CountTrailingSTScenarios(state_.document.scenarios);
  const bool current = SameScheme(editor_.scheme(), state_.document.stScheme) &&
                       generated == static_cast<std::size_t>(editor_.itemCount());
  if (current)
    lblStatus_->setText(text(8804) + QString::number(generated));
  else
    lblStatus_->setText(text(generated == 0 ? 8832 : 8805));
}

QString frmSTSetup::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }

QString frmSTSetup::scenarioName(std::size_t number) const {
  return FromFile(state_.document.scenarios.Item(number).Text(tamsic::F("txtSceneName")));
}
