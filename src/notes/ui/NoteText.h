#pragma once
// The rich text of a scenario note. A note keeps only what the notes window's
// formatting bar makes: paragraphs, bold, italic, underline and bullet or
// numbered lists, written as the few HTML tags that say so ("<p>", "<b>",
// "<i>", "<u>", "<ul>", "<ol>", "<li>", "<br>"). Qt's own HTML would add the
// style of every paragraph and the writing machine's font to each note, which
// the project file would carry many times over with its ":" and ";" escaped.
// What is pasted into a note is cut down to the same formats, so that the
// window never shows more than the file keeps.
#include <QString>
#include <QTextEdit>

class QTextDocument;

// The note's text in the stored form; empty for a note without text.
QString NoteHtml(const QTextDocument& document);

// Shows a stored note: the stored form, or a plain text of an older file as it stands.
void ShowNote(QTextDocument& document, const QString& stored);

// The editor of a note: pasting keeps the formats a note can hold.
class NoteEdit : public QTextEdit {
 public:
  using QTextEdit::QTextEdit;

 protected:
  void insertFromMimeData(const QMimeData* source) override;
};
