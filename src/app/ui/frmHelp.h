#pragma once
// The help window: the manual's pages in a browser, with the contents, the
// keyword index and the full-text search beside them, back and forward, and
// printing of the page on show. Links lead only to pages of the manual.
#include <QWidget>
#include <vector>

#include "app/HelpManual.h"
#include "app/HelpSearch.h"

struct Program;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;
class QUrl;

class frmHelp : public QWidget {
  Q_OBJECT
 public:
  frmHelp(Program& program, const tamsic::HelpManual& manual, QWidget* parent = nullptr);

  // Shows a page of the manual: "page.html" or "page.html#id".
  void showTarget(const QString& target);
  // The page on show with its anchor, relative to the manual's folder ("running.html#run-dialog").
  QString currentTarget() const;

 private:
  QWidget* buildContents();
  QWidget* buildIndex();
  QWidget* buildSearch();
  QWidget* buildButtons();
  void wireSignals();
  void fillIndex(const QString& text);
  void search();
  void followLink(const QUrl& link);
  void markContents(const QUrl& shown);
  void print();
  QString text(int number) const;

  Program& program_;
  const tamsic::HelpManual& manual_;
  std::vector<tamsic::IndexEntry> index_;
  QTabWidget* tabHelp_ = nullptr;
  QTreeWidget* trvContents_ = nullptr;
  QLineEdit* txtIndex_ = nullptr;
  QListWidget* lstIndex_ = nullptr;
  QLineEdit* txtSearch_ = nullptr;
  QPushButton* cmdSearch_ = nullptr;
  QListWidget* lstSearch_ = nullptr;
  QLabel* lblSearch_ = nullptr;
  QPushButton* cmdBack_ = nullptr;
  QPushButton* cmdForward_ = nullptr;
  QPushButton* cmdPrint_ = nullptr;
  QPushButton* cmdClose_ = nullptr;
  QTextBrowser* txtTopic_ = nullptr;
};
