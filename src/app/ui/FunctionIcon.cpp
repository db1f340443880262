#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include "app/ui/ThemeIcon.h"

QIcon FunctionIcon() {
  constexpr int kSide = 32;
  QPixmap picture(kSide, kSide);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::TextAntialiasing);
  QFont font("DejaVu Serif");
  font.setItalic(true);
  font.setPixelSize(15);
  painter.setFont(font);
  painter.setPen(QApplication::palette().color(QPalette::WindowText));
  painter.drawText(picture.rect(), Qt::AlignCenter, "f(x)");
  return QIcon(picture);
}
