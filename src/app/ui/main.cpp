// tamsic: the desktop program. Starts in this order: the texts, the global
// settings, the splash window, the main frame, then the project named on the
// command line or the welcome dialog.
#include <QApplication>
#include <QCommandLineParser>
#include <QMessageBox>
#include <QTimer>

#include "app/ui/Program.h"
#include "app/ui/ProgramIcon.h"
#include "app/ui/QtMessageBox.h"
#include "app/ui/QtSaveFileDialog.h"
#include "app/ui/QtSettingsStore.h"
#include "app/ui/StartUp.h"
#include "app/ui/mdiMain.h"
#include "engine/Engine.h"
#include "engine/EngineLibrary.h"
#include "model/Errors.h"

namespace {

// Ends the program once the main frame has painted: start-up measurements.
class QuitOnFirstPaint : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    return false;
  }
};

void CloseEngine() {
  // Loading the library only to close it would be pointless.
  if (tamsic::EngineLibrary::loaded()) tamsic::LibraryEngine().close();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  // Desktops without an icon theme of their own still get clipboard pictures.
  QIcon::setFallbackThemeName("Adwaita");
  QApplication::setWindowIcon(ProgramIcon());
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addPositionalArgument("project", "Project file (.tpj) to open");
  const QCommandLineOption quitAfterPaint("quit-after-first-paint",
                                          "Quit as soon as the main frame has been painted");
  parser.addOption(quitAfterPaint);
  parser.process(app);

  tamsic::StringTable strings;
  try {
    strings = tamsic::StringTable::fromFile(tamsic::StringTable::locate());
  } catch (const tamsic::FileError& error) {
    QMessageBox::critical(nullptr, "Tamsic", QString::fromStdString(error.what()));
    return 1;
  }
  QtSettingsStore store;
  QtMessageBox box(strings);
  QtSaveFileDialog saveDialog(strings);
  Program program(strings, store, box, saveDialog);
  program.closeEngine = CloseEngine;

  mdiMain frame(program);
  if (parser.isSet(quitAfterPaint)) frame.installEventFilter(new QuitOnFirstPaint(&frame));
  const QStringList arguments = parser.positionalArguments();
  StartUp(frame, program, arguments.isEmpty() ? QString() : arguments.constFirst());
  return app.exec();
}
