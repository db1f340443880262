#include "app/ui/ContextTopic.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTabWidget>

#include "app/HelpTopics.h"
#include "pages/ui/InputPages.h"

namespace {

QString Topic(std::string_view id) { return QString::fromUtf8(id.data(), static_cast<qsizetype>(id.size())); }

// The project window's tabs, when the widget is they, the project window, or
// the main frame with a project window active.
const QTabWidget* ProjectTabs(const QWidget& widget) {
  const QString name = widget.objectName();
  if (name == "tabProject") return qobject_cast<const QTabWidget*>(&widget);
  if (name == "frmProject") return widget.findChild<QTabWidget*>("tabProject");
  if (name != "mdiMain") return nullptr;
  const auto* area = widget.findChild<QMdiArea*>();
  const QMdiSubWindow* active = area ? area->currentSubWindow() : nullptr;
  return active && active->widget() ? active->widget()->findChild<QTabWidget*>("tabProject") : nullptr;
}

QString PageTopic(const InputPages& pages) { return Topic(tamsic::help::InputPageTopic(pages.currentPage())); }

QString TabTopic(const QTabWidget& tabs) {
  if (tabs.currentIndex() == 0)
    if (const auto* pages = tabs.findChild<InputPages*>()) return PageTopic(*pages);
  return Topic(tamsic::help::ProjectTabTopic(tabs.currentIndex()));
}

}  // namespace

QString ContextTopic(const QWidget* focus) {
  for (const QWidget* widget = focus; widget != nullptr; widget = widget->parentWidget()) {
    if (const auto* pages = qobject_cast<const InputPages*>(widget)) return PageTopic(*pages);
    if (const QTabWidget* tabs = ProjectTabs(*widget)) return TabTopic(*tabs);
    const std::string name = widget->objectName().toStdString();
    if (const std::string_view topic = tamsic::help::WindowTopic(name); !topic.empty()) return Topic(topic);
  }
  return tamsic::help::kContents;
}
