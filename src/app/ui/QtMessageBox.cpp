#include "app/ui/QtMessageBox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

using tamsic::MsgAnswer;
using tamsic::MsgButtons;
using tamsic::MsgIcon;

namespace {

QMessageBox::Icon IconOf(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::Critical: return QMessageBox::Critical;
    case MsgIcon::Question: return QMessageBox::Question;
    case MsgIcon::Exclamation: return QMessageBox::Warning;
    case MsgIcon::Information: return QMessageBox::Information;
    case MsgIcon::None: break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::Ok: break;
  }
  return QMessageBox::Ok;
}

MsgAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Cancel: return MsgAnswer::Cancel;
    case QMessageBox::Yes: return MsgAnswer::Yes;
    case QMessageBox::No: return MsgAnswer::No;
    default: return MsgAnswer::Ok;
  }
}

}  // namespace

MsgAnswer QtMessageBox::show(const tamsic::MessageBoxRequest& request) {
  const std::string& caption = request.caption.empty() ? strings_.text(9001) : request.caption;
  QMessageBox box(IconOf(request.icon), QString::fromStdString(caption),
                  QString::fromStdString(request.text), ButtonsOf(request.buttons),
                  QApplication::activeWindow());
  // The table's words, as on the buttons of the program's own dialogs; Qt's
  // translation would add mnemonics (&Ja) that those buttons do not have.
  for (const auto& [button, number] : {std::pair{QMessageBox::Ok, 8104}, std::pair{QMessageBox::Cancel, 8105},
                                       std::pair{QMessageBox::Yes, 9150}, std::pair{QMessageBox::No, 9151}})
    if (QAbstractButton* shown = box.button(button)) shown->setText(QString::fromStdString(strings_.text(number)));
  return AnswerOf(box.exec());
}
