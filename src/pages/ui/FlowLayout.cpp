#include "pages/ui/FlowLayout.h"

#include <QWidget>
#include <vector>

FlowLayout::FlowLayout(QWidget* parent, int spacing) : QLayout(parent), spacing_(spacing) {
  setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() { qDeleteAll(items_); }

void FlowLayout::addItem(QLayoutItem* item) { items_.append(item); }

int FlowLayout::count() const { return static_cast<int>(items_.size()); }

QLayoutItem* FlowLayout::itemAt(int index) const { return items_.value(index); }

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const { return arrange(QRect(0, 0, width, 0), false); }

// Everything on one line.
QSize FlowLayout::sizeHint() const {
  QSize size(0, 0);
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    const QSize hint = item->sizeHint();
    size.rwidth() += hint.width() + (size.width() > 0 ? spacing_ : 0);
    size.setHeight(std::max(size.height(), hint.height()));
  }
  const QMargins margins = contentsMargins();
  return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

// As narrow as the widest item, each on a line of its own.
QSize FlowLayout::minimumSize() const {
  QSize size(0, 0);
  for (const QLayoutItem* item : items_)
    if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
  const QMargins margins = contentsMargins();
  return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  arrange(rect, true);
}

// Items on a line are centred on it, so that a label reads level with the
// boxes and buttons beside it.
int FlowLayout::arrange(const QRect& rect, bool place) const {
  const QRect area = rect.marginsRemoved(contentsMargins());
  struct Placed {
    QLayoutItem* item;
    QRect geometry;
  };
  std::vector<Placed> line;
  int y = area.y();
  int lineHeight = 0;
  const auto endLine = [&] {
    if (place)
      for (const Placed& placed : line)
        placed.item->setGeometry(placed.geometry.translated(0, (lineHeight - placed.geometry.height()) / 2));
    line.clear();
  };
  int x = area.x();
  for (QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    const int width = std::min(item->sizeHint().width(), area.width());
    const int height = item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
    if (x > area.x() && x + width > area.right() + 1) {
      endLine();
      x = area.x();
      y += lineHeight + spacing_;
      lineHeight = 0;
    }
    line.push_back({item, QRect(x, y, width, height)});
    x += width + spacing_;
    lineHeight = std::max(lineHeight, height);
  }
  endLine();
  return y + lineHeight - rect.y() + contentsMargins().bottom();
}
