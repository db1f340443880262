#pragma once
// "Labels and State Vars.": population names, population, global and
// individual state variables, and the two presets of individual variables.
#include "pages/ui/InputPage.h"

class LabelsPage : public InputPage {
  Q_OBJECT
 public:
  explicit LabelsPage(const PageContext& context, QWidget* parent = nullptr);

  void applyEnabling() override;

  GridView* gridPopLabels;
  QLineEdit* txtNumPopStateVars;
  QLineEdit* txtNumGlobalVars;
  GridView* gridGlobalVars;
  QLineEdit* txtNumIndividualStateParams;
  GridView* gridIndividualStateParams;
  QPushButton* OutbreakISVars;
  QPushButton* SpatialISVars;

 private:
  void layOut();
  void wire();
  void addPreset(int preset);
};
