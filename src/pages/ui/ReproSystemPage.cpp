#include "pages/ui/ReproSystemPage.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "functions/BreedingFunction.h"
#include "pages/ui/GridView.h"

using tamsic::F;

ReproSystemPage::ReproSystemPage(const PageContext& context, QWidget* parent) : InputPage(context, 400, parent) {
  optMPHLQ_0 = option("optMPHLQ_0", F("optMPHLQ_0"));
  optMPHLQ_1 = option("optMPHLQ_1", F("optMPHLQ_1"));
  optMPHLQ_2 = option("optMPHLQ_2", F("optMPHLQ_2"));
  optMPHLQ_3 = option("optMPHLQ_3", F("optMPHLQ_3"));
  optMPHLQ_4 = option("optMPHLQ_4", F("optMPHLQ_4"));
  txtAgeReproF = textBox("txtAgeReproF", F("txtAgeReproF"));
  txtAgeReproM = textBox("txtAgeReproM", F("txtAgeReproM"));
  txtMaxAgeRepro = textBox("txtMaxAgeRepro", F("txtMaxAgeRepro"));
  txtMaxLitters = textBox("txtMaxLitters", F("txtMaxLitters"));
  txtMaxProgeny = textBox("txtMaxProgeny", F("txtMaxProgeny"));
  txtSexRatio = textBox("txtSexRatio", F("txtSexRatio"));
  gridReproSys = gridView("gridReproSys", F("gridReproSys"));
  cboReproFunction = new QComboBox(this);
  cboReproFunction->setObjectName("cboReproFunction");
  cboReproFunction->setToolTip(context.text(417));
  cmdReproFunction = button("cmdReproFunction", 440, 418);
  layOut();
  wire();
}

void ReproSystemPage::layOut() {
  auto* system = new QGroupBox(context_.text(423), this);
  auto* systemLayout = new QVBoxLayout(system);
  for (QRadioButton* option : {optMPHLQ_0, optMPHLQ_1, optMPHLQ_2, optMPHLQ_3, optMPHLQ_4})
    systemLayout->addWidget(option);

  auto* ages = new QFormLayout;
  ages->addRow(label(434), txtAgeReproF);
  ages->addRow(label(435), txtAgeReproM);
  ages->addRow(label(436), txtMaxAgeRepro);
  ages->addRow(label(437), txtMaxLitters);
  ages->addRow(label(438), txtMaxProgeny);
  ages->addRow(label(439), txtSexRatio);

  auto* top = new QHBoxLayout;
  top->addWidget(system);
  top->addLayout(ages, 1);

  auto* formula = new QVBoxLayout;
  for (int line = 413; line <= 416; ++line) formula->addWidget(label(line));
  auto* view = new QHBoxLayout;
  view->addWidget(cboReproFunction);
  view->addWidget(cmdReproFunction);
  view->addStretch();
  formula->addLayout(view);

  auto* page = new QVBoxLayout(this);
  page->addLayout(top);
  page->addWidget(gridReproSys);
  page->addLayout(formula);
  page->addStretch();
}

void ReproSystemPage::wire() {
  connect(optMPHLQ_2, &QRadioButton::toggled, this, &ReproSystemPage::applyEnabling);
  connect(cmdReproFunction, &QPushButton::clicked, this, &ReproSystemPage::viewFunction);
}

void ReproSystemPage::showRecord(const tamsic::clsScenario& record) {
  InputPage::showRecord(record);
  const tamsic::Grid& system = record.GetGrid(F("gridReproSys"));
  const int chosen = std::max(cboReproFunction->currentIndex(), 0);
  cboReproFunction->clear();
  for (std::size_t p = 1; p < system.cols(); ++p) cboReproFunction->addItem(FromRecord(system.at(0, p)));
  cboReproFunction->setCurrentIndex(std::min(chosen, cboReproFunction->count() - 1));
}

void ReproSystemPage::applyEnabling() {
  const bool hermaphroditic = optMPHLQ_2->isChecked();
  txtSexRatio->setEnabled(!hermaphroditic);
  txtAgeReproM->setEnabled(!hermaphroditic);
}

void ReproSystemPage::viewFunction() {
  const tamsic::Grid& system = gridReproSys->grid()->grid();
  const auto col = static_cast<std::size_t>(cboReproFunction->currentIndex() + 1);
  if (col < 1 || col >= system.cols() || system.rows() < 6) return;
  const tamsic::DensityParameters parameters{system.at(1, col) == "1", system.at(2, col), system.at(3, col),
                                             system.at(4, col), system.at(5, col)};
  const auto function = tamsic::ViewBreedingFunction(parameters, context_.messages);
  if (!function) return;
  if (context_.openFunctionPreview)
    context_.openFunctionPreview(FromRecord(*function));
  else
    context_.messages.show({*function, context_.strings.text(413), tamsic::MsgIcon::Information,
                            tamsic::MsgButtons::Ok});
}
