#include "app/ui/ControlHint.h"

#include <QAbstractItemView>

QString ControlHint(const QWidget* widget, QPoint position) {
  if (const auto* view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
      view != nullptr && view->viewport() == widget) {
    const QString item = view->indexAt(position).data(Qt::ToolTipRole).toString();
    if (!item.isEmpty()) return item;
  }
  for (const QWidget* w = widget; w != nullptr; w = w->parentWidget()) {
    if (!w->toolTip().isEmpty()) return w->toolTip();
    if (w->isWindow()) break;
  }
  return {};
}
