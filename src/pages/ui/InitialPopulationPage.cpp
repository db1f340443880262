#include "pages/ui/InitialPopulationPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "pages/ui/GridView.h"

using tamsic::F;

InitialPopulationPage::InitialPopulationPage(const PageContext& context, QWidget* parent)
    : InputPage(context, 900, parent) {
  optStartWith_0 = option("optStartWith_0", F("optStartWith_0"));
  optStartWith_1 = option("optStartWith_1", F("optStartWith_1"));
  gridInitPopStable = gridView("gridInitPopStable", F("gridInitPopStable"));
  gridInitPopFemale = gridView("gridInitPopFemale", F("gridInitPopFemale"));
  gridInitPopMale = gridView("gridInitPopMale", F("gridInitPopMale"));
  layOut();
  wire();
}

void InitialPopulationPage::layOut() {
  auto* start = new QGroupBox(context_.text(906), this);
  auto* startLayout = new QHBoxLayout(start);
  startLayout->addWidget(optStartWith_0);
  startLayout->addWidget(optStartWith_1);
  startLayout->addStretch();

  auto* page = new QVBoxLayout(this);
  page->addWidget(start);
  page->addWidget(label(909));
  page->addWidget(gridInitPopStable);
  page->addWidget(label(910));
  page->addWidget(gridInitPopFemale);
  page->addWidget(label(911));
  page->addWidget(gridInitPopMale);
  page->addStretch();
}

void InitialPopulationPage::wire() {
  connect(optStartWith_0, &QRadioButton::toggled, this, &InitialPopulationPage::applyEnabling);
}

void InitialPopulationPage::applyEnabling() {
  const bool stable = optStartWith_0->isChecked();
  gridInitPopStable->setGridEnabled(stable);
  gridInitPopFemale->setGridEnabled(!stable);
  gridInitPopMale->setGridEnabled(!stable);
}
