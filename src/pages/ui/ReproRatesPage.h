#pragma once
// "Reproductive Rates": percent of females breeding, and the number of
// progeny per brood (mean and SD, or an exact distribution) and of broods.
#include "pages/ui/InputPage.h"

class ReproRatesPage : public InputPage {
  Q_OBJECT
 public:
  explicit ReproRatesPage(const PageContext& context, QWidget* parent = nullptr);

  void applyEnabling() override;

  GridView* gridRepRates1;
  QRadioButton* optUseMean_0;
  QRadioButton* optUseMean_1;
  GridView* gridRepRates2;
  GridView* gridRepRates3;
  GridView* gridRepRates4;

 private:
  void layOut();
  void wire();
};
