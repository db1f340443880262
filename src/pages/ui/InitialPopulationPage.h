#pragma once
// "Initial Population Size": a total per population spread by the stable age
// distribution, or the numbers of each age and sex.
#include "pages/ui/InputPage.h"

class InitialPopulationPage : public InputPage {
  Q_OBJECT
 public:
  explicit InitialPopulationPage(const PageContext& context, QWidget* parent = nullptr);

  void applyEnabling() override;

  QRadioButton* optStartWith_0;
  QRadioButton* optStartWith_1;
  GridView* gridInitPopStable;
  GridView* gridInitPopFemale;
  GridView* gridInitPopMale;

 private:
  void layOut();
  void wire();
};
