#pragma once
// The formatting commands of a rich-text editor: bold, italic, underline, a
// bullet list and a numbered list. They act on the selection (or the word at
// the cursor) and show the format where the cursor stands.
#include <QToolBar>
#include <functional>

class QTextEdit;

class FormatBar : public QToolBar {
  Q_OBJECT
 public:
  // Captions come from the string table through `text`.
  FormatBar(QTextEdit& editor, const std::function<QString(int)>& text, QWidget* parent = nullptr);

 private:
  QAction* add(const char* name, const QString& icon, int caption, int hint);
  void refresh();
  void toggleList(bool on, int style);

  QTextEdit& editor_;
  const std::function<QString(int)> text_;
  QAction* bold_ = nullptr;
  QAction* italic_ = nullptr;
  QAction* underline_ = nullptr;
  QAction* bullets_ = nullptr;
  QAction* numbers_ = nullptr;
};
