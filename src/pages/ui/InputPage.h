#pragma once
// What every input page does for its project window: show a scenario record
// in its controls, store its controls into a record, apply its enabling
// rules, and say which hint belongs to the control or cell in focus. The base
// keeps the page's field bindings and grids, which cover most pages whole.
#include <QWidget>
#include <vector>

#include "model/clsScenario.h"
#include "pages/ui/FieldBindings.h"
#include "pages/ui/GridHeadings.h"
#include "pages/ui/PageContext.h"

class GridView;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

class InputPage : public QWidget {
  Q_OBJECT
 public:
  InputPage(const PageContext& context, int titleNumber, QWidget* parent = nullptr);

  QString title() const { return context_.text(titleNumber_); }

  virtual void showRecord(const tamsic::clsScenario& record);
  virtual void storeInto(tamsic::clsScenario& record) const;
  // Greys out and disables what the values on the page rule out.
  virtual void applyEnabling() {}

  // Puts a text into one of the page's boxes as if the user had typed it.
  void enter(QLineEdit* box, const QString& text) { bindings_.enter(box, text); }
  // Stores a box's pending text, or puts a refused one back: the box is being left for good.
  void settle() { bindings_.settle(); }
  // Opens the function editor on one of the page's boxes that may hold a
  // function and enters the answer; false for any other box.
  bool editFunction(QLineEdit* box);

 signals:
  // A user edit was accepted; the window records it for undo.
  void edited();
  void hintChanged(const QString& hint);

 protected:
  // A box checked by its field's rule, then by `check` when one is given;
  // its hint is the field's.
  QLineEdit* textBox(const char* name, tamsic::Field field, FieldBindings::Check check = {});
  // Captions and hints come from the field's description.
  QCheckBox* checkBox(const char* name, tamsic::Field field);
  QRadioButton* option(const char* name, tamsic::Field field);
  // A grid shaped, checked and hinted by its field's description.
  GridView* gridView(const char* name, tamsic::Field field);
  QLabel* label(int caption);
  QPushButton* button(const char* name, int caption, int hint);
  bool eventFilter(QObject* watched, QEvent* event) override;

  const PageContext& context_;
  bool updating_ = false;

 private:
  int titleNumber_;
  FieldBindings bindings_;
  GridHeadings headings_;
  std::vector<GridView*> grids_;
  std::vector<QLineEdit*> functionBoxes_;
};
