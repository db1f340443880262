#include "engine/ui/TextOutputPage.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>
#include <fstream>
#include <sstream>

#include "app/ui/Program.h"
#include "engine/OutputFiles.h"
#include "files/AtomicFile.h"
#include "files/TextCodec.h"
#include "model/Errors.h"
#include "results/TableExport.h"

namespace {

using tamsic::ScenarioOutput;

// The reports in the order of the chooser, with the message shown when one is missing.
constexpr ScenarioOutput kReports[] = {ScenarioOutput::InputReport, ScenarioOutput::DeterministicReport,
                                       ScenarioOutput::OutputReport};
constexpr int kOtherOutputRunTable = 2;

QString FromFile(const std::string& text) { return QString::fromStdString(tamsic::Cp1252ToUtf8(text)); }

std::optional<std::string> ReadWhole(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace

TextOutputPage::TextOutputPage(Program& program, const tamsic::ProjectState& state,
                               std::function<std::optional<std::string>(std::size_t)> checkIn, QWidget* parent)
    : QWidget(parent), program_(program), state_(state), checkIn_(std::move(checkIn)) {
  setObjectName("TextOutputPage");
  txtReport_ = new QPlainTextEdit(this);
  txtReport_->setObjectName("txtReport");
  txtReport_->setReadOnly(true);
  txtReport_->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtReport_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  grdOtherOutput_ = new QTableWidget(this);
  grdOtherOutput_->setObjectName("grdOtherOutput");
  grdOtherOutput_->setEditTriggers(QAbstractItemView::NoEditTriggers);

  auto* top = new QWidget(this);
  auto* topLayout = new QVBoxLayout(top);
  topLayout->setContentsMargins(0, 0, 0, 0);
  topLayout->addWidget(buildReportRow());
  topLayout->addWidget(txtReport_, 1);
  auto* bottom = new QWidget(this);
  auto* bottomLayout = new QVBoxLayout(bottom);
  bottomLayout->setContentsMargins(0, 0, 0, 0);
  bottomLayout->addWidget(buildOtherOutputRow());
  bottomLayout->addWidget(grdOtherOutput_, 1);
  auto* split = new QSplitter(Qt::Vertical, this);
  split->addWidget(top);
  split->addWidget(bottom);
  split->setStretchFactor(0, 3);
  split->setStretchFactor(1, 2);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(split);
  resultsChanged();
}

QWidget* TextOutputPage::buildReportRow() {
  auto* row = new QWidget(this);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  cboScenario_ = new QComboBox(row);
  cboScenario_->setObjectName("cboScenario");
  cboScenario_->setToolTip(text(1809));
  cboScenario_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  cboReport_ = new QComboBox(row);
  cboReport_->setObjectName("cboReport");
  cboReport_->setToolTip(text(1810));
  cboReport_->addItems({text(1801), text(1802), text(1803)});
  // What a user most often wants after a run.
  cboReport_->setCurrentIndex(2);
  auto* cmdShow = new QPushButton(text(1805), row);
  cmdShow->setObjectName("cmdShow");
  cboPopulation_ = new QComboBox(row);
  cboPopulation_->setObjectName("cboPopulation");
  cboPopulation_->setToolTip(text(1819));
  cboPopulation_->setVisible(false);
  txtFind_ = new QLineEdit(row);
  txtFind_->setObjectName("txtFind");
  txtFind_->setMaximumWidth(160);
  auto* cmdFind = new QPushButton(text(1808), row);
  cmdFind->setObjectName("cmdFind");
  auto* cmdSaveAs = new QPushButton(text(1807), row);
  cmdSaveAs->setObjectName("cmdSaveAs");
  line->addWidget(new QLabel(text(1804), row));
  line->addWidget(cboScenario_);
  line->addWidget(cboReport_);
  line->addWidget(cmdShow);
  line->addSpacing(12);
  line->addWidget(cboPopulation_);
  line->addStretch(1);
  line->addWidget(txtFind_);
  line->addWidget(cmdFind);
  line->addWidget(cmdSaveAs);
  connect(cmdShow, &QPushButton::clicked, this, &TextOutputPage::showReport);
  connect(cboScenario_, &QComboBox::activated, this, &TextOutputPage::showReport);
  connect(cboReport_, &QComboBox::activated, this, &TextOutputPage::showReport);
  connect(cboPopulation_, &QComboBox::activated, this, &TextOutputPage::goToPopulation);
  connect(cmdFind, &QPushButton::clicked, this, &TextOutputPage::find);
  connect(txtFind_, &QLineEdit::returnPressed, this, &TextOutputPage::find);
  connect(cmdSaveAs, &QPushButton::clicked, this, &TextOutputPage::saveReportAs);
  return row;
}

QWidget* TextOutputPage::buildOtherOutputRow() {
  auto* row = new QWidget(this);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  cboOtherOutput_ = new QComboBox(row);
  cboOtherOutput_->setObjectName("cboOtherOutput");
  cboOtherOutput_->setToolTip(text(1818));
  cboOtherOutput_->addItems({text(1812), text(1813), text(1814)});
  auto* cmdExport = new QPushButton(text(1815), row);
  cmdExport->setObjectName("cmdExportOther");
  auto* cmdCopy = new QPushButton(text(1816), row);
  cmdCopy->setObjectName("cmdCopyOther");
  line->addWidget(new QLabel(text(1811), row));
  line->addWidget(cboOtherOutput_);
  line->addStretch(1);
  line->addWidget(cmdExport);
  line->addWidget(cmdCopy);
  connect(cboOtherOutput_, &QComboBox::activated, this, &TextOutputPage::showOtherOutput);
  connect(cmdExport, &QPushButton::clicked, this, &TextOutputPage::exportOtherOutput);
  connect(cmdCopy, &QPushButton::clicked, this, [this] {
    QApplication::clipboard()->setText(FromFile(tamsic::ToTabText(otherOutputRows())));
  });
  return row;
}

const QTextDocument* TextOutputPage::reportDocument() const { return txtReport_->document(); }

void TextOutputPage::resultsChanged() {
  const int shown = std::max(0, cboScenario_->currentIndex());
  cboScenario_->clear();
  const auto& scenarios = state_.document.scenarios;
  for (std::size_t n = 1; n <= scenarios.Count(); ++n)
    cboScenario_->addItem(FromFile(scenarios.Item(n).Text(tamsic::F("txtSceneName"))));
  cboScenario_->setCurrentIndex(std::min(shown, cboScenario_->count() - 1));
  txtReport_->clear();
  cboPopulation_->clear();
  cboPopulation_->setVisible(false);
  grdOtherOutput_->clear();
  grdOtherOutput_->setRowCount(0);
  grdOtherOutput_->setColumnCount(0);
  cboOtherOutput_->setCurrentIndex(0);
}

void TextOutputPage::showScenario(std::size_t number) {
  if (number >= 1 && static_cast<int>(number) <= cboScenario_->count())
    cboScenario_->setCurrentIndex(static_cast<int>(number) - 1);
}

std::string TextOutputPage::scenarioName() const {
  const std::size_t number = static_cast<std::size_t>(cboScenario_->currentIndex() + 1);
  if (number < 1 || number > state_.document.scenarios.Count()) return {};
  return state_.document.scenarios.Item(number).Text(tamsic::F("txtSceneName"));
}

std::filesystem::path TextOutputPage::folder() const { return tamsic::ResultsFolder(state_); }

std::filesystem::path TextOutputPage::file(tamsic::ScenarioOutput kind) const {
  return tamsic::ScenarioOutputFile(folder(), state_.document.title, scenarioName(), kind);
}

void TextOutputPage::showReport() {
  const int choice = cboReport_->currentIndex();
  if (choice < 0 || cboScenario_->currentIndex() < 0) return;
  const ScenarioOutput kind = kReports[static_cast<std::size_t>(choice)];
  const std::filesystem::path report = file(kind);
  txtReport_->clear();
  cboPopulation_->clear();
  cboPopulation_->setVisible(false);
  auto& messages = program_.messages;
  if (kind == ScenarioOutput::OutputReport) {
    const auto contents = ReadWhole(report);
    if (!contents) {
      messages.show(messages.text(9123) + tamsic::Cp1252ToUtf8(report.string()) + messages.text(9124),
                    tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
      return;
    }
    txtReport_->setPlainText(FromFile(*contents));
    fillPopulations();
    return;
  }
  makeReportIfMissing(report);
  const auto contents = ReadWhole(report);
  if (!contents) {
    const int missing = kind == ScenarioOutput::InputReport ? 9125 : 9122;
    messages.show(messages.text(missing), tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return;
  }
  txtReport_->setPlainText(FromFile(*contents));
}

// The engine writes both reports on a check-in with flag 1.
void TextOutputPage::makeReportIfMissing(const std::filesystem::path& report) {
  if (std::filesystem::exists(report)) return;
  const auto reply = checkIn_(static_cast<std::size_t>(cboScenario_->currentIndex() + 1));
  if (reply && !reply->starts_with("Message"))
    program_.messages.show({tamsic::Cp1252ToUtf8(*reply), "Tamsic.dll", tamsic::MsgIcon::Critical});
}

void TextOutputPage::fillPopulations() {
  const auto& record = state_.document.scenarios.Item(static_cast<std::size_t>(cboScenario_->currentIndex() + 1));
  const int populations = std::atoi(record.Text(tamsic::F("txtNumPop")).c_str());
  // The engine heads the report's blocks in English; the chooser names them in the user's words.
  for (int n = 1; n <= populations; ++n)
    cboPopulation_->addItem(text(1817) + " " + QString::number(n), QStringLiteral("Population %1").arg(n));
  cboPopulation_->addItem(text(1924), QStringLiteral("Metapopulation"));
  cboPopulation_->addItem(text(1925), QStringLiteral("Within"));
  cboPopulation_->setCurrentIndex(0);
  cboPopulation_->setVisible(true);
}

void TextOutputPage::goToPopulation(int index) {
  if (index < 0) return;
  txtReport_->moveCursor(QTextCursor::Start);
  txtReport_->find(cboPopulation_->itemData(index).toString());
  txtReport_->centerCursor();
}

void TextOutputPage::find() {
  const QString wanted = txtFind_->text();
  if (wanted.isEmpty()) return;
  if (txtReport_->find(wanted)) return;
  txtReport_->moveCursor(QTextCursor::Start);
  if (!txtReport_->find(wanted))
    program_.messages.show(program_.messages.text(1820) + wanted.toStdString(), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Information);
}

void TextOutputPage::saveReportAs() {
  if (txtReport_->document()->isEmpty()) return;
  const QString path = QFileDialog::getSaveFileName(this, text(1807), QString::fromStdString(folder().string()),
                                                    text(1821) + " (*.txt)");
  if (path.isEmpty()) return;
  try {
    tamsic::WriteFileReplacing(path.toStdString(), txtReport_->toPlainText().toStdString());
  } catch (const tamsic::FileError& error) {
    program_.messages.show(error.what(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
  }
}

void TextOutputPage::showOtherOutput() {
  grdOtherOutput_->clear();
  grdOtherOutput_->setRowCount(0);
  grdOtherOutput_->setColumnCount(0);
  const int choice = cboOtherOutput_->currentIndex();
  if (choice <= 0) return;
  const std::filesystem::path table = choice == kOtherOutputRunTable
                                          ? file(ScenarioOutput::RunTable)
                                          : tamsic::SummaryFile(folder(), state_.document.title);
  auto& messages = program_.messages;
  if (!std::filesystem::exists(table)) {
    messages.show(messages.text(9112) + tamsic::Cp1252ToUtf8(table.string()) + messages.text(9113) +
                      tamsic::Cp1252ToUtf8(scenarioName()) + ".'",
                  tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return;
  }
  try {
    const tamsic::TableFile records = tamsic::ReadTableFile(table);
    grdOtherOutput_->setColumnCount(static_cast<int>(std::max(records.columns, records.headings.size())));
    for (std::size_t c = 0; c < records.headings.size(); ++c)
      grdOtherOutput_->setHorizontalHeaderItem(static_cast<int>(c),
                                               new QTableWidgetItem(FromFile(records.headings[c])));
    grdOtherOutput_->setRowCount(static_cast<int>(records.rows.size()));
    for (std::size_t r = 0; r < records.rows.size(); ++r)
      for (std::size_t c = 0; c < records.rows[r].size(); ++c)
        grdOtherOutput_->setItem(static_cast<int>(r), static_cast<int>(c),
                                 new QTableWidgetItem(FromFile(records.rows[r][c])));
    grdOtherOutput_->resizeColumnsToContents();
  } catch (const tamsic::FileError& error) {
    messages.show(error.what(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
  }
}

QString TextOutputPage::otherOutputCsv() const { return FromFile(tamsic::ToCsv(otherOutputRows())); }

tamsic::TableRows TextOutputPage::otherOutputRows() const {
  tamsic::TableRows rows(1);
  for (int c = 0; c < grdOtherOutput_->columnCount(); ++c) {
    const QTableWidgetItem* heading = grdOtherOutput_->horizontalHeaderItem(c);
    rows.front().push_back(heading ? tamsic::Utf8ToCp1252(heading->text().toStdString()) : std::to_string(c + 1));
  }
  for (int r = 0; r < grdOtherOutput_->rowCount(); ++r) {
    auto& row = rows.emplace_back();
    for (int c = 0; c < grdOtherOutput_->columnCount(); ++c) {
      const QTableWidgetItem* item = grdOtherOutput_->item(r, c);
      row.push_back(item ? tamsic::Utf8ToCp1252(item->text().toStdString()) : std::string());
    }
  }
  return rows;
}

void TextOutputPage::exportOtherOutput() {
  if (grdOtherOutput_->rowCount() == 0) return;
  const QString path = QFileDialog::getSaveFileName(this, text(1815), QString::fromStdString(folder().string()),
                                                    QStringLiteral("CSV (*.csv)"));
  if (path.isEmpty()) return;
  try {
    tamsic::WriteFileReplacing(path.toStdString(), tamsic::ToCsv(otherOutputRows()));
  } catch (const tamsic::FileError& error) {
    program_.messages.show(error.what(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
  }
}

QString TextOutputPage::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
