#include "app/ui/frmNewProject.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "app/ui/Program.h"

frmNewProject::frmNewProject(Program& program, QWidget* parent, QString fromTemplate)
    : QDialog(parent), program_(program), fromTemplate_(std::move(fromTemplate)) {
  setObjectName("frmNewProject");
  setWindowTitle(text(5000));
  txtDir_ = new QLineEdit(QDir::homePath(), this);
  txtDir_->setObjectName("txtDir");
  txtDir_->setToolTip(text(5007));
  txtName_ = new QLineEdit(QFileInfo(fromTemplate_).completeBaseName(), this);
  txtName_->setObjectName("txtName");
  txtName_->setToolTip(text(5008));
  txtUser_ = new QLineEdit(qEnvironmentVariable("USER"), this);
  txtUser_->setObjectName("txtUser");
  txtUser_->setToolTip(text(5009));
  auto* cmdBrowse = new QPushButton(text(5004), this);
  cmdBrowse->setObjectName("cmdBrowse");
  auto* folder = new QHBoxLayout;
  folder->addWidget(txtDir_, 1);
  folder->addWidget(cmdBrowse);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(text(5005));
  buttons->button(QDialogButtonBox::Cancel)->setText(text(5006));

  auto* form = new QFormLayout(this);
  form->addRow(text(5001), folder);
  form->addRow(text(5002), txtName_);
  form->addRow(text(5003), txtUser_);
  form->addRow(buttons);
  setMinimumWidth(520);
  txtName_->setFocus();

  connect(cmdBrowse, &QPushButton::clicked, this, &frmNewProject::browse);
  connect(buttons, &QDialogButtonBox::accepted, this, &frmNewProject::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmNewProject::reject);
}

NewProjectRequest frmNewProject::request() const {
  return {txtDir_->text().trimmed(), txtName_->text().trimmed(), txtUser_->text().trimmed(), fromTemplate_};
}

void frmNewProject::accept() {
  auto& messages = program_.messages;
  if (txtName_->text().trimmed().isEmpty()) {
    messages.show(messages.text(9107), tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return;
  }
  const QString folder = txtDir_->text().trimmed();
  if (folder.isEmpty() || !QDir().mkpath(folder)) {
    messages.show(messages.text(9108) + "\n\n" + folder.toStdString(), tamsic::msg::kWarning,
                  tamsic::MsgIcon::Exclamation);
    return;
  }
  QDialog::accept();
}

void frmNewProject::browse() {
  const QString folder = QFileDialog::getExistingDirectory(this, text(9148), txtDir_->text());
  if (!folder.isEmpty()) txtDir_->setText(QDir::toNativeSeparators(folder));
}

QString frmNewProject::text(int number) const {
  return QString::fromStdString(program_.strings.text(number));
}
