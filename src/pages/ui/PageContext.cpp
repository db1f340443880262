#include "pages/ui/PageContext.h"

#include "files/TextCodec.h"

QString FromRecord(const std::string& text) {
  return QString::fromStdString(tamsic::Cp1252ToUtf8(text));
}

std::string ToRecord(const QString& text) { return tamsic::Utf8ToCp1252(text.toStdString()); }
