#include "pages/ui/CatastrophesPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "pages/ui/GridView.h"

using tamsic::F;

CatastrophesPage::CatastrophesPage(const PageContext& context, QWidget* parent) : InputPage(context, 700, parent) {
  gridCatastropheLabels = gridView("gridCatastropheLabels", F("gridCatastropheLabels"));
  gridCatastropheLabels->horizontalHeader()->hide();
  gridCatastropheLabels->horizontalHeader()->setStretchLastSection(true);
  gridCatastropheLabels->setMinimumWidth(420);
  gridCatastrophes1 = gridView("gridCatastrophes1", F("gridCatastrophes1"));
  gridCatastrophes2 = gridView("gridCatastrophes2", F("gridCatastrophes2"));
  layOut();
}

void CatastrophesPage::layOut() {
  auto* labels = new QGroupBox(context_.text(717), this);
  auto* labelsLayout = new QVBoxLayout(labels);
  labelsLayout->addWidget(label(715));
  labelsLayout->addWidget(gridCatastropheLabels);

  auto* frequency = new QGroupBox(context_.text(708), this);
  (new QVBoxLayout(frequency))->addWidget(gridCatastrophes1);
  auto* severity = new QGroupBox(context_.text(716), this);
  auto* severityLayout = new QVBoxLayout(severity);
  severityLayout->addWidget(label(713));
  severityLayout->addWidget(gridCatastrophes2);

  auto* page = new QVBoxLayout(this);
  page->addWidget(labels);
  page->addWidget(frequency);
  page->addWidget(severity);
  page->addStretch();
}

void CatastrophesPage::showRecord(const tamsic::clsScenario& record) {
  InputPage::showRecord(record);
  const QModelIndex selected = gridCatastropheLabels->grid()->indexAt(record.CatastSelect, 1);
  if (selected.isValid()) gridCatastropheLabels->setCurrentIndex(selected);
}

void CatastrophesPage::storeInto(tamsic::clsScenario& record) const {
  InputPage::storeInto(record);
  const QModelIndex current = gridCatastropheLabels->currentIndex();
  record.CatastSelect = current.isValid() ? gridCatastropheLabels->grid()->gridRow(current) : 0;
}
