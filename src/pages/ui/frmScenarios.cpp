#include "pages/ui/frmScenarios.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/ScenarioManagement.h"

frmScenarios::frmScenarios(const PageContext& context, tamsic::ScenarioCollection& scenarios, std::size_t current,
                           QWidget* parent)
    : QDialog(parent), scenarios_(scenarios), followed_(current) {
  setObjectName("frmScenarios");
  setWindowTitle(context.text(8001));
  lstScenarios = new QListWidget(this);
  lstScenarios->setObjectName("lstScenarios");
  cmdUp = new QPushButton(context.text(8002), this);
  cmdUp->setObjectName("cmdUp");
  cmdUp->setToolTip(context.text(8005));
  cmdDown = new QPushButton(context.text(8003), this);
  cmdDown->setObjectName("cmdDown");
  cmdDown->setToolTip(context.text(8006));
  cmdOK = new QPushButton(context.text(8004), this);
  cmdOK->setObjectName("cmdOK");

  auto* side = new QVBoxLayout;
  side->addWidget(cmdUp);
  side->addWidget(cmdDown);
  side->addStretch();
  side->addWidget(cmdOK);
  auto* row = new QHBoxLayout(this);
  row->addWidget(lstScenarios, 1);
  row->addLayout(side);

  connect(cmdUp, &QPushButton::clicked, this, [this] { move(true); });
  connect(cmdDown, &QPushButton::clicked, this, [this] { move(false); });
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  fill();
  lstScenarios->setCurrentRow(static_cast<int>(current) - 1);
}

void frmScenarios::fill() {
  lstScenarios->clear();
  for (std::size_t n = 1; n <= scenarios_.Count(); ++n)
    lstScenarios->addItem(FromRecord(scenarios_.Item(n).Text(tamsic::F("txtSceneName"))));
}

void frmScenarios::move(bool up) {
  if (lstScenarios->currentRow() < 0) return;
  const std::size_t chosen = static_cast<std::size_t>(lstScenarios->currentRow()) + 1;
  const std::size_t now = up ? tamsic::MoveScenarioUp(scenarios_, chosen) : tamsic::MoveScenarioDown(scenarios_, chosen);
  if (followed_ == chosen) followed_ = now;
  else if (followed_ == now) followed_ = chosen;
  fill();
  lstScenarios->setCurrentRow(static_cast<int>(now) - 1);
}
