#pragma once
// "Reproductive System": mating system, ages of reproduction, broods, progeny,
// sex ratio and density-dependent breeding per population.
#include "pages/ui/InputPage.h"

class QComboBox;

class ReproSystemPage : public InputPage {
  Q_OBJECT
 public:
  explicit ReproSystemPage(const PageContext& context, QWidget* parent = nullptr);

  void showRecord(const tamsic::clsScenario& record) override;
  void applyEnabling() override;

  QRadioButton* optMPHLQ_0;
  QRadioButton* optMPHLQ_1;
  QRadioButton* optMPHLQ_2;
  QRadioButton* optMPHLQ_3;
  QRadioButton* optMPHLQ_4;
  QLineEdit* txtAgeReproF;
  QLineEdit* txtAgeReproM;
  QLineEdit* txtMaxAgeRepro;
  QLineEdit* txtMaxLitters;
  QLineEdit* txtMaxProgeny;
  QLineEdit* txtSexRatio;
  GridView* gridReproSys;
  QComboBox* cboReproFunction;
  QPushButton* cmdReproFunction;

 private:
  void layOut();
  void wire();
  void viewFunction();
};
