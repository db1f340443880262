#include "notes/ui/NoteText.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

namespace {

// Blanks and tabs stand as typed; paragraphs have no space between them, as in the editor.
const QString kNoteStyle =
    QStringLiteral("p, li { white-space: pre-wrap; margin-top: 0px; margin-bottom: 0px; } "
                   "ul, ol { margin-top: 0px; margin-bottom: 0px; }");

// A stored note begins with one of the block tags the writer makes.
bool IsStoredForm(const QString& text) {
  return text.startsWith(QLatin1String("<p>")) || text.startsWith(QLatin1String("<p ")) ||
         text.startsWith(QLatin1String("<ul>")) || text.startsWith(QLatin1String("<ol>"));
}

// Quotes stay as typed: they need no escape in HTML text. Pictures are no part of a note.
QString Escaped(QString text) {
  text.remove(QChar::ObjectReplacementCharacter);
  text.replace('&', QLatin1String("&amp;")).replace('<', QLatin1String("&lt;")).replace('>', QLatin1String("&gt;"));
  return text.replace(QChar::LineSeparator, QLatin1String("<br>"));
}

QString Fragments(const QTextBlock& block) {
  QString html;
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    const QTextFragment fragment = it.fragment();
    const QTextCharFormat format = fragment.charFormat();
    QString text = Escaped(fragment.text());
    if (format.fontUnderline()) text = "<u>" + text + "</u>";
    if (format.fontItalic()) text = "<i>" + text + "</i>";
    if (format.fontWeight() > QFont::Normal) text = "<b>" + text + "</b>";
    html += text;
  }
  return html;
}

QString ListTag(const QTextList* list) {
  return list->format().style() == QTextListFormat::ListDecimal ? QStringLiteral("ol") : QStringLiteral("ul");
}

}  // namespace

QString NoteHtml(const QTextDocument& document) {
  if (document.isEmpty()) return {};
  QString html;
  const QTextList* open = nullptr;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const QTextList* list = block.textList();
    if (open != nullptr && list != open) html += "</" + ListTag(open) + ">";
    if (list != nullptr && list != open) html += "<" + ListTag(list) + ">";
    open = list;
    const QString text = Fragments(block);
    if (list != nullptr)
      html += "<li>" + text + "</li>";
    else if (text.isEmpty())
      html += QStringLiteral("<p style=\"-qt-paragraph-type:empty\"><br></p>");
    else
      html += "<p>" + text + "</p>";
  }
  if (open != nullptr) html += "</" + ListTag(open) + ">";
  return html;
}

void ShowNote(QTextDocument& document, const QString& stored) {
  document.setDefaultStyleSheet(kNoteStyle);
  if (IsStoredForm(stored))
    document.setHtml(stored);
  else
    document.setPlainText(stored);
}

void NoteEdit::insertFromMimeData(const QMimeData* source) {
  if (!source->hasHtml()) {
    QTextEdit::insertFromMimeData(source);
    return;
  }
  QTextDocument pasted;
  pasted.setHtml(source->html());
  QMimeData kept;
  kept.setHtml(NoteHtml(pasted));
  kept.setText(source->text());
  QTextEdit::insertFromMimeData(&kept);
}
