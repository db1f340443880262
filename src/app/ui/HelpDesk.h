#pragma once
// The help of one main frame: its one help window, opened at a topic and
// raised when asked again, the manual it shows, and the keys that ask for
// help anywhere in the program. F1 opens the topic of what has the focus; in
// "What's This?" mode a click on a control shows its hint. Both are caught
// for the whole application in one event filter, so no control needs code of
// its own.
#include <QObject>
#include <QPointer>
#include <filesystem>
#include <optional>
#include <vector>

#include "app/HelpManual.h"

struct Program;
class QHelpEvent;
class QWidget;
class frmHelp;

class HelpDesk : public QObject {
  Q_OBJECT
 public:
  HelpDesk(Program& program, QWidget* mainFrame);

  // The desk of the main frame a widget belongs to, else of any main frame; null when there is none.
  static HelpDesk* Of(const QWidget* from);

  void showContents();
  // A topic by its id; an id the manual lacks shows the contents.
  void showTopic(const QString& topic);
  // The topic of what has the focus.
  void showContextHelp(const QWidget* focus);
  // The manual in the desktop's web browser, read from its folder.
  void openInBrowser();

  // The help window, once it has been opened.
  frmHelp* window() const;

  // Where the manual is looked for, in order.
  std::vector<std::filesystem::path> places;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The manual, read once; null when it is missing or unreadable (the user has been told why).
  const tamsic::HelpManual* manual();
  frmHelp* openWindow();
  bool belongs(const QWidget* widget) const;
  bool answerWhatsThis(QWidget* widget, QHelpEvent* event);

  Program& program_;
  QWidget* mainFrame_;
  std::optional<tamsic::HelpManual> manual_;
  QPointer<frmHelp> window_;
};

// Opens the help at a topic of the manual, for the window `from` belongs to.
void ShowHelpTopic(QWidget* from, const QString& topic);
