#include "pages/ui/SchedulePage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "pages/ui/GridView.h"

using tamsic::F;

SchedulePage::SchedulePage(const PageContext& context, const ScheduleNumbers& numbers, const char* schedule,
                           const char* females, const char* males, tamsic::Field scheduleField,
                           tamsic::Field femaleField, tamsic::Field maleField, QWidget* parent)
    : InputPage(context, numbers.title, parent) {
  schedule_ = gridView(schedule, scheduleField);
  females_ = gridView(females, femaleField);
  males_ = gridView(males, maleField);

  auto* frame = new QGroupBox(context.text(numbers.frame), this);
  (new QVBoxLayout(frame))->addWidget(schedule_);
  auto* femaleBox = new QGroupBox(context.text(numbers.femaleTitle), this);
  (new QVBoxLayout(femaleBox))->addWidget(females_);
  auto* maleBox = new QGroupBox(context.text(numbers.maleTitle), this);
  (new QVBoxLayout(maleBox))->addWidget(males_);
  auto* ages = new QHBoxLayout;
  ages->addWidget(femaleBox);
  ages->addWidget(maleBox);

  auto* page = new QVBoxLayout(this);
  page->addWidget(frame);
  page->addLayout(ages);
  page->addStretch();
}

HarvestPage::HarvestPage(const PageContext& context, QWidget* parent)
    : SchedulePage(context, {1100, 1109, 1110, 1112}, "gridHarvest", "gridHarvestF", "gridHarvestM",
                   F("gridHarvest"), F("gridHarvestF"), F("gridHarvestM"), parent),
      gridHarvest(schedule_),
      gridHarvestF(females_),
      gridHarvestM(males_) {}

SupplementPage::SupplementPage(const PageContext& context, QWidget* parent)
    : SchedulePage(context, {1200, 1209, 1210, 1212}, "gridSuppl", "gridSupplF", "gridSupplM",
                   F("gridSuppl"), F("gridSupplF"), F("gridSupplM"), parent),
      gridSuppl(schedule_),
      gridSupplF(females_),
      gridSupplM(males_) {}
