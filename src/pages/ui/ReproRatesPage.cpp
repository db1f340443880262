#include "pages/ui/ReproRatesPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "pages/ui/GridView.h"

using tamsic::F;

namespace {

// The last row of an exact distribution is whatever the rows above leave of 100.
void LastRowComputed(GridView* view) {
  GridModel* model = view->grid();
  model->cellUse = [model](int row, int) {
    return row == static_cast<int>(model->grid().rows()) - 1 ? CellUse::Computed : CellUse::Value;
  };
}

}  // namespace

ReproRatesPage::ReproRatesPage(const PageContext& context, QWidget* parent) : InputPage(context, 500, parent) {
  gridRepRates1 = gridView("gridRepRates1", F("gridRepRates1"));
  optUseMean_0 = option("optUseMean_0", F("optUseMean_0"));
  optUseMean_1 = option("optUseMean_1", F("optUseMean_1"));
  gridRepRates2 = gridView("gridRepRates2", F("gridRepRates2"));
  gridRepRates3 = gridView("gridRepRates3", F("gridRepRates3"));
  gridRepRates4 = gridView("gridRepRates4", F("gridRepRates4"));
  LastRowComputed(gridRepRates3);
  LastRowComputed(gridRepRates4);
  layOut();
  wire();
}

void ReproRatesPage::layOut() {
  auto* progeny = new QGroupBox(context_.text(510), this);
  auto* progenyLayout = new QVBoxLayout(progeny);
  auto* choices = new QHBoxLayout;
  choices->addWidget(optUseMean_0);
  choices->addWidget(optUseMean_1);
  choices->addStretch();
  auto* exact = new QGroupBox(context_.text(520), progeny);
  auto* exactLayout = new QVBoxLayout(exact);
  exactLayout->addWidget(gridRepRates3);
  auto* tables = new QHBoxLayout;
  tables->addWidget(gridRepRates2);
  tables->addWidget(exact);
  tables->addStretch();
  progenyLayout->addLayout(choices);
  progenyLayout->addLayout(tables);

  auto* broods = new QGroupBox(context_.text(515), this);
  auto* broodsLayout = new QVBoxLayout(broods);
  broodsLayout->addWidget(gridRepRates4);

  auto* page = new QVBoxLayout(this);
  page->addWidget(gridRepRates1);
  page->addWidget(progeny);
  page->addWidget(broods);
  page->addStretch();
}

void ReproRatesPage::wire() {
  connect(optUseMean_0, &QRadioButton::toggled, this, &ReproRatesPage::applyEnabling);
}

void ReproRatesPage::applyEnabling() {
  const bool normal = optUseMean_0->isChecked();
  gridRepRates2->setGridEnabled(normal);
  gridRepRates3->setGridEnabled(!normal);
}
