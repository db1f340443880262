#pragma once
// "Mortality Rates": percent mortality by age class and sex, with its SD.
#include "pages/ui/InputPage.h"

class MortalityPage : public InputPage {
  Q_OBJECT
 public:
  explicit MortalityPage(const PageContext& context, QWidget* parent = nullptr);

  GridView* gridMortFemales;
  GridView* gridMortMales;
  QPushButton* cmdMortCopyFemale;

 private:
  void layOut();
  void wire();
  void copyFemales();
};
