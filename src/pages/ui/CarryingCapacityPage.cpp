#include "pages/ui/CarryingCapacityPage.h"

#include <QLabel>
#include <QVBoxLayout>

#include "pages/ui/GridView.h"

using tamsic::F;

CarryingCapacityPage::CarryingCapacityPage(const PageContext& context, QWidget* parent)
    : InputPage(context, 1000, parent) {
  gridCarryingCap1 = gridView("gridCarryingCap1", F("gridCarryingCap1"));
  gridCarryingCap2 = gridView("gridCarryingCap2", F("gridCarryingCap2"));

  auto* page = new QVBoxLayout(this);
  page->addWidget(label(1001));
  page->addWidget(gridCarryingCap1);
  page->addWidget(label(1002));
  page->addWidget(gridCarryingCap2);
  page->addStretch();
}
