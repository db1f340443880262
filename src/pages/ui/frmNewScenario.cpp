#include "pages/ui/frmNewScenario.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QHeaderView>
#include <QTableWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/ScenarioManagement.h"

frmNewScenario::frmNewScenario(const PageContext& context, const tamsic::ScenarioCollection& scenarios,
                               std::size_t current, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmNewScenario");
  setWindowTitle(context.text(6000));
  lstTemplates = new QTableWidget(static_cast<int>(scenarios.Count()), 1, this);
  lstTemplates->setObjectName("lstTemplates");
  lstTemplates->setHorizontalHeaderLabels({context.text(6002)});
  lstTemplates->horizontalHeader()->setStretchLastSection(true);
  lstTemplates->verticalHeader()->hide();
  lstTemplates->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lstTemplates->setSelectionBehavior(QAbstractItemView::SelectRows);
  lstTemplates->setSelectionMode(QAbstractItemView::SingleSelection);
  for (std::size_t n = 1; n <= scenarios.Count(); ++n)
    lstTemplates->setItem(static_cast<int>(n) - 1, 0,
                          new QTableWidgetItem(FromRecord(scenarios.Item(n).Text(tamsic::F("txtSceneName")))));
  lstTemplates->setCurrentCell(static_cast<int>(tamsic::ProposedTemplate(scenarios, current)) - 1, 0);
  txtNumCreate = new QLineEdit("1", this);
  txtNumCreate->setObjectName("txtNumCreate");
  txtNumCreate->setToolTip(context.text(6007));
  txtNumCreate->setMaximumWidth(60);

  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(context.text(6005), QDialogButtonBox::AcceptRole);
  buttons->addButton(context.text(6006), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* create = new QHBoxLayout;
  create->addWidget(new QLabel(context.text(6003), this));
  create->addWidget(txtNumCreate);
  create->addWidget(new QLabel(context.text(6004), this), 1);
  auto* column = new QVBoxLayout(this);
  column->addWidget(new QLabel(context.text(6001), this));
  column->addWidget(lstTemplates);
  column->addLayout(create);
  column->addWidget(buttons);
}

std::size_t frmNewScenario::templateNumber() const {
  return static_cast<std::size_t>(std::max(lstTemplates->currentRow(), 0)) + 1;
}

int frmNewScenario::count() const {
  bool whole = false;
  const int number = txtNumCreate->text().trimmed().toInt(&whole);
  return whole && number >= 1 && number <= 100 ? number : 0;
}
