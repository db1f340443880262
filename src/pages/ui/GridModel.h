#pragma once
// Adapter between one grid of a scenario record and a table view. Row 0 of
// the grid (the headings) and column 0 (the labels) become the view's fixed
// header sections; every other cell is a model cell. An edit reaches the grid
// only after the page's check has accepted it, so a refused value never
// changes the record.
#include <QAbstractTableModel>
#include <functional>
#include <string>
#include <vector>

#include "model/Grid.h"
#include "model/ScenarioFields.h"
#include "pages/CellBlock.h"
#include "pages/ui/PageContext.h"

enum class CellUse {
  Value,     // typed and checked
  Computed,  // filled in by the program: grey, read-only
  CheckBox,  // "1" or "0", shown as a check box
  Choice     // one of a few words, picked from a list
};

class GridModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  // The checks of typed values tell the user through `messages`.
  GridModel(tamsic::Messages& messages, tamsic::Field field, bool headingRow, QObject* parent = nullptr);

  tamsic::Field field() const { return field_; }
  const tamsic::Grid& grid() const { return grid_; }
  // Replaces the whole grid; same shape keeps the view's current cell.
  void setGrid(const tamsic::Grid& grid);
  void setEnabled(bool enabled);

  // Grid coordinates (headings included) of a model index, and back.
  int gridRow(const QModelIndex& index) const { return index.row() + firstRow(); }
  int gridCol(const QModelIndex& index) const { return index.column() + 1; }
  QModelIndex indexAt(int gridRow, int gridCol) const { return index(gridRow - firstRow(), gridCol - 1); }

  // What the page says about its cells; all in grid coordinates.
  std::function<CellUse(int row, int col)> cellUse = [](int, int) { return CellUse::Value; };
  std::function<QString(int row, int col)> computedText;
  std::function<bool(int row, int col)> takesFunctions = [](int, int) { return false; };
  std::function<QStringList(int row, int col)> choices;
  // How a stored heading is shown; as stored unless the page translates it.
  std::function<QString(const std::string& stored)> heading;
  // Answers true when the text must not be accepted (the user has been told why, through `messages`).
  std::function<bool(int row, int col, const std::string& text, tamsic::Messages& messages)> refuses =
      [](int, int, const std::string&, tamsic::Messages&) { return false; };

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  // Stores texts that have passed their checks into many cells at once (spots
  // are model rows and columns), as a paste or a clearing does; one
  // `committed` for all of them, so that the page records one edit.
  void setTexts(const std::vector<tamsic::PlacedText>& texts);

 signals:
  // A user edit passed its check and is in the grid.
  void committed(int row, int col);
  void refused(const QModelIndex& index);

 private:
  int firstRow() const { return headingRow_ ? 1 : 0; }
  QString shownHeading(const std::string& stored) const { return heading ? heading(stored) : FromRecord(stored); }
  CellUse use(const QModelIndex& index) const { return cellUse(gridRow(index), gridCol(index)); }

  tamsic::Messages& messages_;
  tamsic::Field field_;
  bool headingRow_;
  bool enabled_ = true;
  tamsic::Grid grid_;
};
