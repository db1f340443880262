#include "app/ui/ProgramIcon.h"

#include <QPainter>
#include <QPixmap>

QIcon ProgramIcon() {
  QPixmap picture(64, 64);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(QColor(0x2e, 0x5d, 0x34));
  painter.setPen(Qt::NoPen);
  painter.drawRoundedRect(picture.rect(), 12, 12);
  QFont font = painter.font();
  font.setPixelSize(48);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(picture.rect(), Qt::AlignCenter, "T");
  return QIcon(picture);
}
