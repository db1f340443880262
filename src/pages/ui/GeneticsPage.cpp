#include "pages/ui/GeneticsPage.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using tamsic::F;

GeneticsPage::GeneticsPage(const PageContext& context, QWidget* parent) : InputPage(context, 1300, parent) {
  chkGenMgtImportStudbookFile = checkBox("chkGenMgtImportStudbookFile", F("chkGenMgtImportStudbookFile"));
  valtxtGenMgtImportStudbookFile = textBox("valtxtGenMgtImportStudbookFile", F("txtGenMgtImportStudbookFile"));
  cmdBrowseGenMgtImportStudbookFile = button("cmdBrowseGenMgtImportStudbookFile", 1341, 1317);
  chkGenMgtAlleleFreqs = checkBox("chkGenMgtAlleleFreqs", F("chkGenMgtAlleleFreqs"));
  valtxtGenMgtAlleleFreqs = textBox("valtxtGenMgtAlleleFreqs", F("txtGenMgtAlleleFreqs"));
  cmdBrowseGenMgtAlleleFreqs = button("cmdBrowseGenMgtAlleleFreqs", 1341, 1320);
  valtxtGenMgtNumNeutralLoci = textBox("valtxtGenMgtNumNeutralLoci", F("txtGenMgtNumNeutralLoci"));
  chkGenMgtBreedToMaintinK = checkBox("chkGenMgtBreedToMaintinK", F("chkGenMgtBreedToMaintinK"));
  chkGenMgtPreventMatingsF = checkBox("chkGenMgtPreventMatingsF", F("chkGenMgtPreventMatingsF"));
  valtxtGenMgtPreventMatingsF = textBox("valtxtGenMgtPreventMatingsF", F("txtGenMgtPreventMatingsF"));
  chkGenMgtPairMeanKinship = checkBox("chkGenMgtPairMeanKinship", F("chkGenMgtPairMeanKinship"));
  SSOptGenMgtPairMK_0 = option("SSOptGenMgtPairMK_0", F("SSOptGenMgtPairMK_0"));
  SSOptGenMgtPairMK_1 = option("SSOptGenMgtPairMK_1", F("SSOptGenMgtPairMK_1"));
  valtxtGenMgtMaxNumMates = textBox("valtxtGenMgtMaxNumMates", F("txtGenMgtMaxNumMates"));
  valtxtGenMgtPairingLimitation = textBox("valtxtGenMgtPairingLimitation", F("txtGenMgtPairingLimitation"));
  valtxtGenMgtNumTimesTryFindMate = textBox("valtxtGenMgtNumTimesTryFindMate", F("txtGenMgtNumTimesTryFindMate"));
  chkGenMgtOutputGenePop = checkBox("chkGenMgtOutputGenePop", F("chkGenMgtOutputGenePop"));
  chkGenMgtOutputAlleleFreq = checkBox("chkGenMgtOutputAlleleFreq", F("chkGenMgtOutputAlleleFreq"));
  GTallyOptButton_0 = option("GTallyOptButton_0", F("GTallyOptButton_0"));
  GTallyOptButton_1 = option("GTallyOptButton_1", F("GTallyOptButton_1"));
  GTallyOptButton_2 = option("GTallyOptButton_2", F("GTallyOptButton_2"));
  for (QLineEdit* file : {valtxtGenMgtImportStudbookFile, valtxtGenMgtAlleleFreqs})
    file->setMaximumWidth(QWIDGETSIZE_MAX);
  chooseFile = [this](const QString& filter) { return QFileDialog::getOpenFileName(this, {}, {}, filter); };
  layOut();
  wire();
}

