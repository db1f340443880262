#include "pages/ui/GridView.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyledItemDelegate>

#include "pages/ui/GridClipboard.h"
#include "pages/ui/PageContext.h"

namespace {

// Cells of a few fixed words are chosen from a list instead of typed.
class ChoiceDelegate : public QStyledItemDelegate {
 public:
  ChoiceDelegate(GridModel* model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int row = model_->gridRow(index);
    const int col = model_->gridCol(index);
    if (model_->cellUse(row, col) != CellUse::Choice || !model_->choices)
      return QStyledItemDelegate::createEditor(parent, option, index);
    auto* box = new QComboBox(parent);
    box->addItems(model_->choices(row, col));
    return box;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
      box->setCurrentText(index.data(Qt::EditRole).toString());
      return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
      model->setData(index, box->currentText(), Qt::EditRole);
      return;
    }
    QStyledItemDelegate::setModelData(editor, model, index);
  }

 private:
  GridModel* model_;
};

}  // namespace

GridView::GridView(const PageContext& context, tamsic::Field field, const char* name, int hint, bool headingRow,
                   QWidget* parent)
    : QTableView(parent), context_(context), model_(new GridModel(context.messages, field, headingRow, this)) {
  setObjectName(name);
  setToolTip(context.text(hint));
  setModel(model_);
  setItemDelegate(new ChoiceDelegate(model_, this));
  // Typing starts an edit; merely moving onto a cell does not, so that the arrow keys move between cells.
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                  QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setCornerButtonEnabled(false);
  horizontalHeader()->setDefaultAlignment(Qt::Alignment(Qt::AlignCenter | Qt::TextWordWrap));
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  // One line per row: measuring every row's text again on each change costs more than it shows.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + 6);
  // A grid is as high as its rows need (up to a limit, then it scrolls); the
  // page scrolls when the window is lower than that. Wide grids scroll sideways.
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  hintOf = [hint](int, int) { return hint; };
  connect(model_, &GridModel::refused, this, [this](const QModelIndex& index) {
    refused_ = true;
    refusedCell_ = index;
  });
  connect(model_, &GridModel::modelReset, this, &GridView::fitHeadings);
  connect(model_, &GridModel::headerDataChanged, this, &GridView::fitHeadings);
}

void GridView::setGridEnabled(bool enabled) {
  model_->setEnabled(enabled);
  setEnabled(enabled);
}

void GridView::dropRefusedEdit() {
  if (state() != EditingState) return;
  if (QWidget* editor = indexWidget(currentIndex()))
    QTableView::closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

bool GridView::editFunction() {
  const QModelIndex index = currentIndex();
  if (!index.isValid() || !(model_->flags(index) & Qt::ItemIsEditable) || !context_.openEquationEditor ||
      !model_->takesFunctions(model_->gridRow(index), model_->gridCol(index)))
    return false;
  QString start = index.data(Qt::EditRole).toString();
  if (auto* editor = qobject_cast<QLineEdit*>(indexWidget(index)); editor && state() == EditingState) {
    start = editor->text();
    QTableView::closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
  }
  if (const auto function = context_.openEquationEditor(start)) model_->setData(index, *function, Qt::EditRole);
  setFocus();
  return true;
}

QSize GridView::sizeHint() const {
  constexpr int kWidest = 1200;
  constexpr int kHighest = 600;
  // Grids wider than this are likely to scroll sideways on a page of an
  // ordinary window: leave room for the scroll bar below the last row.
  constexpr int kScrollsSideways = 700;
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const int width = verticalHeader()->sizeHint().width() + horizontalHeader()->length() + 2 * frameWidth() + 2;
  const int height = horizontalHeader()->height() + verticalHeader()->length() + 2 * frameWidth() + 2;
  return {std::min(width, kWidest) + (height > kHighest ? scrollBar : 0),
          std::min(height, kHighest) + (width > kScrollsSideways ? scrollBar : 0)};
}

// Never so narrow that the row headings hide the values: the row headings
// and a column of values stay in view, and a narrow page scrolls instead.
QSize GridView::minimumSizeHint() const {
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const int column = model_->columnCount() > 0 ? columnWidth(0) : 0;
  const int width = verticalHeader()->sizeHint().width() + column + 2 * frameWidth() + scrollBar + 2;
  return {std::min(width, sizeHint().width()), QTableView::minimumSizeHint().height()};
}

// Long headings wrap over up to four lines, widening their column rather
// than taking a fifth; columns are as wide as their longest word or their
// values need. Measured in bold, as the heading of a selected column shows.
void GridView::fitHeadings() {
  constexpr int kMostLines = 4;
  constexpr int kWidestColumn = 320;
  QFont bold = horizontalHeader()->font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const int margin = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, horizontalHeader()) + 2;
  const auto linesAt = [&metrics, margin](int width, const QString& heading) {
    return metrics.boundingRect(QRect(0, 0, width - margin, 1000), Qt::TextWordWrap, heading).height() /
           metrics.lineSpacing();
  };
  int lines = 1;
  for (int c = 0; c < model_->columnCount(); ++c) {
    const QString heading = model_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
    int widest = metrics.horizontalAdvance("00000000");
    for (const QString& word : heading.split(' ')) widest = std::max(widest, metrics.horizontalAdvance(word));
    int width = std::min(std::max({widest + margin, std::min(metrics.horizontalAdvance(heading) + margin, 130),
                                   sizeHintForColumn(c)}), 220);
    while (linesAt(width, heading) > kMostLines && width < kWidestColumn) width += 10;
    setColumnWidth(c, width);
    lines = std::max(lines, linesAt(width, heading));
  }
  horizontalHeader()->setFixedHeight(metrics.lineSpacing() * lines + margin + 8);
  updateGeometry();
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.isValid()) emitHint(current);
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  emitHint(currentIndex());
}

