#include "results/ui/frmSpecify.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "results/ui/NamedButton.h"

frmSpecify::frmSpecify(const tamsic::IStringTable& strings, std::vector<std::string> offered,
                       const std::vector<std::string>& chosen, QWidget* parent)
    : QDialog(parent), offered_(std::move(offered)) {
  setObjectName("frmSpecify");
  setWindowTitle(Q(strings.text(8300)));
  lstAvailable = new QListWidget(this);
  lstAvailable->setObjectName("lstAvailable");
  lstChosen = new QListWidget(this);
  lstChosen->setObjectName("lstChosen");
  for (const std::string& label : chosen) lstChosen->addItem(Q(label));
  fillAvailable();
  cmdAdd = Button(strings.text(8303), "cmdAdd", this);
  cmdRemove = Button(strings.text(8304), "cmdRemove", this);
  cmdUp = Button(strings.text(8305), "cmdUp", this);
  cmdDown = Button(strings.text(8306), "cmdDown", this);
  cmdOK = Button(strings.text(8307), "cmdOK", this);
  cmdCancel = Button(strings.text(8308), "cmdCancel", this);

  auto* middle = new QVBoxLayout;
  middle->addStretch();
  middle->addWidget(cmdAdd);
  middle->addWidget(cmdRemove);
  middle->addStretch();
  auto* side = new QVBoxLayout;
  side->addWidget(cmdUp);
  side->addWidget(cmdDown);
  side->addStretch();
  auto* lists = new QGridLayout;
  lists->addWidget(new QLabel(Q(strings.text(8301)), this), 0, 0);
  lists->addWidget(new QLabel(Q(strings.text(8302)), this), 0, 2);
  lists->addWidget(lstAvailable, 1, 0);
  lists->addLayout(middle, 1, 1);
  lists->addWidget(lstChosen, 1, 2);
  lists->addLayout(side, 1, 3);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  auto* page = new QVBoxLayout(this);
  page->addLayout(lists);
  page->addLayout(buttons);

  connect(cmdAdd, &QPushButton::clicked, this, &frmSpecify::add);
  connect(lstAvailable, &QListWidget::itemDoubleClicked, this, &frmSpecify::add);
  connect(cmdRemove, &QPushButton::clicked, this, &frmSpecify::remove);
  connect(lstChosen, &QListWidget::itemDoubleClicked, this, &frmSpecify::remove);
  connect(cmdUp, &QPushButton::clicked, this, [this] { move(-1); });
  connect(cmdDown, &QPushButton::clicked, this, [this] { move(1); });
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

std::vector<std::string> frmSpecify::chosen() const {
  std::vector<std::string> labels;
  for (int row = 0; row < lstChosen->count(); ++row) labels.push_back(lstChosen->item(row)->text().toStdString());
  return labels;
}

// The left list keeps the offered order whatever came and went.
void frmSpecify::fillAvailable() {
  const auto inTable = chosen();
  lstAvailable->clear();
  for (const std::string& label : offered_)
    if (std::find(inTable.begin(), inTable.end(), label) == inTable.end()) lstAvailable->addItem(Q(label));
}

void frmSpecify::add() {
  const int row = lstAvailable->currentRow();
  if (row < 0) return;
  lstChosen->addItem(lstAvailable->item(row)->text());
  lstChosen->setCurrentRow(lstChosen->count() - 1);
  fillAvailable();
  lstAvailable->setCurrentRow(std::min(row, lstAvailable->count() - 1));
}

void frmSpecify::remove() {
  const int row = lstChosen->currentRow();
  if (row < 0) return;
  delete lstChosen->takeItem(row);
  fillAvailable();
  lstChosen->setCurrentRow(std::min(row, lstChosen->count() - 1));
}

void frmSpecify::move(int step) {
  const int row = lstChosen->currentRow();
  const int to = row + step;
  if (row < 0 || to < 0 || to >= lstChosen->count()) return;
  lstChosen->insertItem(to, lstChosen->takeItem(row));
  lstChosen->setCurrentRow(to);
}
