#include "pages/ui/MortalityPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "pages/InputHelpers.h"
#include "pages/ui/GridView.h"

using tamsic::F;

MortalityPage::MortalityPage(const PageContext& context, QWidget* parent) : InputPage(context, 600, parent) {
  gridMortFemales = gridView("gridMortFemales", F("gridMortFemales"));
  gridMortMales = gridView("gridMortMales", F("gridMortMales"));
  // Odd columns hold a mean, even columns its SD.
  cmdMortCopyFemale = button("cmdMortCopyFemale", 605, 603);
  layOut();
  wire();
}

void MortalityPage::layOut() {
  auto* females = new QGroupBox(context_.text(607), this);
  (new QVBoxLayout(females))->addWidget(gridMortFemales);
  auto* males = new QGroupBox(context_.text(614), this);
  auto* malesLayout = new QVBoxLayout(males);
  auto* copy = new QHBoxLayout;
  copy->addWidget(cmdMortCopyFemale);
  copy->addStretch();
  malesLayout->addLayout(copy);
  malesLayout->addWidget(gridMortMales);

  auto* page = new QVBoxLayout(this);
  page->addWidget(females);
  page->addWidget(males);
  page->addStretch();
}

void MortalityPage::wire() { connect(cmdMortCopyFemale, &QPushButton::clicked, this, &MortalityPage::copyFemales); }

void MortalityPage::copyFemales() {
  tamsic::clsScenario record;
  storeInto(record);
  tamsic::CopyFemaleMortality(record);
  showRecord(record);
  emit edited();
}
