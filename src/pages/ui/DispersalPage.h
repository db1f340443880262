#pragma once
// "Dispersal": who disperses, how many survive, the dispersal modifier and the
// matrix of rates between populations with its helper commands.
#include "pages/ui/InputPage.h"

class DispersalPage : public InputPage {
  Q_OBJECT
 public:
  explicit DispersalPage(const PageContext& context, QWidget* parent = nullptr);

  // The file to import from (save false) or export to (save true); empty when
  // the user cancels. A file dialog unless a test puts something else here.
  std::function<QString(bool save)> chooseFile;

  QLineEdit* txtDispYoung;
  QLineEdit* txtDispOld;
  QCheckBox* chkDispMales;
  QCheckBox* chkDispFemales;
  QLineEdit* txtPercentDispSurvive;
  QLineEdit* txtDensDispersal;
  GridView* gridDispRates;
  QLineEdit* txtFillDispersal;
  QPushButton* cmdFillDispersal;
  QLineEdit* txtApplyMultiplier;
  QPushButton* cmdApplyMultiplier;
  QPushButton* SSCommand1;
  QPushButton* SSCommand2;

 private:
  void layOut();
  void wire();
  void fill();
  void applyMultiplier();
  void importMatrix();
  void exportMatrix();
  void replaceMatrix(const tamsic::Grid& rates);
  QString notDispersing(int row) const;
};
