#include "pages/ui/InputPage.h"

#include <algorithm>

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "model/InputRules.h"
#include "pages/InputChecks.h"
#include "pages/ui/GridView.h"
#include "pages/ui/UpdateGuard.h"

InputPage::InputPage(const PageContext& context, int titleNumber, QWidget* parent)
    : QWidget(parent), context_(context), titleNumber_(titleNumber), bindings_([this] {
        if (!updating_) emit edited();
      }),
      headings_(context) {}

void InputPage::showRecord(const tamsic::clsScenario& record) {
  UpdateGuard guard(updating_);
  bindings_.show(record);
  for (GridView* view : grids_) view->grid()->setGrid(record.GetGrid(view->grid()->field()));
  applyEnabling();
}

void InputPage::storeInto(tamsic::clsScenario& record) const {
  bindings_.store(record);
  for (GridView* view : grids_) record.SetGrid(view->grid()->field(), view->grid()->grid());
}

QLineEdit* InputPage::textBox(const char* name, tamsic::Field field, FieldBindings::Check check) {
  const tamsic::InputDescription& input = tamsic::Describe(field).input;
  auto* box = new QLineEdit(this);
  box->setObjectName(name);
  box->setToolTip(context_.text(input.hint));
  box->setMaximumWidth(110);  // numbers; boxes for names and functions widen themselves
  auto rule = [this, field, caption = input.caption](const QString& text) {
    // Messages are UTF-8, unlike the record's texts.
    const std::string what = caption ? context_.text(caption).toStdString() : std::string(tamsic::Describe(field).key);
    return tamsic::TestTextBoxFunctions(field, ToRecord(text), what, context_.messages, context_.engine);
  };
  bindings_.add(box, field, [rule, check = std::move(check)](const QString& text) {
    return rule(text) || (check && check(text));
  });
  if (tamsic::TakesFunctions(input.rule)) {
    functionBoxes_.push_back(box);
    box->installEventFilter(this);
  }
  return box;
}

bool InputPage::editFunction(QLineEdit* box) {
  if (std::find(functionBoxes_.begin(), functionBoxes_.end(), box) == functionBoxes_.end() ||
      !context_.openEquationEditor)
    return false;
  if (const auto function = context_.openEquationEditor(box->text())) enter(box, *function);
  box->setFocus();
  return true;
}

// "=" typed at the start of a box that may hold a function opens the editor.
bool InputPage::eventFilter(QObject* watched, QEvent* event) {
  auto* box = qobject_cast<QLineEdit*>(watched);
  if (box == nullptr || event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->text() != "=" ||
      box->cursorPosition() != 0 || box->hasSelectedText() || !context_.showEquationDialogOnEquals())
    return QWidget::eventFilter(watched, event);
  return editFunction(box);
}

QCheckBox* InputPage::checkBox(const char* name, tamsic::Field field) {
  const tamsic::InputDescription& input = tamsic::Describe(field).input;
  auto* box = new QCheckBox(context_.text(input.caption), this);
  box->setObjectName(name);
  box->setToolTip(context_.text(input.hint));
  bindings_.add(box, field);
  return box;
}

QRadioButton* InputPage::option(const char* name, tamsic::Field field) {
  const tamsic::InputDescription& input = tamsic::Describe(field).input;
  auto* button = new QRadioButton(context_.text(input.caption), this);
  button->setObjectName(name);
  button->setToolTip(context_.text(input.hint));
  bindings_.add(button, field);
  return button;
}

GridView* InputPage::gridView(const char* name, tamsic::Field field) {
  const tamsic::GridDescription& description = *tamsic::Describe(field).input.grid;
  const bool headingRow = description.shape != tamsic::GridShape::CatastropheLabels;
  auto* view = new GridView(context_, field, name, tamsic::Describe(field).input.hint, headingRow, this);
  grids_.push_back(view);
  view->hintOf = [field](int row, int col) {
    return tamsic::CellHint(field, static_cast<std::size_t>(row), static_cast<std::size_t>(col));
  };
  view->grid()->cellUse = [field](int row, int col) {
    switch (tamsic::CellRule(field, static_cast<std::size_t>(row), static_cast<std::size_t>(col)).kind) {
      case tamsic::ValueKind::Switch: return CellUse::CheckBox;
      case tamsic::ValueKind::Place: return CellUse::Choice;
      default: return CellUse::Value;
    }
  };
  view->grid()->choices = [](int, int) { return QStringList{"Local", "Global"}; };
  view->grid()->takesFunctions = [field](int row, int col) {
    return tamsic::TakesFunctions(
        tamsic::CellRule(field, static_cast<std::size_t>(row), static_cast<std::size_t>(col)));
  };
  view->grid()->heading = [this](const std::string& stored) { return headings_.shown(stored); };
  connect(view, &GridView::hintChanged, this, &InputPage::hintChanged);
  connect(view->grid(), &GridModel::committed, this, [this] {
    if (!updating_) emit edited();
  });
  view->grid()->refuses = [this, field, view](int row, int col, const std::string& text, tamsic::Messages& messages) {
    return tamsic::TestGridCell(field, view->grid()->grid(), static_cast<std::size_t>(row),
                                static_cast<std::size_t>(col), text, messages, context_.engine);
  };
  return view;
}

QLabel* InputPage::label(int caption) { return new QLabel(context_.text(caption), this); }

QPushButton* InputPage::button(const char* name, int caption, int hint) {
  auto* push = new QPushButton(context_.text(caption), this);
  push->setObjectName(name);
  push->setToolTip(context_.text(hint));
  return push;
}

