#include "app/ui/HelpDesk.h"

#include <QApplication>
#include <QDesktopServices>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QUrl>
#include <QWhatsThis>

#include "app/HelpTopics.h"
#include "app/ui/ContextTopic.h"
#include "app/ui/ControlHint.h"
#include "app/ui/Program.h"
#include "app/ui/frmHelp.h"

HelpDesk::HelpDesk(Program& program, QWidget* mainFrame)
    : QObject(mainFrame),
      places(tamsic::HelpManual::Places(QCoreApplication::applicationDirPath().toStdString())),
      program_(program),
      mainFrame_(mainFrame) {
  setObjectName("helpDesk");
  qApp->installEventFilter(this);
}

HelpDesk* HelpDesk::Of(const QWidget* from) {
  for (const QWidget* widget = from; widget != nullptr; widget = widget->parentWidget())
    if (auto* desk = widget->findChild<HelpDesk*>(QString(), Qt::FindDirectChildrenOnly)) return desk;
  for (const QWidget* top : QApplication::topLevelWidgets())
    if (auto* desk = top->findChild<HelpDesk*>(QString(), Qt::FindDirectChildrenOnly)) return desk;
  return nullptr;
}

frmHelp* HelpDesk::window() const { return window_; }

void HelpDesk::showContents() { showTopic(tamsic::help::kContents); }

void HelpDesk::showTopic(const QString& topic) {
  frmHelp* window = openWindow();
  if (window == nullptr) return;
  const auto target = manual_->Target(topic.toStdString());
  window->showTarget(QString::fromStdString(target.value_or(std::string(tamsic::kManualContents))));
}

void HelpDesk::showContextHelp(const QWidget* focus) { showTopic(ContextTopic(focus)); }

void HelpDesk::openInBrowser() {
  const tamsic::HelpManual* manual = this->manual();
  if (manual == nullptr) return;
  const std::string page = (manual->folder() / tamsic::kManualContents).string();
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(page))))
    program_.messages.show(program_.messages.text(9109) + "\n\n" + page, tamsic::msg::kError,
                           tamsic::MsgIcon::Critical);
}

const tamsic::HelpManual* HelpDesk::manual() {
  if (manual_) return &*manual_;
  auto& messages = program_.messages;
  const auto folder = tamsic::HelpManual::Locate(places);
  if (!folder) {
    std::string where;
    for (const auto& place : places) where += "\n" + place.string();
    messages.show(messages.text(9195) + "\n" + where, tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return nullptr;
  }
  try {
    manual_ = tamsic::HelpManual::Load(*folder);
  } catch (const std::exception& error) {
    messages.show(messages.text(9196) + "\n\n" + error.what(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
    return nullptr;
  }
  return &*manual_;
}

// Help asked for from a modal dialog comes in a modal window, or the dialog
// would keep it from taking any input; it stays modal while it is open.
frmHelp* HelpDesk::openWindow() {
  const tamsic::HelpManual* manual = this->manual();
  if (manual == nullptr) return nullptr;
  if (window_ == nullptr) window_ = new frmHelp(program_, *manual, mainFrame_);
  const QWidget* modal = QApplication::activeModalWidget();
  const bool overDialog = (modal != nullptr && modal != window_) || (window_->isVisible() && window_->isModal());
  const Qt::WindowModality wanted = overDialog ? Qt::ApplicationModal : Qt::NonModal;
  if (window_->windowModality() != wanted) {
    window_->hide();
    window_->setWindowModality(wanted);
  }
  window_->show();
  window_->raise();
  window_->activateWindow();
  return window_;
}

bool HelpDesk::belongs(const QWidget* widget) const {
  for (; widget != nullptr; widget = widget->parentWidget())
    if (widget == mainFrame_) return true;
  return false;
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto* key = static_cast<QKeyEvent*>(event);
      if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || !belongs(widget)) return false;
      showContextHelp(widget);
      return true;
    }
    case QEvent::QueryWhatsThis:
    case QEvent::WhatsThis:
      return answerWhatsThis(widget, static_cast<QHelpEvent*>(event));
    default:
      return false;
  }
}

// A control with no "What's This?" text of its own answers with its hint.
bool HelpDesk::answerWhatsThis(QWidget* widget, QHelpEvent* event) {
  if (!widget->whatsThis().isEmpty()) return false;
  const QString hint = ControlHint(widget, event->pos());
  if (hint.isEmpty()) return false;
  if (event->type() == QEvent::WhatsThis) QWhatsThis::showText(event->globalPos(), hint, widget);
  event->accept();
  return true;
}

void ShowHelpTopic(QWidget* from, const QString& topic) {
  if (HelpDesk* desk = HelpDesk::Of(from)) desk->showTopic(topic);
}
