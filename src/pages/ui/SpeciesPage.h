#pragma once
// "Species Description": inbreeding depression, environmental variation and
// the number of types of catastrophes.
#include "pages/ui/InputPage.h"

class SpeciesPage : public InputPage {
  Q_OBJECT
 public:
  explicit SpeciesPage(const PageContext& context, QWidget* parent = nullptr);

  void applyEnabling() override;
  // The correlation among populations means nothing with one population.
  void setPopulationCount(int count);

  QCheckBox* chkDepress;
  QLineEdit* txtLethalEquiv;
  QLineEdit* txtPercentLethal;
  QCheckBox* chkEVConcord;
  QLineEdit* txtEV;
  QLineEdit* txtNumCatast;

 private:
  void layOut();
  void wire();

  QLabel* lethalLabel_;
  QLabel* percentLabel_;
  int populations_ = 1;
};
