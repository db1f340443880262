#include "app/ui/StartUp.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <chrono>

#include "app/ui/frmSplash.h"
#include "app/ui/mdiMain.h"
#include "engine/WorkFile.h"

namespace {
// Long enough to look into a failed run from last week's session.
constexpr std::chrono::hours kKeepWorkFiles{24 * 7};
}  // namespace

void StartUp(mdiMain& frame, Program& program, const QString& project) {
  tamsic::RemoveOldWorkFiles(QCoreApplication::applicationDirPath().toStdString(), kKeepWorkFiles);
  auto* splash = new frmSplash(program, &frame);
  splash->show();
  QApplication::processEvents();
  frame.show();
  splash->raise();
  splash->loaded();
  if (!project.isEmpty()) {
    // The user asked for this project: the splash must not hide it.
    const QPointer<frmSplash> splashStill(splash);
    QTimer::singleShot(0, &frame, [&frame, project, splashStill] {
      if (splashStill) splashStill->close();
      frame.openProject(project);
    });
    return;
  }
  // The welcome dialog follows the splash; shown together, the modal dialog
  // would cover the splash and leave its close button out of reach.
  QObject::connect(splash, &QObject::destroyed, &frame, &mdiMain::showWelcomeIfWanted, Qt::QueuedConnection);
}
