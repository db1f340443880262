#include "engine/ui/frmFlags.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/HelpTopics.h"
#include "app/ui/HelpDesk.h"
#include "app/ui/Program.h"
#include "engine/SpecialOptionsFlags.h"
#include "files/TextCodec.h"

namespace {

// The caption of each switch; the value options have a second piece after their box.
struct Switch {
  int caption;
  int after;  // 0: no value box
};
constexpr std::array<Switch, 10> kSwitches = {{{2001, 0},
                                               {2003, 2004},
                                               {2005, 0},
                                               {2006, 0},
                                               {2007, 0},
                                               {2009, 0},
                                               {2008, -1},
                                               {2002, 0},
                                               {2018, 2019},
                                               {2020, 0}}};

template <class Options>
auto* ValueOf(Options& options, std::size_t index) {
  switch (index) {
    case 1: return &options.option1Text;
    case 6: return &options.option6Text;
    case 8: return &options.option8Text;
    default: return static_cast<decltype(&options.option1Text)>(nullptr);
  }
}

QString FromFile(const std::string& text) { return QString::fromStdString(tamsic::Cp1252ToUtf8(text)); }
std::string ToFile(const QString& text) { return tamsic::Utf8ToCp1252(text.toStdString()); }

}  // namespace

frmFlags::frmFlags(Program& program, const tamsic::SpecialOptions& accepted, QWidget* parent)
    : QDialog(parent), program_(program) {
  setObjectName("frmFlags");
  setWindowTitle(text(2000));
  auto* layout = new QVBoxLayout(this);
  auto* explanation = new QLabel(text(2010), this);
  explanation->setWordWrap(true);
  layout->addWidget(explanation);
  for (int index = 0; index < 10; ++index) layout->addWidget(buildSwitch(index));

  txtUndoc_ = new QLineEdit(this);
  txtUndoc_->setObjectName("txtUndoc");
  txtUndoc_->setToolTip(text(2012));
  auto* undoc = new QHBoxLayout;
  undoc->addWidget(new QLabel(text(2013), this));
  undoc->addWidget(txtUndoc_, 1);
  layout->addLayout(undoc);

  auto* buttons = new QDialogButtonBox(this);
  QPushButton* cmdOk = buttons->addButton(text(2015), QDialogButtonBox::AcceptRole);
  cmdOk->setObjectName("cmdOk");
  cmdOk->setToolTip(text(2017));
  QPushButton* cmdCancel = buttons->addButton(text(2016), QDialogButtonBox::RejectRole);
  cmdCancel->setObjectName("cmdCancel");
  QPushButton* cmdHelp = buttons->addButton(text(2014), QDialogButtonBox::HelpRole);
  cmdHelp->setObjectName("cmdHelp");
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this,
          [this] { ShowHelpTopic(this, tamsic::help::kSpecialOptions); });
  layout->addWidget(buttons);

  for (std::size_t i = 0; i < 10; ++i) {
    chkAdditional_[i]->setChecked(accepted.checked[i] == 1);
    if (txtAdditional_[i] != nullptr) txtAdditional_[i]->setText(FromFile(*ValueOf(accepted, i)));
  }
  txtUndoc_->setText(FromFile(accepted.undocumented));
}

QWidget* frmFlags::buildSwitch(int index) {
  const Switch& item = kSwitches[static_cast<std::size_t>(index)];
  auto* row = new QWidget(this);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  auto* check = new QCheckBox(text(item.caption), row);
  check->setObjectName(QStringLiteral("chkAdditional%1").arg(index));
  chkAdditional_[static_cast<std::size_t>(index)] = check;
  line->addWidget(check);
  if (item.after != 0) {
    auto* value = new QLineEdit(row);
    value->setObjectName(QStringLiteral("txtAdditional%1").arg(index));
    value->setToolTip(text(2011));
    value->setMaximumWidth(90);
    txtAdditional_[static_cast<std::size_t>(index)] = value;
    line->addWidget(value);
    if (item.after > 0) line->addWidget(new QLabel(text(item.after), row));
  }
  line->addStretch(1);
  return row;
}

tamsic::SpecialOptions frmFlags::options() const {
  tamsic::SpecialOptions options;
  for (std::size_t i = 0; i < 10; ++i) {
    options.checked[i] = chkAdditional_[i]->isChecked() ? 1 : 0;
    if (txtAdditional_[i] != nullptr) *ValueOf(options, i) = ToFile(txtAdditional_[i]->text());
  }
  options.undocumented = ToFile(txtUndoc_->text());
  return options;
}

QString frmFlags::Flags() const { return FromFile(tamsic::Flags(options())); }

QString frmFlags::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
