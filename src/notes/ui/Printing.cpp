#include "notes/ui/Printing.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <QWidget>
#include <memory>

namespace {

constexpr int kCannotPrint = 9194;

// The text laid out for the printer's pages, one page after the other. The
// copy keeps the original as its parent, through which it finds the pictures.
void PaintDocument(QPainter& painter, QPrinter& printer, const QTextDocument& source) {
  std::unique_ptr<QTextDocument> text(source.clone(const_cast<QTextDocument*>(&source)));
  text->documentLayout()->setPaintDevice(&printer);
  const QRectF page(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
  text->setPageSize(page.size());
  for (int number = 0; number < text->pageCount(); ++number) {
    if (number > 0) printer.newPage();
    painter.save();
    painter.translate(0, -number * page.height());
    text->drawContents(&painter, page.translated(0, number * page.height()));
    painter.restore();
  }
}

// The view at its size on screen, scaled down (or up) to fill the page's width or height.
void PaintView(QPainter& painter, QPrinter& printer, QWidget& view) {
  const QSizeF page = printer.pageRect(QPrinter::DevicePixel).size();
  const QSize size = view.size();
  const double scale = std::min(page.width() / size.width(), page.height() / size.height());
  painter.scale(scale, scale);
  view.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
}

}  // namespace

bool PrintTo(QPrinter& printer, const Printable& what) {
  printer.setDocName(what.title);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  if (what.document != nullptr)
    PaintDocument(painter, printer, *what.document);
  else if (what.view != nullptr)
    PaintView(painter, printer, *what.view);
  return painter.end();
}

bool ExportPdf(const Printable& what, const QString& path) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path);
  return PrintTo(printer, what);
}

void PrintWithDialog(QWidget* parent, const Printable& what, tamsic::Messages& messages) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  if (PrintTo(printer, what)) return;
  const QString where = printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
  messages.show(messages.text(kCannotPrint) + where.toStdString(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
}
