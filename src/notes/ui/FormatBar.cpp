#include "notes/ui/FormatBar.h"

#include <QTextCursor>
#include <QTextEdit>
#include <QTextList>

namespace {
constexpr int kBold = 7016;
constexpr int kItalic = 7017;
constexpr int kUnderline = 7018;
constexpr int kBullets = 7019;
constexpr int kNumbers = 7020;
constexpr int kBoldHint = 7021;
constexpr int kItalicHint = 7022;
constexpr int kUnderlineHint = 7023;
constexpr int kBulletsHint = 7024;
constexpr int kNumbersHint = 7025;
}  // namespace

FormatBar::FormatBar(QTextEdit& editor, const std::function<QString(int)>& text, QWidget* parent)
    : QToolBar(parent), editor_(editor), text_(text) {
  setObjectName("tbrFormat");
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bold_ = add("cmdBold", "format-text-bold", kBold, kBoldHint);
  bold_->setShortcut(QKeySequence::Bold);
  italic_ = add("cmdItalic", "format-text-italic", kItalic, kItalicHint);
  italic_->setShortcut(QKeySequence::Italic);
  underline_ = add("cmdUnderline", "format-text-underline", kUnderline, kUnderlineHint);
  underline_->setShortcut(QKeySequence::Underline);
  addSeparator();
  bullets_ = add("cmdBullets", "format-list-unordered", kBullets, kBulletsHint);
  numbers_ = add("cmdNumbers", "format-list-ordered", kNumbers, kNumbersHint);
  // The keys work while the editor has the focus, and only there.
  for (QAction* shortcut : {bold_, italic_, underline_}) shortcut->setShortcutContext(Qt::WidgetShortcut);
  editor_.addActions({bold_, italic_, underline_});

  connect(bold_, &QAction::triggered, this,
          [this](bool on) { editor_.setFontWeight(on ? QFont::Bold : QFont::Normal); });
  connect(italic_, &QAction::triggered, &editor_, &QTextEdit::setFontItalic);
  connect(underline_, &QAction::triggered, &editor_, &QTextEdit::setFontUnderline);
  connect(bullets_, &QAction::triggered, this, [this](bool on) { toggleList(on, QTextListFormat::ListDisc); });
  connect(numbers_, &QAction::triggered, this, [this](bool on) { toggleList(on, QTextListFormat::ListDecimal); });
  connect(&editor_, &QTextEdit::currentCharFormatChanged, this, &FormatBar::refresh);
  connect(&editor_, &QTextEdit::cursorPositionChanged, this, &FormatBar::refresh);
  refresh();
}

QAction* FormatBar::add(const char* name, const QString& icon, int caption, int hint) {
  QAction* item = addAction(QIcon::fromTheme(icon), text_(caption));
  item->setObjectName(name);
  item->setToolTip(text_(hint));
  item->setCheckable(true);
  return item;
}

void FormatBar::refresh() {
  const QTextCharFormat format = editor_.currentCharFormat();
  bold_->setChecked(format.fontWeight() > QFont::Normal);
  italic_->setChecked(format.fontItalic());
  underline_->setChecked(format.fontUnderline());
  const QTextList* list = editor_.textCursor().currentList();
  const auto style = list ? list->format().style() : QTextListFormat::ListStyleUndefined;
  bullets_->setChecked(style == QTextListFormat::ListDisc);
  numbers_->setChecked(style == QTextListFormat::ListDecimal);
}

// A list command on a list of the other kind turns it into this kind; on a list of its own kind it ends the list.
void FormatBar::toggleList(bool on, int style) {
  QTextCursor cursor = editor_.textCursor();
  QTextList* list = cursor.currentList();
  cursor.beginEditBlock();
  if (!on) {
    for (int i = list ? list->count() - 1 : -1; i >= 0; --i) {
      const QTextBlock block = list->item(i);
      if (block.position() > cursor.selectionEnd() || block.position() + block.length() <= cursor.selectionStart())
        continue;
      list->remove(block);
      QTextCursor at(block);
      QTextBlockFormat plain = at.blockFormat();
      plain.setIndent(0);
      at.setBlockFormat(plain);
    }
  } else if (list != nullptr) {
    QTextListFormat format = list->format();
    format.setStyle(static_cast<QTextListFormat::Style>(style));
    list->setFormat(format);
  } else {
    cursor.createList(static_cast<QTextListFormat::Style>(style));
  }
  cursor.endEditBlock();
  refresh();
}
