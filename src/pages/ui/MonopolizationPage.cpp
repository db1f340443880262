#include "pages/ui/MonopolizationPage.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "pages/ui/GridView.h"

using tamsic::F;

MonopolizationPage::MonopolizationPage(const PageContext& context, QWidget* parent)
    : InputPage(context, 800, parent) {
  gridDegMonop = gridView("gridDegMonop", F("gridDegMonop"));

  auto* frame = new QGroupBox(context.text(810), this);
  auto* inner = new QVBoxLayout(frame);
  inner->addWidget(gridDegMonop);
  QLabel* equivalent = label(804);
  QLabel* functions = label(806);
  equivalent->setWordWrap(true);
  functions->setWordWrap(true);
  inner->addWidget(equivalent);
  inner->addWidget(functions);
  auto* page = new QVBoxLayout(this);
  page->addWidget(frame);
  page->addStretch();
}
