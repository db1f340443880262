#include "pages/ui/CopyInputValues.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "pages/ui/FlowLayout.h"

CopyInputValuesBar::CopyInputValuesBar(const PageContext& context, QWidget* parent) : QWidget(parent) {
  cboPopulationPicker = new QComboBox(this);
  cboPopulationPicker->setObjectName("cboPopulationPicker");
  cboPopulationPicker->setToolTip(context.text(1313));
  cboSectionPicker = new QComboBox(this);
  cboSectionPicker->setObjectName("cboSectionPicker");
  cboSectionPicker->setToolTip(context.text(1314));
  cboSectionPicker->addItems({context.text(1324), context.text(1325)});
  ssCMDCopyInputValues = new QPushButton(context.text(1619), this);
  ssCMDCopyInputValues->setObjectName("ssCMDCopyInputValues");
  ssCMDCopyInputValues->setToolTip(context.text(1323));

  // Read as one sentence, which wraps in a narrow window.
  auto* row = new FlowLayout(this);
  row->addWidget(ssCMDCopyInputValues);
  row->addWidget(cboPopulationPicker);
  row->addWidget(cboSectionPicker);
  row->addWidget(new QLabel(context.text(1618), this));

  connect(ssCMDCopyInputValues, &QPushButton::clicked, this, [this] {
    emit copyRequested(cboPopulationPicker->currentIndex() + 1, cboSectionPicker->currentIndex() == 1);
  });
}

void CopyInputValuesBar::setPopulations(const QStringList& labels) {
  const int chosen = std::max(cboPopulationPicker->currentIndex(), 0);
  cboPopulationPicker->clear();
  cboPopulationPicker->addItems(labels);
  cboPopulationPicker->setCurrentIndex(std::min(chosen, static_cast<int>(labels.size()) - 1));
}
