#pragma once
// An icon of the desktop's theme, or the style's own picture where the theme
// has none (a machine without an icon theme still gets pictures).
#include <QIcon>
#include <QStyle>

// "f(x)" drawn in the palette's text colour: no theme has a picture for a function.
QIcon FunctionIcon();

inline QIcon ThemeIcon(const QString& name, const QStyle& style, QStyle::StandardPixmap fallback) {
  return QIcon::fromTheme(name, style.standardIcon(fallback));
}
