#include "pages/ui/FieldBindings.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>

#include "pages/ui/PageContext.h"

// Sees the boxes being left and Escape pressed in them. A box losing the focus
// to a message box or a menu is not being left: the user comes straight back.
class FieldBindings::Watcher : public QObject {
 public:
  explicit Watcher(FieldBindings& bindings) : bindings_(bindings) {}

  bool eventFilter(QObject* object, QEvent* event) override {
    TextBox* entry = bindings_.entryOf(object);
    if (entry == nullptr) return false;
    if (event->type() == QEvent::FocusOut) {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        bindings_.left(*entry, Leaving::ForNow);
    } else if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
               entry->box->text() != entry->accepted) {
      entry->box->setText(entry->accepted);
      return true;
    }
    return false;
  }

 private:
  FieldBindings& bindings_;
};

FieldBindings::FieldBindings(std::function<void()> edited)
    : edited_(std::move(edited)), watcher_(std::make_unique<Watcher>(*this)) {}

FieldBindings::~FieldBindings() {
  for (TextBox& entry : boxes_) entry.box->removeEventFilter(watcher_.get());
}

void FieldBindings::add(QLineEdit* box, tamsic::Field field, Check check) {
  boxes_.push_back({box, field, std::move(check), {}});
  box->installEventFilter(watcher_.get());
  QObject::connect(box, &QLineEdit::returnPressed, box, [this, box] {
    if (TextBox* entry = entryOf(box)) left(*entry, Leaving::ForNow);
  });
}

void FieldBindings::add(QCheckBox* box, tamsic::Field field) {
  checks_.emplace_back(box, field);
  QObject::connect(box, &QCheckBox::clicked, box, [this] { edited_(); });
}

void FieldBindings::add(QRadioButton* button, tamsic::Field field) {
  options_.emplace_back(button, field);
  QObject::connect(button, &QRadioButton::clicked, button, [this] { edited_(); });
}

FieldBindings::TextBox* FieldBindings::entryOf(const QObject* box) {
  for (TextBox& entry : boxes_)
    if (entry.box == box) return &entry;
  return nullptr;
}

void FieldBindings::left(TextBox& entry, Leaving leaving) {
  const QString text = entry.box->text();
  if (text == entry.accepted) return;
  if (entry.check && entry.check(text)) {
    if (leaving == Leaving::ForGood)
      entry.box->setText(entry.accepted);
    else
      takeFocusBack(entry);
    return;
  }
  entry.accepted = text;
  // Setting the text empties the box's own undo: what was typed is stored now,
  // and the undo key goes on to the page's edits.
  const int caret = entry.box->cursorPosition();
  entry.box->setText(entry.accepted);
  entry.box->setCursorPosition(caret);
  edited_();
}

// The focus is on its way to another control; take it back once it has
// arrived. A box that has gone from sight meanwhile (the user chose another
// page or scenario) was left for good.
void FieldBindings::takeFocusBack(TextBox& entry) {
  QLineEdit* box = entry.box;
  QMetaObject::invokeMethod(
      box,
      [this, box] {
        TextBox* still = entryOf(box);
        if (still == nullptr || box->text() == still->accepted) return;
        if (box->isVisible()) {
          box->setFocus();
          box->end(false);
        } else {
          box->setText(still->accepted);
        }
      },
      Qt::QueuedConnection);
}

void FieldBindings::enter(QLineEdit* box, const QString& text) {
  if (TextBox* entry = entryOf(box)) {
    box->setText(text);
    left(*entry, Leaving::ForNow);
  }
}

void FieldBindings::settle() {
  for (TextBox& entry : boxes_) left(entry, Leaving::ForGood);
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
