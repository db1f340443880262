#include "app/ui/WindowArrangement.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

QList<QMdiSubWindow*> OpenWindows(QMdiArea& area) {
  QList<QMdiSubWindow*> windows;
  for (QMdiSubWindow* window : area.subWindowList())
    if (!window->isMinimized() && window->isVisible()) windows << window;
  return windows;
}

void Tile(QMdiArea& area, bool stacked) {
  const auto windows = OpenWindows(area);
  if (windows.isEmpty()) return;
  const QRect space = area.viewport()->rect();
  const int count = static_cast<int>(windows.size());
  for (int i = 0; i < count; ++i) {
    windows[i]->showNormal();
    if (stacked) {
      const int top = space.height() * i / count;
      windows[i]->setGeometry(0, top, space.width(), space.height() * (i + 1) / count - top);
    } else {
      const int left = space.width() * i / count;
      windows[i]->setGeometry(left, 0, space.width() * (i + 1) / count - left, space.height());
    }
  }
}

}  // namespace

void TileHorizontally(QMdiArea& area) { Tile(area, true); }

void TileVertically(QMdiArea& area) { Tile(area, false); }

void ArrangeIcons(QMdiArea& area) {
  const QRect space = area.viewport()->rect();
  int left = 0;
  for (QMdiSubWindow* window : area.subWindowList()) {
    if (!window->isMinimized()) continue;
    const QSize size = window->size();
    window->move(left, space.bottom() - size.height() + 1);
    left += size.width();
  }
}
