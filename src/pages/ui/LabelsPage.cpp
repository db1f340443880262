#include "pages/ui/LabelsPage.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/TextNumbers.h"
#include "pages/StateVariablePresets.h"
#include "pages/ui/GridView.h"

using tamsic::F;

LabelsPage::LabelsPage(const PageContext& context, QWidget* parent) : InputPage(context, 200, parent) {
  gridPopLabels = gridView("gridPopLabels", F("gridPopLabels"));
  txtNumPopStateVars = textBox("txtNumPopStateVars", F("txtNumPopStateVars"));
  txtNumGlobalVars = textBox("txtNumGlobalVars", F("txtNumGlobalVars"));
  gridGlobalVars = gridView("gridGlobalVars", F("gridGlobalVars"));
  txtNumIndividualStateParams = textBox("txtNumIndividualStateParams", F("txtNumIndividualStateParams"));
  gridIndividualStateParams = gridView("gridIndividualStateParams", F("gridIndividualStateParams"));
  OutbreakISVars = button("OutbreakISVars", 250, 242);
  SpatialISVars = button("SpatialISVars", 251, 243);
  layOut();
  wire();
}

void LabelsPage::layOut() {
  auto* labels = new QGroupBox(context_.text(204), this);
  auto* labelsLayout = new QVBoxLayout(labels);
  auto* popCount = new QFormLayout;
  popCount->addRow(label(205), txtNumPopStateVars);
  labelsLayout->addLayout(popCount);
  labelsLayout->addWidget(gridPopLabels);

  auto* globals = new QGroupBox(context_.text(236), this);
  auto* globalsLayout = new QVBoxLayout(globals);
  auto* globalCount = new QFormLayout;
  globalCount->addRow(label(235), txtNumGlobalVars);
  globalsLayout->addLayout(globalCount);
  globalsLayout->addWidget(gridGlobalVars);

  auto* individuals = new QGroupBox(context_.text(245), this);
  auto* individualsLayout = new QVBoxLayout(individuals);
  auto* individualCount = new QFormLayout;
  individualCount->addRow(label(244), txtNumIndividualStateParams);
  auto* presets = new QHBoxLayout;
  presets->addWidget(OutbreakISVars);
  presets->addWidget(SpatialISVars);
  presets->addStretch();
  individualsLayout->addLayout(individualCount);
  individualsLayout->addWidget(gridIndividualStateParams);
  individualsLayout->addLayout(presets);

  auto* page = new QVBoxLayout(this);
  page->addWidget(labels);
  page->addWidget(globals);
  page->addWidget(individuals);
  page->addStretch();
}

void LabelsPage::wire() {
  connect(OutbreakISVars, &QPushButton::clicked, this, [this] { addPreset(0); });
  connect(SpatialISVars, &QPushButton::clicked, this, [this] { addPreset(1); });
}

void LabelsPage::addPreset(int preset) {
  tamsic::clsScenario record;
  storeInto(record);
  const auto problem =
      tamsic::AddStateVariables(record, preset == 0 ? tamsic::StatePreset::Outbreak : tamsic::StatePreset::Spatial,
                                context_.strings);
  if (problem) {
    context_.messages.show(*problem, tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return;
  }
  showRecord(record);
  emit edited();
}

void LabelsPage::applyEnabling() {
  gridGlobalVars->setGridEnabled(tamsic::LeadingInt(ToRecord(txtNumGlobalVars->text())) > 0);
  gridIndividualStateParams->setGridEnabled(tamsic::LeadingInt(ToRecord(txtNumIndividualStateParams->text())) > 0);
}
