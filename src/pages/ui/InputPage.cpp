#include "pages/ui/InputPage.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

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

QLineEdit* InputPage::textBox(const char* name, tamsic::Field field, int hint, FieldBindings::Check check) {
  auto* box = new QLineEdit(this);
  box->setObjectName(name);
  box->setToolTip(context_.text(hint));
  box->setMaximumWidth(110);  // numbers; boxes for names and functions widen themselves
  bindings_.add(box, field, std::move(check));
  return box;
}

QCheckBox* InputPage::checkBox(const char* name, tamsic::Field field, int caption, int hint) {
  auto* box = new QCheckBox(context_.text(caption), this);
  box->setObjectName(name);
  box->setToolTip(context_.text(hint));
  bindings_.add(box, field);
  return box;
}

QRadioButton* InputPage::option(const char* name, tamsic::Field field, int caption, int hint) {
  auto* button = new QRadioButton(context_.text(caption), this);
  button->setObjectName(name);
  button->setToolTip(context_.text(hint));
  bindings_.add(button, field);
  return button;
}

GridView* InputPage::gridView(const char* name, tamsic::Field field, int hint, bool headingRow) {
  auto* view = new GridView(context_, field, name, hint, headingRow, this);
  grids_.push_back(view);
  view->grid()->heading = [this](const std::string& stored) { return headings_.shown(stored); };
  connect(view, &GridView::hintChanged, this, &InputPage::hintChanged);
  connect(view->grid(), &GridModel::committed, this, [this] {
    if (!updating_) emit edited();
  });
  view->grid()->refuses = [this, field](int row, int, const std::string& text) {
    const auto check = tamsic::CellCheckFor(field, static_cast<std::size_t>(row));
    return check && tamsic::TestGridCell(text, *check, context_.messages, context_.engine);
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

FieldBindings::Check InputPage::limits(double min, double max, const QString& what) {
  // Messages are UTF-8, unlike the record's texts.
  const tamsic::TextBoxLimits bounds{min, max,
                                     (what + ": the value must be at least " + QString::number(min) + ".").toStdString(),
                                     (what + ": the value must be at most " + QString::number(max) + ".").toStdString()};
  return [this, bounds](const QString& text) {
    return tamsic::TestTextBoxFunctions(ToRecord(text), bounds, context_.messages, context_.engine);
  };
}
