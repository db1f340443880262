#pragma once
// "Genetic Management": studbook and allele-frequency files, neutral loci,
// breeding to K, mate choice, and genetic output files.
#include "pages/ui/InputPage.h"

class GeneticsPage : public InputPage {
  Q_OBJECT
 public:
  explicit GeneticsPage(const PageContext& context, QWidget* parent = nullptr);

  void applyEnabling() override;
  // The file chosen with a browse button, or empty; a file dialog unless a test puts something else here.
  std::function<QString(const QString& filter)> chooseFile;

  QCheckBox* chkGenMgtImportStudbookFile;
  QLineEdit* valtxtGenMgtImportStudbookFile;
  QPushButton* cmdBrowseGenMgtImportStudbookFile;
  QCheckBox* chkGenMgtAlleleFreqs;
  QLineEdit* valtxtGenMgtAlleleFreqs;
  QPushButton* cmdBrowseGenMgtAlleleFreqs;
  QLineEdit* valtxtGenMgtNumNeutralLoci;
  QCheckBox* chkGenMgtBreedToMaintinK;
  QCheckBox* chkGenMgtPreventMatingsF;
  QLineEdit* valtxtGenMgtPreventMatingsF;
  QCheckBox* chkGenMgtPairMeanKinship;
  QRadioButton* SSOptGenMgtPairMK_0;
  QRadioButton* SSOptGenMgtPairMK_1;
  QLineEdit* valtxtGenMgtMaxNumMates;
  QLineEdit* valtxtGenMgtPairingLimitation;
  QLineEdit* valtxtGenMgtNumTimesTryFindMate;
  QCheckBox* chkGenMgtOutputGenePop;
  QCheckBox* chkGenMgtOutputAlleleFreq;
  QRadioButton* GTallyOptButton_0;
  QRadioButton* GTallyOptButton_1;
  QRadioButton* GTallyOptButton_2;

 private:
  void layOut();
  void wire();
  // Puts the chosen file into the box; `kindOfFile` names the files offered (message number).
  void browse(QLineEdit* box, int kindOfFile);
};
