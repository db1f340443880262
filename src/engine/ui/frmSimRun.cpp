#include "engine/ui/frmSimRun.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/HelpTopics.h"
#include "app/ui/HelpDesk.h"
#include "app/ui/Program.h"
#include "files/TextCodec.h"

frmSimRun::frmSimRun(Program& program, const QStringList& scenarios, QWidget* parent)
    : QDialog(parent), program_(program) {
  setObjectName("frmSimRun");
  setWindowTitle(text(8201));
  lstScenarios_ = new QListWidget(this);
  lstScenarios_->setObjectName("lstScenarios");
  lstScenarios_->setToolTip(text(8209));
  for (const QString& name : scenarios) {
    auto* entry = new QListWidgetItem(name, lstScenarios_);
    entry->setFlags(entry->flags() | Qt::ItemIsUserCheckable);
    entry->setCheckState(Qt::Unchecked);
  }
  Check1_ = new QCheckBox(text(8203), this);
  Check1_->setObjectName("Check1");
  connect(Check1_, &QCheckBox::clicked, this, [this](bool checked) {
    for (int row = 0; row < lstScenarios_->count(); ++row)
      lstScenarios_->item(row)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
  });

  const auto button = [this](const char* name, int caption, int hint) {
    auto* command = new QPushButton(text(caption), this);
    command->setObjectName(name);
    if (hint != 0) command->setToolTip(text(hint));
    command->setAutoDefault(false);
    return command;
  };
  QPushButton* cmdRun = button("cmdRun", 8204, 8210);
  cmdRun->setDefault(true);
  QPushButton* cmdResumeRun = button("cmdResumeRun", 8205, 8211);
  QPushButton* StepWiseCommand = button("StepWiseCommand", 8206, 8212);
  QPushButton* cmdHelp = button("cmdHelp", 8208, 0);
  QPushButton* cmdClose = button("cmdClose", 8207, 0);
  connect(cmdRun, &QPushButton::clicked, this, [this] { confirm(QString()); });
  connect(cmdResumeRun, &QPushButton::clicked, this, [this] { confirm(QStringLiteral("+")); });
  connect(StepWiseCommand, &QPushButton::clicked, this, [this] { confirm(QStringLiteral("META")); });
  connect(cmdHelp, &QPushButton::clicked, this, [this] { ShowHelpTopic(this, tamsic::help::kRunDialog); });
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);

  auto* commands = new QVBoxLayout;
  for (QPushButton* command : {cmdRun, cmdResumeRun, StepWiseCommand}) commands->addWidget(command);
  commands->addStretch(1);
  commands->addWidget(cmdHelp);
  commands->addWidget(cmdClose);
  auto* list = new QVBoxLayout;
  list->addWidget(new QLabel(text(8202), this));
  list->addWidget(lstScenarios_, 1);
  list->addWidget(Check1_);
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(list, 1);
  layout->addLayout(commands);
}

// The dialog stays open while nothing is checked.
void frmSimRun::confirm(const QString& mode) {
  std::vector<tamsic::RunListEntry> entries;
  for (int row = 0; row < lstScenarios_->count(); ++row) {
    const QListWidgetItem* entry = lstScenarios_->item(row);
    entries.push_back({tamsic::Utf8ToCp1252(entry->text().toStdString()), entry->checkState() == Qt::Checked});
  }
  const tamsic::RunList list = tamsic::BuildRunList(entries);
  if (list.count == 0) return;
  runList_ = list;
  runMode_ = mode;
  accept();
}

void frmSimRun::check(const std::vector<std::size_t>& scenarios) {
  for (std::size_t number : scenarios)
    if (number >= 1 && number <= static_cast<std::size_t>(lstScenarios_->count()))
      lstScenarios_->item(static_cast<int>(number) - 1)->setCheckState(Qt::Checked);
}

QString frmSimRun::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
