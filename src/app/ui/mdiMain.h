#pragma once
// The main frame: holds the project windows, owns the menus, the toolbar and
// the recent-projects menu, and opens the dialogs. Its captions are fixed when
// it is built; a language chosen later applies to windows opened afterwards.
#include <QMainWindow>
#include <optional>
#include <string>

#include "app/ui/NewProjectRequest.h"
#include "files/ProjectOpen.h"

struct Program;
class HelpDesk;
class QActionGroup;
class QMdiArea;
class QMenu;
class QToolBar;
class QUndoGroup;
class ProjectCompanions;
class frmProject;

class mdiMain : public QMainWindow {
  Q_OBJECT
 public:
  explicit mdiMain(Program& program, QWidget* parent = nullptr);
  ~mdiMain() override;

  // Tests the signature, rotates the backups and opens a project window;
  // answers the window, or null when the file is missing, not a project or
  // could not be read (the user has been told why).
  frmProject* openProject(const QString& path);
  // A window on a new, not yet saved project in an existing folder, which
  // becomes the current one; null when its template cannot be read (the user
  // has been told why).
  frmProject* newProject(const NewProjectRequest& request);
  frmProject* activeProject() const;
  QMdiArea* mdiArea() const { return mdiArea_; }

  // The welcome dialog, when the user wants it at start.
  void showWelcomeIfWanted();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  void buildFileMenu();
  void buildEditMenu();
  void buildProjectMenu();
  void buildSimulationMenu();
  void buildWindowMenu();
  void buildHelpMenu();
  void buildToolbar();
  // Print, the notes and the project report: the commands and windows of ProjectCompanions.
  void buildCompanionCommands();
  void wireCompanions(frmProject* window);
  void wireSignals();
  QAction* action(const char* name, int caption);

  void rebuildRecentMenu();
  void checkCurrentLanguage();
  void updateCommands();
  void toolbarAction(QAction* action);
  void newProjectDialog(const QString& fromTemplate = {});
  void openDialog();
  void showWelcome();
  void showSettings();
  void showAbout();
  frmProject* addProjectWindow(frmProject* window);
  std::optional<tamsic::OpenedProject> readProject(const std::string& file, bool makeBackups);
  void projectSaved(const QString& path, const QString& title);
  void sendKeyToFocus(int key);
  // An undo or redo command that names the edit it takes back and follows the active project window.
  QAction* undoAction(const char* name, int prefix, bool undo);
  QString text(int number) const;

  Program& program_;
  QMdiArea* mdiArea_ = nullptr;
  QMenu* mnuFile_ = nullptr;
  QAction* recentEnd_ = nullptr;  // the recent entries stand just above it
  QList<QAction*> recentActions_;
  QToolBar* toolbar_ = nullptr;
  QActionGroup* languages_ = nullptr;
  QAction* mniNew_ = nullptr;
  QAction* mniOpen_ = nullptr;
  QAction* mniCloseProject_ = nullptr;
  QAction* mniSave_ = nullptr;
  QAction* mniSaveAs_ = nullptr;
  QAction* mniProperties_ = nullptr;
  QAction* mniExit_ = nullptr;
  QUndoGroup* undoGroup_ = nullptr;
  QAction* mniUndo_ = nullptr;
  QAction* mniRedo_ = nullptr;
  QAction* mniCut_ = nullptr;
  QAction* mniCopy_ = nullptr;
  QAction* mniPaste_ = nullptr;
  QAction* mniAddName_ = nullptr;
  QAction* mniEditName_ = nullptr;
  QAction* mniRemoveName_ = nullptr;
  QAction* mniRunSim_ = nullptr;
  QAction* mniCascade_ = nullptr;
  QAction* mniTileH_ = nullptr;
  QAction* mniTileV_ = nullptr;
  QAction* mniArrange_ = nullptr;
  QAction* mniAbout_ = nullptr;
  HelpDesk* help_ = nullptr;
  QAction* tblSave_ = nullptr;
  QAction* tblRun_ = nullptr;
  ProjectCompanions* companions_ = nullptr;
  QAction* mniPrint_ = nullptr;
  QAction* tblPrint_ = nullptr;
  QAction* tblNotes_ = nullptr;
  QAction* tblEquation_ = nullptr;
  QAction* cmdST_ = nullptr;
};
