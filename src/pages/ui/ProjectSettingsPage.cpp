#include "pages/ui/ProjectSettingsPage.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "engine/ui/frmFlags.h"
#include "pages/ui/PageContext.h"

ProjectSettingsPage::ProjectSettingsPage(Program& program, tamsic::ProjectState& state, QWidget* parent)
    : QWidget(parent), program_(program), state_(state) {
  setObjectName("ProjectSettingsPage");
  txtNotes_ = new QPlainTextEdit(FromRecord(state_.document.notes), this);
  txtNotes_->setObjectName("txtProjectNotes");
  txtNotes_->setToolTip(text(1711));
  connect(txtNotes_, &QPlainTextEdit::textChanged, this, [this] {
    state_.document.notes = ToRecord(txtNotes_->toPlainText());
    emit changed();
  });
  lstUsers_ = new QListWidget(this);
  lstUsers_->setObjectName("lstUsers");
  lstUsers_->setToolTip(text(1712));
  lstUsers_->setMaximumHeight(110);
  const auto button = [this](const char* name, int caption) {
    auto* command = new QPushButton(text(caption), this);
    command->setObjectName(name);
    return command;
  };
  QPushButton* cmdAddUser = button("cmdAddUser", 1704);
  QPushButton* cmdEditUser = button("cmdEditUser", 1705);
  QPushButton* cmdRemoveUser = button("cmdRemoveUser", 1706);
  QPushButton* cmdSpecialOptions = button("cmdSpecialOptions", 1709);
  cmdSpecialOptions->setToolTip(text(1714));
  connect(cmdAddUser, &QPushButton::clicked, this, &ProjectSettingsPage::addUser);
  connect(cmdEditUser, &QPushButton::clicked, this, &ProjectSettingsPage::editUser);
  connect(cmdRemoveUser, &QPushButton::clicked, this, &ProjectSettingsPage::removeUser);
  connect(cmdSpecialOptions, &QPushButton::clicked, this, &ProjectSettingsPage::editSpecialOptions);
  lblFolder_ = new QLabel(this);
  lblFolder_->setObjectName("lblWorkingFolder");
  lblFolder_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lblFile_ = new QLabel(this);
  lblFile_->setObjectName("lblProjectFile");
  lblFile_->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* userButtons = new QHBoxLayout;
  for (QPushButton* command : {cmdAddUser, cmdEditUser, cmdRemoveUser}) userButtons->addWidget(command);
  userButtons->addStretch(1);
  auto* users = new QVBoxLayout;
  users->addWidget(lstUsers_);
  users->addLayout(userButtons);
  auto* form = new QFormLayout;
  form->addRow(text(1702), txtNotes_);
  form->addRow(text(1703), users);
  form->addRow(text(1707), lblFolder_);
  form->addRow(text(1708), lblFile_);
  auto* options = new QHBoxLayout;
  options->addWidget(cmdSpecialOptions);
  options->addStretch(1);
  form->addRow(QString(), options);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  refresh();
}

void ProjectSettingsPage::refresh() {
  lstUsers_->clear();
  for (const std::string& user : state_.document.users) lstUsers_->addItem(FromRecord(user));
  const bool saved = !state_.FullPath().empty();
  lblFolder_->setText(QString::fromStdString(saved ? state_.WorkingFolder() : state_.proposedFolder));
  lblFile_->setText(saved ? QString::fromStdString(state_.FullPath()) : QString());
}

// OK keeps the options the dialog shows; Cancel leaves the project's options as they were.
void ProjectSettingsPage::editSpecialOptions() {
  frmFlags dialog(program_, state_.document.specialOptions, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const tamsic::SpecialOptions accepted = dialog.options();
  if (accepted == state_.document.specialOptions) return;
  state_.document.specialOptions = accepted;
  emit changed();
}

QString ProjectSettingsPage::text(int number) const {
  return QString::fromStdString(program_.strings.text(number));
}
