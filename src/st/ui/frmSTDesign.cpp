#include "st/ui/frmSTDesign.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>
#include <optional>

#include "app/HelpTopics.h"
#include "app/ui/HelpDesk.h"
#include "app/ui/Program.h"
#include "files/TextCodec.h"
#include "model/TextNumbers.h"
#include "st/STDesigns.h"
#include "st/STAnswers.h"
#include "st/basST.h"

namespace {

constexpr char kOk[] = "OK";
// More scenarios than this are more than a desktop run can be asked to make in one go.
constexpr std::size_t kMostItems = 1000;

std::optional<double> Number(const QString& text) {
  bool ok = false;
  const double value = text.trimmed().toDouble(&ok);
  return ok && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

QString Shown(double value) { return QString::number(value, 'g', 6); }

}  // namespace

frmSTDesign::frmSTDesign(Program& program, tamsic::Engine& engine, const tamsic::ScenarioCollection& scenarios,
                         const std::vector<std::size_t>& baselines, QWidget* parent)
    : QDialog(parent), program_(program), engine_(engine), scenarios_(scenarios) {
  setObjectName("frmSTDesign");
  setWindowTitle(text(8808));
  optRange_ = new QRadioButton(text(8809), this);
  optFactorial_ = new QRadioButton(text(8810), this);
  optLatin_ = new QRadioButton(text(8811), this);
  optRange_->setObjectName("optRange");
  optFactorial_->setObjectName("optFactorial");
  optLatin_->setObjectName("optLatin");
  optLatin_->setChecked(true);
  auto* kinds = new QButtonGroup(this);
  for (QRadioButton* kind : {optRange_, optFactorial_, optLatin_}) kinds->addButton(kind);
  connect(kinds, &QButtonGroup::buttonClicked, this, &frmSTDesign::kindChosen);

  cboBaseline_ = new QComboBox(this);
  cboBaseline_->setObjectName("cboBaseline");
  cboBaseline_->setToolTip(text(8621));
  for (std::size_t number : baselines)
    cboBaseline_->addItem(
        QString::fromStdString(tamsic::Cp1252ToUtf8(scenarios_.Item(number).Text(tamsic::F("txtSceneName")))),
        static_cast<int>(number));
  connect(cboBaseline_, &QComboBox::currentIndexChanged, this, [this] {
    gridRanges_->setRowCount(0);
    addRange();
  });

  const auto spin = [this](const char* name, int low, int high, int value, int hint) {
    auto* box = new QSpinBox(this);
    box->setObjectName(name);
    box->setRange(low, high);
    box->setValue(value);
    box->setToolTip(text(hint));
    return box;
  };
  txtSteps_ = spin("txtSteps", 2, 100, 5, 8829);
  txtSamples_ = spin("txtSamples", 2, static_cast<int>(kMostItems), 50, 8830);
  txtSeed_ = spin("txtSeed", 0, 999999999, 1, 8831);

  auto* form = new QFormLayout;
  form->addRow(text(8602), cboBaseline_);
  form->addRow(text(8814), txtSteps_);
  form->addRow(text(8815), txtSamples_);
  form->addRow(text(8816), txtSeed_);

  auto* buttons = new QDialogButtonBox(this);
  QPushButton* cmdOk = buttons->addButton(text(8616), QDialogButtonBox::AcceptRole);
  QPushButton* cmdCancel = buttons->addButton(text(8617), QDialogButtonBox::RejectRole);
  QPushButton* cmdHelp = buttons->addButton(text(8618), QDialogButtonBox::HelpRole);
  cmdOk->setObjectName("cmdOk");
  cmdCancel->setObjectName("cmdCancel");
  cmdHelp->setObjectName("cmdHelp");
  connect(buttons, &QDialogButtonBox::accepted, this, &frmSTDesign::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this,
          [this] { ShowHelpTopic(this, tamsic::help::kSensitivityTesting); });

  auto* layout = new QVBoxLayout(this);
  for (QRadioButton* kind : {optRange_, optFactorial_, optLatin_}) layout->addWidget(kind);
  layout->addLayout(form);
  layout->addWidget(buildRanges(), 1);
  layout->addWidget(buttons);
  addRange();
  kindChosen();
  resize(640, 460);
}

QWidget* frmSTDesign::buildRanges() {
  auto* panel = new QWidget(this);
  gridRanges_ = new QTableWidget(0, 3, panel);
  gridRanges_->setObjectName("gridRanges");
  gridRanges_->setHorizontalHeaderLabels({text(8604), text(8812), text(8813)});
  gridRanges_->verticalHeader()->setVisible(false);
  gridRanges_->setColumnWidth(0, 300);
  gridRanges_->horizontalHeader()->setStretchLastSection(true);
  auto* cmdAddVar = new QPushButton(text(8608), panel);
  auto* cmdRemoveVar = new QPushButton(text(8609), panel);
  cmdAddVar->setObjectName("cmdAddVar");
  cmdRemoveVar->setObjectName("cmdRemoveVar");
  for (QPushButton* command : {cmdAddVar, cmdRemoveVar}) command->setAutoDefault(false);
  connect(cmdAddVar, &QPushButton::clicked, this, &frmSTDesign::addRange);
  connect(cmdRemoveVar, &QPushButton::clicked, this, &frmSTDesign::removeRange);
  auto* commands = new QHBoxLayout;
  commands->addWidget(cmdAddVar);
  commands->addWidget(cmdRemoveVar);
  commands->addStretch(1);
  auto* layout = new QVBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(gridRanges_, 1);
  layout->addLayout(commands);
  return panel;
}

// A new range takes the first variable not ranged yet whose baseline value is
// a number that may change by 20 % either way; the user picks another at will.
void frmSTDesign::addRange() {
  if (cboBaseline_->count() == 0) return;
  QStringList ranged;
  for (int r = 0; r < gridRanges_->rowCount(); ++r)
    ranged << qobject_cast<QComboBox*>(gridRanges_->cellWidget(r, 0))->currentText();
  const int row = gridRanges_->rowCount();
  gridRanges_->setRowCount(row + 1);
  auto* variable = new QComboBox(gridRanges_);
  int first = -1;
  for (const std::string& name : tamsic::STVariableNames(baseline())) {
    const QString shown = QString::fromStdString(name);
    if (first < 0 && !ranged.contains(shown) && suggestedRange(shown)) first = variable->count();
    variable->addItem(shown);
  }
  variable->setCurrentIndex(std::max(first, 0));
  gridRanges_->setCellWidget(row, 0, variable);
  gridRanges_->setItem(row, 1, new QTableWidgetItem);
  gridRanges_->setItem(row, 2, new QTableWidgetItem);
  connect(variable, &QComboBox::currentTextChanged, this, [this, variable] {
    for (int r = 0; r < gridRanges_->rowCount(); ++r)
      if (gridRanges_->cellWidget(r, 0) == variable) showSuggestedRange(r);
  });
  showSuggestedRange(row);
}

std::optional<std::pair<QString, QString>> frmSTDesign::suggestedRange(const QString& name) const {
  const std::string variable = name.toStdString();
  const auto value = tamsic::STBaselineValue(baseline(), variable);
  if (!value) return std::nullopt;
  const std::optional<double> number = Number(QString::fromStdString(*value));
  if (!number || *number == 0) return std::nullopt;
  const std::pair<QString, QString> range{Shown(*number * 0.8), Shown(*number * 1.2)};
  for (const QString& end : {range.first, range.second})
    if (tamsic::CheckSTValue(variable, end.toStdString(), baseline(), engine_) != kOk) return std::nullopt;
  return range;
}

void frmSTDesign::showSuggestedRange(int row) {
  const auto* variable = qobject_cast<QComboBox*>(gridRanges_->cellWidget(row, 0));
  const auto range = suggestedRange(variable->currentText());
  gridRanges_->item(row, 1)->setText(range ? range->first : QString());
  gridRanges_->item(row, 2)->setText(range ? range->second : QString());
}

void frmSTDesign::removeRange() {
  const int row = gridRanges_->currentRow() >= 0 ? gridRanges_->currentRow() : gridRanges_->rowCount() - 1;
  if (row >= 0) gridRanges_->removeRow(row);
}

void frmSTDesign::kindChosen() {
  txtSteps_->setEnabled(!optLatin_->isChecked());
  txtSamples_->setEnabled(optLatin_->isChecked());
  txtSeed_->setEnabled(optLatin_->isChecked());
}

const tamsic::clsScenario& frmSTDesign::baseline() const {
  return scenarios_.Item(static_cast<std::size_t>(cboBaseline_->currentData().toInt()));
}

void frmSTDesign::accept() {
  auto made = design();
  if (!made) return;
  items_ = std::move(*made);
  QDialog::accept();
}

std::optional<std::vector<tamsic::STItem>> frmSTDesign::design() {
  if (cboBaseline_->count() == 0) return std::nullopt;
  std::vector<tamsic::STRange> ranges;
  for (int row = 0; row < gridRanges_->rowCount(); ++row) {
    const auto from = Number(gridRanges_->item(row, 1)->text());
    const auto to = Number(gridRanges_->item(row, 2)->text());
    if (!from || !to) {
      refuse(8818);
      return std::nullopt;
    }
    const auto* variable = qobject_cast<QComboBox*>(gridRanges_->cellWidget(row, 0));
    ranges.push_back({variable->currentText().toStdString(), *from, *to, txtSteps_->value()});
  }
  const std::size_t count = ranges.size();
  const bool fits = optRange_->isChecked()       ? count == 1
                    : optFactorial_->isChecked() ? count == 2 || count == 3
                                                 : count >= 1 && count <= 10;
  if (!fits) {
    refuse(8819);
    return std::nullopt;
  }
  const std::size_t total = optRange_->isChecked()       ? static_cast<std::size_t>(txtSteps_->value())
                            : optFactorial_->isChecked() ? static_cast<std::size_t>(std::pow(txtSteps_->value(), count))
                                                         : static_cast<std::size_t>(txtSamples_->value());
  if (total > kMostItems) {
    refuse(8820);
    return std::nullopt;
  }

  const int scenario = cboBaseline_->currentData().toInt();
  std::vector<tamsic::STItem> items = optRange_->isChecked() ? tamsic::RangeItems(scenario, ranges.front())
                                      : optFactorial_->isChecked()
                                          ? tamsic::FactorialItems(scenario, ranges)
                                          : tamsic::LatinHypercubeItems(scenario, ranges, txtSamples_->value(),
                                                                        static_cast<std::uint64_t>(txtSeed_->value()));
  // The design's values meet the same checks as typed ones: a range past a variable's bounds is refused here.
  for (const tamsic::STItem& item : items)
    for (std::size_t v = 0; v < item.Vars.size(); ++v)
      if (const std::string answer = tamsic::CheckSTValue(item.Vars[v], item.Vals[v], baseline(), engine_);
          answer != kOk) {
        program_.messages.show(
            item.Vars[v] + " = " + item.Vals[v] + ": " + tamsic::LocalizedSTAnswer(answer, program_.strings),
            tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
        return std::nullopt;
      }
  return items;
}

void frmSTDesign::refuse(int number) {
  program_.messages.show(program_.strings.text(number), tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
}

QString frmSTDesign::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