void GeneticsPage::layOut() {
  auto* files = new QGridLayout;
  files->addWidget(chkGenMgtImportStudbookFile, 0, 0);
  files->addWidget(valtxtGenMgtImportStudbookFile, 0, 1);
  files->addWidget(cmdBrowseGenMgtImportStudbookFile, 0, 2);
  files->addWidget(chkGenMgtAlleleFreqs, 1, 0);
  files->addWidget(valtxtGenMgtAlleleFreqs, 1, 1);
  files->addWidget(cmdBrowseGenMgtAlleleFreqs, 1, 2);
  files->setColumnStretch(1, 1);

  auto* loci = new QFormLayout;
  loci->addRow(label(1342), valtxtGenMgtNumNeutralLoci);

  // Radio buttons exclude their siblings only: the kinship pair gets a parent of its own.
  auto* kinship = new QWidget(this);
  auto* kinshipLayout = new QHBoxLayout(kinship);
  kinshipLayout->setContentsMargins(20, 0, 0, 0);
  kinshipLayout->addWidget(SSOptGenMgtPairMK_0);
  kinshipLayout->addWidget(SSOptGenMgtPairMK_1);
  kinshipLayout->addStretch();

  auto* mates = new QFormLayout;
  mates->addRow(chkGenMgtPreventMatingsF, valtxtGenMgtPreventMatingsF);
  mates->addRow(label(1351), valtxtGenMgtPairingLimitation);
  mates->addRow(label(1352), valtxtGenMgtNumTimesTryFindMate);
  mates->addRow(label(1350), valtxtGenMgtMaxNumMates);

  auto* tally = new QGroupBox(context_.text(1355), this);
  auto* tallyLayout = new QVBoxLayout(tally);
  tallyLayout->addWidget(GTallyOptButton_2);
  tallyLayout->addWidget(GTallyOptButton_0);
  tallyLayout->addWidget(GTallyOptButton_1);

  auto* page = new QVBoxLayout(this);
  page->addLayout(files);
  page->addLayout(loci);
  page->addWidget(chkGenMgtBreedToMaintinK);
  page->addWidget(chkGenMgtPairMeanKinship);
  page->addWidget(kinship);
  page->addLayout(mates);
  page->addWidget(chkGenMgtOutputGenePop);
  page->addWidget(chkGenMgtOutputAlleleFreq);
  page->addWidget(tally);
  page->addStretch();
}

void GeneticsPage::wire() {
  for (QCheckBox* box : {chkGenMgtImportStudbookFile, chkGenMgtAlleleFreqs, chkGenMgtPreventMatingsF,
                         chkGenMgtPairMeanKinship})
    connect(box, &QCheckBox::toggled, this, &GeneticsPage::applyEnabling);
  connect(cmdBrowseGenMgtImportStudbookFile, &QPushButton::clicked, this,
          [this] { browse(valtxtGenMgtImportStudbookFile, 1359); });
  connect(cmdBrowseGenMgtAlleleFreqs, &QPushButton::clicked, this,
          [this] { browse(valtxtGenMgtAlleleFreqs, 1360); });
}

void GeneticsPage::browse(QLineEdit* box, int kindOfFile) {
  const QString path = chooseFile(QString::fromStdString(context_.strings.text(kindOfFile)) + " (*.txt)");
  if (!path.isEmpty()) enter(box, path);
}

void GeneticsPage::applyEnabling() {
  const bool studbook = chkGenMgtImportStudbookFile->isChecked();
  valtxtGenMgtImportStudbookFile->setEnabled(studbook);
  cmdBrowseGenMgtImportStudbookFile->setEnabled(studbook);
  const bool alleles = chkGenMgtAlleleFreqs->isChecked();
  valtxtGenMgtAlleleFreqs->setEnabled(alleles);
  cmdBrowseGenMgtAlleleFreqs->setEnabled(alleles);
  const bool kinship = chkGenMgtPairMeanKinship->isChecked();
  SSOptGenMgtPairMK_0->setEnabled(kinship);
  SSOptGenMgtPairMK_1->setEnabled(kinship);
  const bool prevent = chkGenMgtPreventMatingsF->isChecked();
  for (QLineEdit* box : {valtxtGenMgtPreventMatingsF, valtxtGenMgtPairingLimitation, valtxtGenMgtNumTimesTryFindMate})
    box->setEnabled(prevent);
}
