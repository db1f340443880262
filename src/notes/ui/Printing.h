#pragma once
// Printing what the user is looking at, on a printer or into a PDF file: a
// text (a report, a note, a table) over as many pages as it takes, or a view
// (an input page, a graph) drawn to fit one page. Qt's print dialog offers a
// PDF file where the machine has no printer.
#include <QString>
#include <memory>

#include "model/Messages.h"

class QPrinter;
class QTextDocument;
class QWidget;

struct Printable {
  static Printable Text(const QString& title, const QTextDocument* document) { return {title, document, nullptr, {}}; }
  static Printable View(const QString& title, QWidget* view) { return {title, nullptr, view, {}}; }

  QString title;                            // the document's name for the printer
  const QTextDocument* document = nullptr;  // a text, paged
  QWidget* view = nullptr;                  // else a view, fit to the page
  std::shared_ptr<QTextDocument> made;      // a text made for the printing alone
};

// Draws onto a printer that is set up; false when the printer or the file cannot be started.
bool PrintTo(QPrinter& printer, const Printable& what);

// Writes a PDF file; false when it could not be written.
bool ExportPdf(const Printable& what, const QString& path);

// Asks through Qt's print dialog and prints; a failure is told through messages.
void PrintWithDialog(QWidget* parent, const Printable& what, tamsic::Messages& messages);
