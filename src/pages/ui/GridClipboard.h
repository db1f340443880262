#pragma once
// Copying, pasting and clearing blocks of cells, as spreadsheets do. Every
// pasted or cleared cell passes the same check as a typed one. A refused cell
// is not stored, and the cells that pass are: the user retypes only the
// cells named in the one message told after the whole block, rather than
// mending the source of a long paste for one bad value, and one undo takes the
// whole paste back when they want none of it. The stored cells make one edit.
#include <QItemSelection>
#include <QModelIndexList>
#include <QString>

class GridModel;
struct PageContext;

// The block spanned by the selected cells, as tab-separated text; check
// boxes as 1 or 0, computed cells as they show.
QString CopiedText(const GridModel& model, const QModelIndexList& selected);

// Pastes tab-separated text at the top left of the selected cells, or into
// each of them when it is a single value; headings, computed cells and what
// lies beyond the grid are left out. Answers the block the paste covered, for
// the view to select as spreadsheets do.
QItemSelection PasteText(GridModel& model, const QModelIndexList& selected, const QString& text,
                         const PageContext& context);

// Empties the selected cells that take typed values. Check boxes and choices
// have no empty state, so they stay as they are.
void ClearCells(GridModel& model, const QModelIndexList& selected, const PageContext& context);
