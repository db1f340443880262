#include "pages/ui/SpeciesPage.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>


using tamsic::F;

SpeciesPage::SpeciesPage(const PageContext& context, QWidget* parent) : InputPage(context, 100, parent) {
  chkDepress = checkBox("chkDepress", F("chkDepress"));
  txtLethalEquiv = textBox("txtLethalEquiv", F("txtLethalEquiv"));
  txtPercentLethal = textBox("txtPercentLethal", F("txtPercentLethal"));
  chkEVConcord = checkBox("chkEVConcord", F("chkEVConcord"));
  txtEV = textBox("txtEV", F("txtEV"));
  txtNumCatast = textBox("txtNumCatast", F("txtNumCatast"));
  layOut();
  wire();
}

void SpeciesPage::layOut() {
  auto* inbreeding = new QGroupBox(context_.text(107), this);
  auto* inner = new QFormLayout(inbreeding);
  lethalLabel_ = label(108);
  percentLabel_ = label(109);
  inner->addRow(chkDepress);
  inner->addRow(lethalLabel_, txtLethalEquiv);
  inner->addRow(percentLabel_, txtPercentLethal);

  auto* variation = new QGroupBox(context_.text(114), this);
  auto* ev = new QFormLayout(variation);
  ev->addRow(chkEVConcord);
  ev->addRow(label(111), txtEV);

  auto* catastrophes = new QFormLayout;
  catastrophes->addRow(label(113), txtNumCatast);

  auto* page = new QVBoxLayout(this);
  page->addWidget(inbreeding);
  page->addWidget(variation);
  page->addLayout(catastrophes);
  page->addStretch();
}

void SpeciesPage::wire() { connect(chkDepress, &QCheckBox::toggled, this, &SpeciesPage::applyEnabling); }

void SpeciesPage::setPopulationCount(int count) {
  populations_ = count;
  applyEnabling();
}

void SpeciesPage::applyEnabling() {
  const bool depression = chkDepress->isChecked();
  for (QWidget* w : std::initializer_list<QWidget*>{txtLethalEquiv, txtPercentLethal, lethalLabel_, percentLabel_})
    w->setEnabled(depression);
  txtEV->setEnabled(populations_ > 1);
}
