#include "pages/ui/GridModel.h"

#include <QBrush>
#include <QColor>

#include "model/TextNumbers.h"
#include "pages/ui/PageContext.h"

namespace {
const QColor kGrey(0xE0, 0xE0, 0xE0);
const QColor kWhite(0xFF, 0xFF, 0xFF);

bool SameHeadings(const tamsic::Grid& a, const tamsic::Grid& b) {
  for (std::size_t c = 0; c < a.cols(); ++c)
    if (a.at(0, c) != b.at(0, c)) return false;
  for (std::size_t r = 0; r < a.rows(); ++r)
    if (a.at(r, 0) != b.at(r, 0)) return false;
  return true;
}
}  // namespace

GridModel::GridModel(tamsic::Messages& messages, tamsic::Field field, bool headingRow, QObject* parent)
    : QAbstractTableModel(parent), messages_(messages), field_(field), headingRow_(headingRow) {}

// Headings change rarely; telling the view only when they do spares it
// measuring every heading again on each change of scenario.
void GridModel::setGrid(const tamsic::Grid& grid) {
  if (grid == grid_) return;
  if (grid.rows() == grid_.rows() && grid.cols() == grid_.cols()) {
    const bool headings = !SameHeadings(grid, grid_);
    grid_ = grid;
    if (rowCount() > 0 && columnCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    if (headings) {
      emit headerDataChanged(Qt::Horizontal, 0, std::max(columnCount() - 1, 0));
      emit headerDataChanged(Qt::Vertical, 0, std::max(rowCount() - 1, 0));
    }
    return;
  }
  beginResetModel();
  grid_ = grid;
  endResetModel();
}

void GridModel::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  beginResetModel();
  enabled_ = enabled;
  endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return std::max(static_cast<int>(grid_.rows()) - firstRow(), 0);
}

int GridModel::columnCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return std::max(static_cast<int>(grid_.cols()) - 1, 0);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = gridRow(index);
  const int col = gridCol(index);
  const CellUse cell = use(index);
  const QString stored = FromRecord(grid_.at(row, col));
  switch (role) {
    case Qt::DisplayRole:
      if (cell == CellUse::CheckBox) return {};
      if (cell == CellUse::Computed && computedText) return computedText(row, col);
      return stored;
    case Qt::EditRole: return stored;
    case Qt::CheckStateRole:
      if (cell != CellUse::CheckBox) return {};
      return stored.trimmed() == "1" ? Qt::Checked : Qt::Unchecked;
    case Qt::BackgroundRole: return QBrush(enabled_ && cell != CellUse::Computed ? kWhite : kGrey);
    case Qt::TextAlignmentRole:
      if (cell != CellUse::Value) return static_cast<int>(Qt::AlignCenter);
      // Numbers line up on the right, names and functions read from the left.
      return static_cast<int>((tamsic::ExactNumber(grid_.at(row, col)) ? Qt::AlignRight : Qt::AlignLeft) |
                              Qt::AlignVCenter);
    default: return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return QAbstractTableModel::headerData(section, orientation, role);
  if (orientation == Qt::Horizontal) {
    const auto col = static_cast<std::size_t>(section + 1);
    if (!headingRow_ || grid_.rows() == 0 || col >= grid_.cols()) return {};
    return shownHeading(grid_.at(0, col));
  }
  const auto row = static_cast<std::size_t>(section + firstRow());
  if (row >= grid_.rows()) return {};
  return shownHeading(grid_.at(row, 0));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid() || !enabled_) return Qt::NoItemFlags;
  switch (use(index)) {
    case CellUse::Computed: return Qt::ItemIsEnabled;
    case CellUse::CheckBox: return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
    default: return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
  }
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || !(flags(index) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable))) return false;
  const int row = gridRow(index);
  const int col = gridCol(index);
  std::string text;
  if (role == Qt::CheckStateRole) {
    text = static_cast<Qt::CheckState>(value.toInt()) == Qt::Checked ? "1" : "0";
  } else if (role == Qt::EditRole) {
    text = ToRecord(value.toString());
  } else {
    return false;
  }
  if (text == grid_.at(row, col)) return true;
  if (use(index) == CellUse::Value && refuses(row, col, text, messages_)) {
    emit refused(index);
    return false;
  }
  grid_.at(row, col) = text;
  emit dataChanged(index, index);
  emit committed(row, col);
  return true;
}

void GridModel::setTexts(const std::vector<tamsic::PlacedText>& texts) {
  if (texts.empty()) return;
  for (const tamsic::PlacedText& placed : texts) {
    const QModelIndex cell = index(static_cast<int>(placed.spot.row), static_cast<int>(placed.spot.col));
    grid_.at(gridRow(cell), gridCol(cell)) = placed.text;
    emit dataChanged(cell, cell);
  }
  const QModelIndex first = index(static_cast<int>(texts.front().spot.row), static_cast<int>(texts.front().spot.col));
  emit committed(gridRow(first), gridCol(first));
}
