#pragma once
// "Carrying Capacity": K and its variation per population, and a trend in K.
#include "pages/ui/InputPage.h"

class CarryingCapacityPage : public InputPage {
  Q_OBJECT
 public:
  explicit CarryingCapacityPage(const PageContext& context, QWidget* parent = nullptr);

  GridView* gridCarryingCap1;
  GridView* gridCarryingCap2;
};
