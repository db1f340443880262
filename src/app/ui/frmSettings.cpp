#include "app/ui/frmSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/ui/Program.h"

namespace {

// The language names' message numbers, indexed by language code.
constexpr int kLanguageNames[] = {9016, 9014, 9015, 9017};

}  // namespace

frmSettings::frmSettings(Program& program, QWidget* parent) : QDialog(parent), program_(program) {
  setObjectName("frmSettings");
  setWindowTitle(text(8100));
  chkShowWelcome_ = new QCheckBox(text(8101), this);
  chkShowWelcome_->setObjectName("chkShowWelcome");
  chkShowWelcome_->setChecked(program_.settings.showWelcome != 0);
  chkShowOnEquals_ = new QCheckBox(text(8102), this);
  chkShowOnEquals_->setObjectName("chkShowOnEquals");
  chkShowOnEquals_->setChecked(program_.settings.showEquationDialogOnEquals != 0);
  cboLanguage_ = new QComboBox(this);
  cboLanguage_->setObjectName("cboLanguage");
  cboLanguage_->setToolTip(text(8106));
  for (int name : kLanguageNames) cboLanguage_->addItem(text(name));
  cboLanguage_->setCurrentIndex(program_.settings.language);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(text(8104));
  buttons->button(QDialogButtonBox::Cancel)->setText(text(8105));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmSettings::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmSettings::reject);

  auto* language = new QFormLayout;
  language->addRow(text(8103), cboLanguage_);
  auto* note = new QLabel(text(8107) + "\n" + text(8106), this);
  note->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(chkShowWelcome_);
  layout->addWidget(chkShowOnEquals_);
  layout->addLayout(language);
  layout->addWidget(note);
  layout->addWidget(buttons);
}

void frmSettings::accept() {
  program_.settings.showWelcome = chkShowWelcome_->isChecked() ? 1 : 0;
  program_.settings.showEquationDialogOnEquals = chkShowOnEquals_->isChecked() ? 1 : 0;
  program_.setLanguage(cboLanguage_->currentIndex());
  QDialog::accept();
}

QString frmSettings::text(int number) const {
  return QString::fromStdString(program_.strings.text(number));
}
