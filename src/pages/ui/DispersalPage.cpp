#include "pages/ui/DispersalPage.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/TextNumbers.h"
#include "pages/InputChecks.h"
#include "pages/InputHelpers.h"
#include "pages/ui/GridView.h"

using tamsic::F;

DispersalPage::DispersalPage(const PageContext& context, QWidget* parent) : InputPage(context, 300, parent) {
  txtDispYoung = textBox("txtDispYoung", F("txtDispYoung"));
  txtDispOld = textBox("txtDispOld", F("txtDispOld"), [this](const QString& old) {
    return tamsic::TestDispersalAges(ToRecord(txtDispYoung->text()), ToRecord(old), context_.messages);
  });
  chkDispMales = checkBox("chkDispMales", F("chkDispMales"));
  chkDispFemales = checkBox("chkDispFemales", F("chkDispFemales"));
  txtPercentDispSurvive = textBox("txtPercentDispSurvive", F("txtPercentDispSurvive"));
  txtDensDispersal = textBox("txtDensDispersal", F("txtDensDispersal"));
  txtDensDispersal->setMaximumWidth(320);
  txtDensDispersal->setMinimumWidth(200);
  gridDispRates = gridView("gridDispRates", F("gridDispRates"));
  gridDispRates->grid()->cellUse = [](int row, int col) { return row == col ? CellUse::Computed : CellUse::Value; };
  gridDispRates->grid()->computedText = [this](int row, int) { return notDispersing(row); };
  txtFillDispersal = new QLineEdit(this);
  txtFillDispersal->setObjectName("txtFillDispersal");
  txtFillDispersal->setToolTip(context.text(305));
  cmdFillDispersal = button("cmdFillDispersal", 322, 306);
  txtApplyMultiplier = new QLineEdit(this);
  txtApplyMultiplier->setObjectName("txtApplyMultiplier");
  txtApplyMultiplier->setToolTip(context.text(301));
  cmdApplyMultiplier = button("cmdApplyMultiplier", 321, 308);
  SSCommand1 = button("SSCommand1", 319, 304);
  SSCommand2 = button("SSCommand2", 320, 303);
  chooseFile = [this](bool save) {
    const QString filter = QString::fromStdString(context_.strings.text(326)) + " (*.txt)";
    return save ? QFileDialog::getSaveFileName(this, {}, "RateMatrix.txt", filter)
                : QFileDialog::getOpenFileName(this, {}, "RateMatrix.txt", filter);
  };
  layOut();
  wire();
}

void DispersalPage::layOut() {
  auto* ages = new QGroupBox(context_.text(313), this);
  auto* agesForm = new QFormLayout(ages);
  agesForm->addRow(label(314), txtDispYoung);
  agesForm->addRow(label(315), txtDispOld);

  auto* sexes = new QGroupBox(context_.text(316), this);
  auto* sexesLayout = new QVBoxLayout(sexes);
  sexesLayout->addWidget(chkDispFemales);
  sexesLayout->addWidget(chkDispMales);

  auto* survival = new QFormLayout;
  survival->addRow(label(323), txtPercentDispSurvive);
  survival->addRow(label(324), txtDensDispersal);

  auto* top = new QHBoxLayout;
  top->addWidget(ages);
  top->addWidget(sexes);
  top->addLayout(survival, 1);

  auto* helpers = new QGridLayout;
  helpers->addWidget(cmdFillDispersal, 0, 0);
  helpers->addWidget(txtFillDispersal, 0, 1);
  helpers->addWidget(cmdApplyMultiplier, 1, 0);
  helpers->addWidget(txtApplyMultiplier, 1, 1);
  helpers->addWidget(SSCommand1, 0, 2);
  helpers->addWidget(SSCommand2, 1, 2);
  helpers->setColumnStretch(3, 1);

  auto* matrix = new QGroupBox(context_.text(325), this);
  auto* matrixLayout = new QVBoxLayout(matrix);
  matrixLayout->addWidget(gridDispRates);
  matrixLayout->addLayout(helpers);

  auto* page = new QVBoxLayout(this);
  page->addLayout(top);
  page->addWidget(matrix);
  page->addStretch();
}

void DispersalPage::wire() {
  connect(cmdFillDispersal, &QPushButton::clicked, this, &DispersalPage::fill);
  connect(cmdApplyMultiplier, &QPushButton::clicked, this, &DispersalPage::applyMultiplier);
  connect(SSCommand1, &QPushButton::clicked, this, &DispersalPage::importMatrix);
  connect(SSCommand2, &QPushButton::clicked, this, &DispersalPage::exportMatrix);
}

// What stays home: 100 less the percents leaving for the other populations.
QString DispersalPage::notDispersing(int row) const {
  const tamsic::Grid& rates = gridDispRates->grid()->grid();
  double leaving = 0;
  for (std::size_t c = 1; c < rates.cols(); ++c)
    if (c != static_cast<std::size_t>(row)) leaving += tamsic::LeadingNumber(rates.at(row, c));
  return QString::fromStdString(tamsic::NumberToText(100 - leaving));
}

void DispersalPage::replaceMatrix(const tamsic::Grid& rates) {
  gridDispRates->grid()->setGrid(rates);
  emit edited();
}

void DispersalPage::fill() {
  tamsic::Grid rates = gridDispRates->grid()->grid();
  if (!tamsic::FillDispersal(rates, ToRecord(txtFillDispersal->text()))) {
    context_.messages.show(context_.strings.text(tamsic::msg::kInvalidInput), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Critical);
    return;
  }
  replaceMatrix(rates);
}

void DispersalPage::applyMultiplier() {
  tamsic::Grid rates = gridDispRates->grid()->grid();
  if (!tamsic::ApplyDispersalMultiplier(rates, ToRecord(txtApplyMultiplier->text()))) {
    context_.messages.show(context_.strings.text(tamsic::msg::kInvalidInput), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Critical);
    return;
  }
  replaceMatrix(rates);
}

void DispersalPage::exportMatrix() {
  const QString path = chooseFile(true);
  if (path.isEmpty()) return;
  QFile file(path);
  const std::string text = tamsic::ExportRateMatrix(gridDispRates->grid()->grid());
  if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), static_cast<qint64>(text.size())) < 0)
    context_.messages.show(context_.messages.text(tamsic::msg::kRateMatrixNotWritten) + path.toStdString() + ": " +
                               file.errorString().toStdString(),
                           tamsic::msg::kError, tamsic::MsgIcon::Critical);
}

void DispersalPage::importMatrix() {
  const QString path = chooseFile(false);
  if (path.isEmpty()) return;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    context_.messages.show(context_.messages.text(tamsic::msg::kRateMatrixNotRead) + path.toStdString() + ": " +
                               file.errorString().toStdString(),
                           tamsic::msg::kError, tamsic::MsgIcon::Critical);
    return;
  }
  tamsic::Grid rates = gridDispRates->grid()->grid();
  const QByteArray contents = file.readAll();
  if (const auto problem = tamsic::ImportRateMatrix(rates, contents.toStdString(), context_.strings)) {
    context_.messages.show(path.toStdString() + ":\n" + *problem, tamsic::msg::kError, tamsic::MsgIcon::Critical);
    return;
  }
  replaceMatrix(rates);
}
