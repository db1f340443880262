#pragma once
// The table view of one grid of an input page. A refused value keeps its
// editor open with the caret after the text, so the user corrects what they
// typed; "=" in a cell may open the equation editor; entering a cell tells
// the page which hint to show. Blocks of cells are selected, copied, cut,
// pasted and cleared as in a spreadsheet.
#include <QTableView>

#include "pages/ui/GridModel.h"

struct PageContext;

class GridView : public QTableView {
  Q_OBJECT
 public:
  GridView(const PageContext& context, tamsic::Field field, const char* name, int hint, bool headingRow = true,
           QWidget* parent = nullptr);

  GridModel* grid() const { return model_; }
  // Enables the grid and paints it white, or disables it and paints it grey.
  void setGridEnabled(bool enabled);
  // Closes an editor kept open on a refused value; the cell shows its stored value again.
  void dropRefusedEdit();
  // Opens the function editor on the current cell when it may hold a function
  // (taking over any typing in its editor) and stores the answer through the
  // cell's check; false when the cell takes no function.
  bool editFunction();
  // The hint of a cell (grid coordinates); the grid's own hint by default.
  std::function<int(int row, int col)> hintOf;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void hintChanged(const QString& hint);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void commitData(QWidget* editor) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void fitHeadings();
  void emitHint(const QModelIndex& index);
  // Cut, copy, paste and delete of the selected cells; answers whether the key was one of them.
  bool editBlock(QKeyEvent* event);

  const PageContext& context_;
  GridModel* model_;
  bool refused_ = false;
  QPersistentModelIndex refusedCell_;
};
