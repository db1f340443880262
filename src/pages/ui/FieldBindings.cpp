#include "pages/ui/FieldBindings.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>

#include "pages/ui/PageContext.h"

void FieldBindings::add(QLineEdit* box, tamsic::Field field, Check check) {
  boxes_.push_back({box, field, std::move(check), {}});
  const std::size_t entry = boxes_.size() - 1;
  QObject::connect(box, &QLineEdit::editingFinished, box, [this, entry] { finished(boxes_[entry]); });
}

void FieldBindings::add(QCheckBox* box, tamsic::Field field) {
  checks_.emplace_back(box, field);
  QObject::connect(box, &QCheckBox::clicked, box, [this] { edited_(); });
}

void FieldBindings::add(QRadioButton* button, tamsic::Field field) {
  options_.emplace_back(button, field);
  QObject::connect(button, &QRadioButton::clicked, button, [this] { edited_(); });
}

void FieldBindings::finished(TextBox& entry) {
  const QString text = entry.box->text();
  if (text == entry.accepted) return;
  if (entry.check && entry.check(text)) {
    QLineEdit* box = entry.box;
    // The focus is on its way to another control; take it back once it has arrived.
    QMetaObject::invokeMethod(box, [box] { box->setFocus(); box->end(false); }, Qt::QueuedConnection);
    return;
  }
  entry.accepted = entry.box->text();
  // Setting the text empties the box's own undo: what was typed is stored now,
  // and the undo key goes on to the page's edits.
  const int caret = entry.box->cursorPosition();
  entry.box->setText(entry.accepted);
  entry.box->setCursorPosition(caret);
  edited_();
}

void FieldBindings::enter(QLineEdit* box, const QString& text) {
  for (TextBox& entry : boxes_)
    if (entry.box == box) {
      box->setText(text);
      finished(entry);
    }
}

void FieldBindings::show(const tamsic::clsScenario& record) {
  for (TextBox& entry : boxes_) {
    entry.accepted = FromRecord(record.Text(entry.field));
    // Setting an equal text would move the caret of a box being typed in.
    if (entry.box->text() != entry.accepted) entry.box->setText(entry.accepted);
  }
  for (auto& [box, field] : checks_) box->setChecked(record.Check(field) != 0);
  for (auto& [button, field] : options_) button->setChecked(record.Truth(field));
}

void FieldBindings::store(tamsic::clsScenario& record) const {
  for (const TextBox& entry : boxes_) record.SetText(entry.field, ToRecord(entry.accepted));
  for (const auto& [box, field] : checks_) record.SetCheck(field, box->isChecked() ? 1 : 0);
  for (const auto& [button, field] : options_) record.SetTruth(field, button->isChecked());
}
