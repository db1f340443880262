#pragma once
// The layout shared by "Harvest" and "Supplementation": a schedule per
// population (whether, first year, last year, interval, optional criterion)
// and the numbers of females and males of each age class taken or added.
#include "pages/ui/InputPage.h"

struct ScheduleNumbers {
  int title;
  int femaleTitle;
  int maleTitle;
  int frame;
};

class SchedulePage : public InputPage {
  Q_OBJECT
 protected:
  SchedulePage(const PageContext& context, const ScheduleNumbers& numbers, const char* schedule,
               const char* females, const char* males, tamsic::Field scheduleField, tamsic::Field femaleField,
               tamsic::Field maleField, QWidget* parent);

  GridView* schedule_;
  GridView* females_;
  GridView* males_;
};

class HarvestPage : public SchedulePage {
  Q_OBJECT
 public:
  explicit HarvestPage(const PageContext& context, QWidget* parent = nullptr);

  GridView* gridHarvest;
  GridView* gridHarvestF;
  GridView* gridHarvestM;
};

class SupplementPage : public SchedulePage {
  Q_OBJECT
 public:
  explicit SupplementPage(const PageContext& context, QWidget* parent = nullptr);

  GridView* gridSuppl;
  GridView* gridSupplF;
  GridView* gridSupplM;
};
