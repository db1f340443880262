// The message box the core's messages appear in: icon, buttons and answers
// mapped, texts in the user's language, the program's name for an empty caption.
#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

#include "GuiTestSupport.h"
#include "app/ui/QtMessageBox.h"

using namespace guitest;
using tamsic::MsgAnswer;
using tamsic::MsgButtons;
using tamsic::MsgIcon;

class MessageBoxTest : public QObject {
  Q_OBJECT

 private slots:
  void germanQuestionAnsweredNo() {
    tamsic::StringTable strings = tamsic::StringTable::fromFile(tamsic::StringTable::locate());
    strings.setLanguage(tamsic::Language::German);
    QtMessageBox box(strings);
    QStringList buttons;
    QString caption;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QTimer::singleShot(0, this, [&] {
      auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      QVERIFY(shown != nullptr);
      for (QAbstractButton* button : shown->buttons()) buttons << button->text();
      caption = shown->windowTitle();
      icon = shown->icon();
      shown->button(QMessageBox::No)->click();
    });

    const MsgAnswer answer = box.show({strings.text(9118), "", MsgIcon::Question, MsgButtons::YesNoCancel});

    QCOMPARE(answer, MsgAnswer::No);
    QCOMPARE(icon, QMessageBox::Question);
    QCOMPARE(caption, QString("Tamsic"));
    buttons.sort();
    QCOMPARE(buttons, (QStringList{"Abbrechen", "Ja", "Nein"}));
  }
};

QTEST_MAIN(MessageBoxTest)
#include "MessageBoxTest.moc"
