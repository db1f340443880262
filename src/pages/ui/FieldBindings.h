#pragma once
// The text boxes, check boxes and option buttons of a page, each tied to the
// record field of its member name. A text box keeps the last text it
// accepted: a value refused by its check is never stored, and the box takes
// the focus back so that the user can correct it.
#include <QString>
#include <functional>
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
  explicit FieldBindings(std::function<void()> edited) : edited_(std::move(edited)) {}

  void add(QLineEdit* box, tamsic::Field field, Check check = {});
  void add(QCheckBox* box, tamsic::Field field);
  void add(QRadioButton* button, tamsic::Field field);

  // Puts a text into a box as if the user had typed it and left the box.
  void enter(QLineEdit* box, const QString& text);

  void show(const tamsic::clsScenario& record);
  void store(tamsic::clsScenario& record) const;

 private:
  struct TextBox {
    QLineEdit* box;
    tamsic::Field field;
    Check check;
    QString accepted;
  };
  void finished(TextBox& entry);

  std::function<void()> edited_;
  std::vector<TextBox> boxes_;
  std::vector<std::pair<QCheckBox*, tamsic::Field>> checks_;
  std::vector<std::pair<QRadioButton*, tamsic::Field>> options_;
};
