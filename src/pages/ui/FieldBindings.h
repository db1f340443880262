#pragma once
// The text boxes, check boxes and option buttons of a page, each tied to the
// record field of its member name. A text box keeps the last text it
// accepted: a value refused by its check is never stored. Each time the box
// is left its text is checked again; a refused text takes the focus back so
// that the user can correct it, and is put back to the stored value when the
// box is left for good (another page, a save, a run) or on Escape. A box thus
// never shows a value that the record does not hold once the user has moved on.
#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "model/clsScenario.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

class FieldBindings {
 public:
  // Answers true when the text must not be accepted (the user has been told why).
  using Check = std::function<bool(const QString& text)>;

  // `edited` is called after every accepted user edit.
  explicit FieldBindings(std::function<void()> edited);
  ~FieldBindings();

  void add(QLineEdit* box, tamsic::Field field, Check check = {});
  void add(QCheckBox* box, tamsic::Field field);
  void add(QRadioButton* button, tamsic::Field field);

  // Puts a text into a box as if the user had typed it and left the box.
  void enter(QLineEdit* box, const QString& text);

  // Checks a box whose text differs from its stored value, as when the box is
  // left for good: an accepted text is stored, a refused one put back.
  void settle();

  void show(const tamsic::clsScenario& record);
  void store(tamsic::clsScenario& record) const;

 private:
  struct TextBox {
    QLineEdit* box;
    tamsic::Field field;
    Check check;
    QString accepted;
  };
  enum class Leaving { ForNow, ForGood };
  class Watcher;

  void left(TextBox& entry, Leaving leaving);
  void takeFocusBack(TextBox& entry);
  TextBox* entryOf(const QObject* box);

  std::function<void()> edited_;
  std::unique_ptr<Watcher> watcher_;
  std::vector<TextBox> boxes_;
  std::vector<std::pair<QCheckBox*, tamsic::Field>> checks_;
  std::vector<std::pair<QRadioButton*, tamsic::Field>> options_;
};
