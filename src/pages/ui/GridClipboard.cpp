#include "pages/ui/GridClipboard.h"

#include <algorithm>

#include "pages/PasteReport.h"
#include "pages/ui/GridModel.h"
#include "pages/ui/PageContext.h"

namespace {

// What a check box or a cell of choices stores of a pasted text; numbers may
// come with the user's decimal comma.
std::string AsStored(const GridModel& model, int row, int col, const std::string& text, char decimalSeparator) {
  switch (model.cellUse(row, col)) {
    case CellUse::CheckBox: return tamsic::SwitchText(text);
    case CellUse::Choice:
      if (model.choices)
        for (const QString& word : model.choices(row, col))
          if (word.compare(FromRecord(text).trimmed(), Qt::CaseInsensitive) == 0) return ToRecord(word);
      return text;
    default: return tamsic::WithDecimalPoint(text, decimalSeparator);
  }
}

// A cell named by its row and column headings as the grid shows them.
std::string CellName(const GridModel& model, const QModelIndex& cell) {
  QStringList names{model.headerData(cell.row(), Qt::Vertical, Qt::DisplayRole).toString(),
                    model.headerData(cell.column(), Qt::Horizontal, Qt::DisplayRole).toString()};
  names.removeAll(QString());
  return names.join(", ").toStdString();
}

void Store(GridModel& model, const std::vector<tamsic::PlacedText>& texts, const PageContext& context) {
  tamsic::PasteReport report;
  tamsic::Messages quiet(report, context.strings);
  std::vector<tamsic::PlacedText> passed;
  for (const tamsic::PlacedText& placed : texts) {
    const QModelIndex cell = model.index(static_cast<int>(placed.spot.row), static_cast<int>(placed.spot.col));
    if (!(model.flags(cell) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable))) continue;
    const int row = model.gridRow(cell);
    const int col = model.gridCol(cell);
    const std::string text = AsStored(model, row, col, placed.text, context.decimalSeparator);
    if (text == model.grid().at(row, col)) continue;
    report.Start(CellName(model, cell), FromRecord(text).toStdString());
    if (model.refuses(row, col, text, quiet)) {
      report.Refused();
      continue;
    }
    passed.push_back({placed.spot, text});
  }
  model.setTexts(passed);
  const std::string message = report.Text(context.strings);
  if (!message.empty()) context.messages.show(message, tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
}

std::vector<tamsic::CellSpot> Spots(const QModelIndexList& cells) {
  std::vector<tamsic::CellSpot> spots;
  for (const QModelIndex& cell : cells)
    spots.push_back({static_cast<std::size_t>(cell.row()), static_cast<std::size_t>(cell.column())});
  return spots;
}

}  // namespace

QString CopiedText(const GridModel& model, const QModelIndexList& selected) {
  if (selected.isEmpty()) return {};
  const auto [top, bottom] = std::minmax_element(selected.begin(), selected.end(),
                                                 [](const auto& a, const auto& b) { return a.row() < b.row(); });
  const auto [left, right] = std::minmax_element(
      selected.begin(), selected.end(), [](const auto& a, const auto& b) { return a.column() < b.column(); });
  tamsic::CellBlock block;
  for (int r = top->row(); r <= bottom->row(); ++r) {
    block.emplace_back();
    for (int c = left->column(); c <= right->column(); ++c) {
      const QModelIndex cell = model.index(r, c);
      const QVariant check = model.data(cell, Qt::CheckStateRole);
      const QString shown = check.isValid() ? (static_cast<Qt::CheckState>(check.toInt()) == Qt::Checked ? "1" : "0")
                                            : model.data(cell, Qt::DisplayRole).toString();
      block.back().push_back(ToRecord(shown));
    }
  }
  return FromRecord(tamsic::FormTabSeparated(block));
}

QItemSelection PasteText(GridModel& model, const QModelIndexList& selected, const QString& text,
                         const PageContext& context) {
  const tamsic::CellBlock block = tamsic::ParseTabSeparated(ToRecord(text));
  const auto placed = tamsic::PlaceBlock(block, Spots(selected), model.rowCount(), model.columnCount());
  QItemSelection covered;
  for (const tamsic::PlacedText& cell : placed) {
    const QModelIndex index = model.index(static_cast<int>(cell.spot.row), static_cast<int>(cell.spot.col));
    covered.select(index, index);
  }
  Store(model, placed, context);
  return covered;
}

void ClearCells(GridModel& model, const QModelIndexList& selected, const PageContext& context) {
  std::vector<tamsic::PlacedText> cleared;
  for (const QModelIndex& cell : selected)
    if (model.cellUse(model.gridRow(cell), model.gridCol(cell)) == CellUse::Value)
      cleared.push_back({{static_cast<std::size_t>(cell.row()), static_cast<std::size_t>(cell.column())}, {}});
  Store(model, cleared, context);
}