void GridView::emitHint(const QModelIndex& index) {
  const int hint = index.isValid() ? hintOf(model_->gridRow(index), model_->gridCol(index)) : hintOf(0, 0);
  emit hintChanged(context_.text(hint));
}

void GridView::commitData(QWidget* editor) {
  refused_ = false;
  QTableView::commitData(editor);
}

// The view closes an editor right after committing it; a refused value keeps
// its editor instead, focused, with the caret after the text.
void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  if (refused_) {
    refused_ = false;
    editor->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(editor)) line->end(false);
    // A click on another cell has already moved the current cell away.
    QMetaObject::invokeMethod(
        this, [this] { if (refusedCell_.isValid()) setCurrentIndex(refusedCell_); }, Qt::QueuedConnection);
    return;
  }
  QTableView::closeEditor(editor, hint);
  if (hint == QAbstractItemDelegate::NoHint) emitHint(currentIndex());
}

bool GridView::editBlock(QKeyEvent* event) {
  if (state() == EditingState) return false;
  QModelIndexList cells = selectionModel()->selectedIndexes();
  if (cells.isEmpty() && currentIndex().isValid()) cells << currentIndex();
  if (cells.isEmpty()) return false;
  QClipboard* clipboard = QGuiApplication::clipboard();
  if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::Cut)) {
    clipboard->setText(CopiedText(*model_, cells));
    if (event->matches(QKeySequence::Cut)) ClearCells(*model_, cells, context_);
  } else if (event->matches(QKeySequence::Paste)) {
    const QItemSelection covered = PasteText(*model_, cells, clipboard->text(), context_);
    if (!covered.isEmpty()) selectionModel()->select(covered, QItemSelectionModel::ClearAndSelect);
  } else if (event->matches(QKeySequence::Delete)) {
    ClearCells(*model_, cells, context_);
  } else {
    return false;
  }
  return true;
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (editBlock(event)) return;
  const QModelIndex index = currentIndex();
  const bool valueCell = index.isValid() && (model_->flags(index) & Qt::ItemIsEditable);
  if (valueCell && event->text() == "=" && state() != EditingState && context_.showEquationDialogOnEquals() &&
      editFunction())
    return;
  // A letter picks one of the words of a choice cell, "G" for "Global".
  if (index.isValid() && state() != EditingState && model_->choices &&
      model_->cellUse(model_->gridRow(index), model_->gridCol(index)) == CellUse::Choice && !event->text().isEmpty()) {
    for (const QString& word : model_->choices(model_->gridRow(index), model_->gridCol(index)))
      if (word.startsWith(event->text(), Qt::CaseInsensitive)) {
        model_->setData(index, word, Qt::EditRole);
        return;
      }
  }
  QTableView::keyPressEvent(event);
}
