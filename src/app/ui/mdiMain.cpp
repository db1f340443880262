#include "app/ui/mdiMain.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <QUndoGroup>
#include <QUndoStack>
#include <QWhatsThis>

#include "app/ui/FileFilter.h"
#include "app/ui/HelpDesk.h"
#include "app/ui/Program.h"
#include "app/ui/ThemeIcon.h"
#include "app/ui/WindowArrangement.h"
#include "app/ui/frmAbout.h"
#include "app/ui/frmNewProject.h"
#include "app/ui/frmSettings.h"
#include "app/ui/frmWelcome.h"
#include "files/AtomicFile.h"
#include "files/NewProject.h"
#include "files/ProjectOpen.h"
#include "files/TextCodec.h"
#include "model/Errors.h"
#include "notes/ui/ProjectCompanions.h"
#include "pages/ui/frmProject.h"

namespace {

// Language menu items: name, caption, language code.
struct LanguageItem {
  const char* name;
  int caption;
  int code;
};
constexpr LanguageItem kLanguages[] = {
    {"mniEnglish", 9014, 1}, {"mniSpanish", 9015, 2}, {"mniPortuguese", 9016, 0}, {"mniGerman", 9017, 3}};

}  // namespace

mdiMain::mdiMain(Program& program, QWidget* parent) : QMainWindow(parent), program_(program) {
  setObjectName("mdiMain");
  setWindowTitle(text(9001));
  mdiArea_ = new QMdiArea(this);
  mdiArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mdiArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(mdiArea_);
  buildMenus();
  buildToolbar();
  buildCompanionCommands();
  wireSignals();
  rebuildRecentMenu();
  checkCurrentLanguage();
  updateCommands();
  const QString point = QLocale().decimalPoint();
  program_.decimalSeparator = point == QStringLiteral(",") ? ',' : '.';
  if (const QScreen* screen = QGuiApplication::primaryScreen())
    resize(screen->availableGeometry().size() * 95 / 100);
}

mdiMain::~mdiMain() {
  // The project windows close after this object has stopped being an mdiMain;
  // the area must not tell it that another one became active.
  disconnect(mdiArea_, nullptr, this, nullptr);
}

QAction* mdiMain::action(const char* name, int caption) {
  auto* item = new QAction(text(caption), this);
  item->setObjectName(name);
  return item;
}

void mdiMain::buildMenus() {
  buildFileMenu();
  buildEditMenu();
  buildProjectMenu();
  buildSimulationMenu();
  buildWindowMenu();
  buildHelpMenu();
}

void mdiMain::buildFileMenu() {
  mniNew_ = action("mniNew", 9003);
  mniNew_->setShortcut(QKeySequence::New);
  mniOpen_ = action("mniOpen", 9004);
  mniOpen_->setShortcut(QKeySequence::Open);
  mniCloseProject_ = action("mniCloseProject", 9005);
  mniSave_ = action("mniSave", 9006);
  mniSave_->setShortcut(QKeySequence::Save);
  mniSaveAs_ = action("mniSaveAs", 9007);
  mniSaveAs_->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  mniProperties_ = action("mniProperties", 9008);
  mniExit_ = action("mniExit", 9010);
  mniExit_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

  mnuFile_ = menuBar()->addMenu(text(9002));
  mnuFile_->addActions({mniNew_, mniOpen_, mniCloseProject_});
  mnuFile_->addSeparator();
  mnuFile_->addActions({mniSave_, mniSaveAs_});
  mnuFile_->addSeparator();
  mnuFile_->addAction(mniProperties_);
  QMenu* mniSetLanguage = mnuFile_->addMenu(text(9013));
  mniSetLanguage->setObjectName("mniSetLanguage");
  languages_ = new QActionGroup(this);
  for (const LanguageItem& item : kLanguages) {
    QAction* language = action(item.name, item.caption);
    language->setCheckable(true);
    language->setData(item.code);
    languages_->addAction(language);
    mniSetLanguage->addAction(language);
  }
  recentEnd_ = mnuFile_->addSeparator();
  mnuFile_->addAction(mniExit_);
}

void mdiMain::buildEditMenu() {
  undoGroup_ = new QUndoGroup(this);
  mniUndo_ = undoAction("mniUndo", 9080, true);
  mniRedo_ = undoAction("mniRedo", 9081, false);
  mniCut_ = action("mniCut", 9034);
  mniCopy_ = action("mniCopy", 9035);
  mniPaste_ = action("mniPaste", 9036);
  QMenu* edit = menuBar()->addMenu(text(9033));
  edit->addActions({mniUndo_, mniRedo_});
  edit->addSeparator();
  edit->addActions({mniCut_, mniCopy_, mniPaste_});
}

// The text says what the command takes back ("Undo Mortality Rates"); the
// command itself goes through the project window, so that a text box in focus
// takes back its own typing first.
QAction* mdiMain::undoAction(const char* name, int prefix, bool undo) {
  QAction* item = action(name, prefix);
  item->setEnabled(false);
  if (undo) {
    item->setShortcut(QKeySequence::Undo);
  } else {
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Redo);
    // Ctrl+Y is the redo key of many programs, whatever the desktop's own is.
    if (!keys.contains(QKeySequence(Qt::CTRL | Qt::Key_Y))) keys << QKeySequence(Qt::CTRL | Qt::Key_Y);
    item->setShortcuts(keys);
  }
  item->setIcon(undo ? ThemeIcon("edit-undo", *style(), QStyle::SP_ArrowBack)
                     : ThemeIcon("edit-redo", *style(), QStyle::SP_ArrowForward));
  const QString word = text(prefix);
  const auto naming = [item, word](const QString& edit) { item->setText(edit.isEmpty() ? word : word + ' ' + edit); };
  connect(undoGroup_, undo ? &QUndoGroup::undoTextChanged : &QUndoGroup::redoTextChanged, item, naming);
  connect(undoGroup_, undo ? &QUndoGroup::canUndoChanged : &QUndoGroup::canRedoChanged, item, &QAction::setEnabled);
  connect(item, &QAction::triggered, this, [this, undo] {
    if (frmProject* project = activeProject()) undo ? project->undo() : project->redo();
  });
  return item;
}

void mdiMain::buildProjectMenu() {
  mniAddName_ = action("mniAddName", 9029);
  mniEditName_ = action("mniEditName", 9030);
  mniRemoveName_ = action("mniRemoveName", 9031);
  menuBar()->addMenu(text(9028))->addActions({mniAddName_, mniEditName_, mniRemoveName_});
}

void mdiMain::buildSimulationMenu() {
  mniRunSim_ = action("mniRunSim", 9012);
  mniRunSim_->setShortcut(QKeySequence(Qt::Key_F5));
  menuBar()->addMenu(text(9011))->addAction(mniRunSim_);
}

void mdiMain::buildWindowMenu() {
  mniCascade_ = action("mniCascade", 9019);
  mniTileH_ = action("mniTileH", 9020);
  mniTileV_ = action("mniTileV", 9021);
  mniArrange_ = action("mniArrange", 9022);
  menuBar()->addMenu(text(9018))->addActions({mniCascade_, mniTileH_, mniTileV_, mniArrange_});
}

// The help commands are wired here, beside the help desk they call: the
// contents, "What's This?" mode (Shift+F1) and the manual in the web browser.
// F1 needs no command: the desk answers it wherever the focus is.
void mdiMain::buildHelpMenu() {
  help_ = new HelpDesk(program_, this);
  QAction* mniContents = action("mniContents", 9024);
  QAction* mniContext = action("mniContext", 9025);
  mniContext->setShortcut(QKeySequence::WhatsThis);
  QAction* mniWebHelp = action("mniWebHelp", 9027);
  mniAbout_ = action("mniAbout", 9026);
  QMenu* help = menuBar()->addMenu(text(9023));
  help->addActions({mniContents, mniContext, mniWebHelp});
  help->addSeparator();
  help->addAction(mniAbout_);
  connect(mniContents, &QAction::triggered, help_, &HelpDesk::showContents);
  connect(mniContext, &QAction::triggered, this, [] { QWhatsThis::enterWhatsThisMode(); });
  connect(mniWebHelp, &QAction::triggered, help_, &HelpDesk::openInBrowser);
}

void mdiMain::buildToolbar() {
  toolbar_ = addToolBar(text(9001));
  toolbar_->setObjectName("tbrMain");
  toolbar_->setMovable(false);
  const QStyle& look = *style();
  const auto add = [this](const char* key, int tip, const QIcon& icon) {
    QAction* item = toolbar_->addAction(icon, text(tip));
    item->setObjectName(key);
    item->setToolTip(text(tip));
    return item;
  };
  add("tblNew", 1401, ThemeIcon("document-new", look, QStyle::SP_FileIcon));
  add("tblOpen", 1402, ThemeIcon("document-open", look, QStyle::SP_DialogOpenButton));
  tblSave_ = add("tblSave", 1403, ThemeIcon("document-save", look, QStyle::SP_DialogSaveButton));
  toolbar_->addSeparator();
  // The style has no pictures for the clipboard; without a theme these show their text.
  add("tblCut", 1404, QIcon::fromTheme("edit-cut"));
  add("tblCopy", 1405, QIcon::fromTheme("edit-copy"));
  add("tblPaste", 1406, QIcon::fromTheme("edit-paste"));
  toolbar_->addSeparator();
  // The Edit menu's own commands, so that their tips name the edit they take back.
  toolbar_->addActions({mniUndo_, mniRedo_});
  toolbar_->addSeparator();
  add("tblHelp", 1408, ThemeIcon("help-contents", look, QStyle::SP_DialogHelpButton));
  add("tblQuickHelp", 1409, ThemeIcon("help-faq", look, QStyle::SP_TitleBarContextHelpButton));
  toolbar_->addSeparator();
  tblEquation_ = add("tblEquation", 1411, FunctionIcon());
  toolbar_->addSeparator();
  tblRun_ = add("tblRun", 1412, ThemeIcon("media-playback-start", look, QStyle::SP_MediaPlay));
  toolbar_->addSeparator();
  // A command of its own beside the toolbar's pictures, as a button with its caption.
  cmdST_ = toolbar_->addAction(text(9032));
  cmdST_->setObjectName("cmdST");
  cmdST_->setToolTip(text(9037));
}

// File > Print below Save As, and on the toolbar Print after the clipboard and Notes before Run.
void mdiMain::buildCompanionCommands() {
  companions_ = new ProjectCompanions(program_, *this, *mdiArea_);
  mniPrint_ = action("mniPrint", 9009);
  mniPrint_->setShortcut(QKeySequence::Print);
  mnuFile_->insertAction(mniProperties_, mniPrint_);
  mnuFile_->insertSeparator(mniProperties_);
  const QStyle& look = *style();
  tblPrint_ = new QAction(ThemeIcon("document-print", look, QStyle::SP_FileDialogContentsView), text(1407), this);
  tblPrint_->setObjectName("tblPrint");
  tblNotes_ = new QAction(ThemeIcon("accessories-text-editor", look, QStyle::SP_FileDialogDetailedView), text(1410),
                          this);
  tblNotes_->setObjectName("tblNotes");
  QAction* tblHelp = toolbar_->findChild<QAction*>("tblHelp");
  toolbar_->insertAction(tblHelp, tblPrint_);
  toolbar_->insertSeparator(tblHelp);
  toolbar_->insertAction(tblEquation_, tblNotes_);
  connect(mniPrint_, &QAction::triggered, companions_, &ProjectCompanions::print);
}

void mdiMain::wireCompanions(frmProject* window) {
  connect(window, &frmProject::reportRequested, companions_, [this, window] { companions_->openReport(*window); });
}

void mdiMain::wireSignals() {
  connect(mniNew_, &QAction::triggered, this, [this] { newProjectDialog(); });
  connect(mniOpen_, &QAction::triggered, this, &mdiMain::openDialog);
  connect(mniCloseProject_, &QAction::triggered, mdiArea_, &QMdiArea::closeActiveSubWindow);
  connect(mniSave_, &QAction::triggered, this, [this] {
    if (frmProject* project = activeProject()) project->save();
  });
  connect(mniSaveAs_, &QAction::triggered, this, [this] {
    if (frmProject* project = activeProject()) project->saveAs();
  });
  connect(mniProperties_, &QAction::triggered, this, &mdiMain::showSettings);
  connect(mniExit_, &QAction::triggered, this, &QWidget::close);
  connect(languages_, &QActionGroup::triggered, this,
          [this](QAction* language) { program_.setLanguage(language->data().toInt()); });
  connect(mniCut_, &QAction::triggered, this, [this] { sendKeyToFocus(Qt::Key_X); });
  connect(mniCopy_, &QAction::triggered, this, [this] { sendKeyToFocus(Qt::Key_C); });
  connect(mniPaste_, &QAction::triggered, this, [this] { sendKeyToFocus(Qt::Key_V); });
  connect(mniAddName_, &QAction::triggered, this, [this] {
    if (frmProject* project = activeProject()) project->addUserName();
  });
  connect(mniEditName_, &QAction::triggered, this, [this] {
    if (frmProject* project = activeProject()) project->editUserName();
  });
  connect(mniRemoveName_, &QAction::triggered, this, [this] {
    if (frmProject* project = activeProject()) project->removeUserName();
  });
  connect(mniRunSim_, &QAction::triggered, this, [this] {
    if (frmProject* project = activeProject()) project->runSimulation();
  });
  connect(mniCascade_, &QAction::triggered, mdiArea_, &QMdiArea::cascadeSubWindows);
  connect(mniTileH_, &QAction::triggered, this, [this] { TileHorizontally(*mdiArea_); });
  connect(mniTileV_, &QAction::triggered, this, [this] { TileVertically(*mdiArea_); });
  connect(mniArrange_, &QAction::triggered, this, [this] { ArrangeIcons(*mdiArea_); });
  connect(mniAbout_, &QAction::triggered, this, &mdiMain::showAbout);
  connect(toolbar_, &QToolBar::actionTriggered, this, &mdiMain::toolbarAction);
  connect(mdiArea_, &QMdiArea::subWindowActivated, this, &mdiMain::updateCommands);
}

void mdiMain::toolbarAction(QAction* item) {
  const QString key = item->objectName();
  if (key == "tblNew") mniNew_->trigger();
  else if (key == "tblOpen") mniOpen_->trigger();
  else if (key == "tblSave") mniSave_->trigger();
  else if (key == "tblCut") sendKeyToFocus(Qt::Key_X);
  else if (key == "tblCopy") sendKeyToFocus(Qt::Key_C);
  else if (key == "tblPaste") sendKeyToFocus(Qt::Key_V);
  else if (key == "tblRun") mniRunSim_->trigger();
  else if (key == "tblPrint") mniPrint_->trigger();
  else if (key == "tblNotes") companions_->showNotes();
  else if (key == "tblEquation" && activeProject()) activeProject()->editFunction();
  else if (key == "cmdST" && activeProject()) activeProject()->editSensitivityTests();
  else if (key == "tblHelp") help_->showContents();
  else if (key == "tblQuickHelp") QWhatsThis::enterWhatsThisMode();
}

// The focused control gets the keystroke itself, so that grids and text boxes
// cut, copy and paste in their own way.
void mdiMain::sendKeyToFocus(int key) {
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr) return;
  QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::ControlModifier);
  QApplication::sendEvent(focus, &press);
  QApplication::sendEvent(focus, &release);
}

void mdiMain::rebuildRecentMenu() {
  qDeleteAll(recentActions_);
  recentActions_.clear();
  const auto& entries = program_.recent.Entries();
  for (std::size_t n = 1; n <= entries.size(); ++n) {
    const tamsic::RecentProject& entry = entries[n - 1];
    auto* item = new QAction(QString::fromStdString(tamsic::RecentProjects::MenuCaption(n, entry)), this);
    item->setObjectName(QStringLiteral("mniRecent%1").arg(n));
    item->setToolTip(QString::fromStdString(entry.title));
    const QString path = QString::fromStdString(entry.name);
    connect(item, &QAction::triggered, this, [this, path] { openProject(path); });
    mnuFile_->insertAction(recentEnd_, item);
    recentActions_ << item;
  }
  if (!recentActions_.isEmpty()) recentActions_ << mnuFile_->insertSeparator(recentActions_.front());
}

void mdiMain::checkCurrentLanguage() {
  for (QAction* language : languages_->actions())
    language->setChecked(language->data().toInt() == program_.settings.language);
}

void mdiMain::updateCommands() {
  frmProject* active = activeProject();
  for (QAction* item : {mniCloseProject_, mniSave_, mniSaveAs_, tblSave_, mniAddName_,
                        mniEditName_, mniRemoveName_, mniRunSim_, tblRun_, tblEquation_, cmdST_})
    item->setEnabled(active != nullptr);
  undoGroup_->setActiveStack(active ? active->undoStack() : nullptr);
  mniPrint_->setEnabled(companions_->canPrint());
  tblPrint_->setEnabled(companions_->canPrint());
}

frmProject* mdiMain::activeProject() const {
  QMdiSubWindow* window = mdiArea_->currentSubWindow();
  return window ? qobject_cast<frmProject*>(window->widget()) : nullptr;
}

// Every way a project file can fail to be read ends in one message here.
std::optional<tamsic::OpenedProject> mdiMain::readProject(const std::string& file, bool makeBackups) {
  auto& messages = program_.messages;
  std::optional<tamsic::OpenedProject> opened;
  try {
    opened = tamsic::OpenProjectFile(file, messages, makeBackups, program_.decimalSeparator);
  } catch (const tamsic::FileError& error) {
    messages.show(error.what(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
    return std::nullopt;
  } catch (const tamsic::TamsicError& error) {
    // The reader has already named the missing section; anything else is told here.
    if (error.number() != tamsic::kErrMissingSection)
      messages.show(messages.text(9128) + "\n\n" + error.what(), tamsic::msg::kError,
                    tamsic::MsgIcon::Critical);
    return std::nullopt;
  } catch (const std::exception& error) {
    messages.show(messages.text(9128) + "\n\n" + error.what(), tamsic::msg::kError,
                  tamsic::MsgIcon::Critical);
    return std::nullopt;
  }
  if (!opened) {
    // A missing file was reported by the signature test; this one exists but is no project.
    if (tamsic::FileExists(file))
      messages.show(messages.text(9128) + "\n\n" + file, tamsic::msg::kWarning, tamsic::MsgIcon::Critical);
    return std::nullopt;
  }
  return opened;
}

frmProject* mdiMain::openProject(const QString& path) {
  // A path from the command line may be relative; saving and the recent list need the whole one.
  const std::string file = QFileInfo(path).absoluteFilePath().toStdString();
  // A second window on the same file would let one save over the other's work.
  for (QMdiSubWindow* window : mdiArea_->subWindowList()) {
    auto* project = qobject_cast<frmProject*>(window->widget());
    if (project != nullptr && project->state().FullPath() == file) {
      mdiArea_->setActiveSubWindow(window);
      return project;
    }
  }
  auto opened = readProject(file, true);
  if (!opened) return nullptr;
  tamsic::ProjectState state;
  state.document = std::move(opened->document);
  state.versionText = opened->versionText;
  state.SetFullPath(file);
  program_.recent.Add(file, tamsic::Cp1252ToUtf8(state.document.title));
  rebuildRecentMenu();
  return addProjectWindow(new frmProject(program_, std::move(state)));
}

frmProject* mdiMain::newProject(const NewProjectRequest& request) {
  const std::string name = request.name.trimmed().toStdString();
  const std::string user = request.user.trimmed().toStdString();
  tamsic::ProjectState state;
  if (request.fromTemplate.isEmpty()) {
    state.document = tamsic::NewProject(name, user);
  } else {
    // The template is only read: it keeps no backups of its own.
    auto opened = readProject(request.fromTemplate.toStdString(), false);
    if (!opened) return nullptr;
    state.document = tamsic::NewProject(std::move(opened->document), name, user);
  }
  QDir::setCurrent(request.folder);
  state.proposedFolder = request.folder.toStdString();
  state.MarkChanged();
  return addProjectWindow(new frmProject(program_, std::move(state)));
}

frmProject* mdiMain::addProjectWindow(frmProject* window) {
  undoGroup_->addStack(window->undoStack());
  QMdiSubWindow* sub = mdiArea_->addSubWindow(window);
  sub->setAttribute(Qt::WA_DeleteOnClose);
  connect(window, &frmProject::saved, this, &mdiMain::projectSaved);
  wireCompanions(window);
  // The first window takes the whole area; each further one a step down and
  // right of the last, wide enough for its contents (long translated
  // captions) as far as the frame allows.
  const QSize space = mdiArea_->viewport()->size();
  const bool first = mdiArea_->subWindowList().size() == 1;
  const QSize wanted = first ? space : (space * 85 / 100).expandedTo(sub->minimumSizeHint()).boundedTo(space);
  const int step = std::min(24 * static_cast<int>((mdiArea_->subWindowList().size() - 1) % 5),
                            std::min(space.width() - wanted.width(), space.height() - wanted.height()));
  sub->setGeometry(step, step, wanted.width(), wanted.height());
  sub->show();
  mdiArea_->setActiveSubWindow(sub);
  updateCommands();
  return window;
}

void mdiMain::projectSaved(const QString& path, const QString& title) {
  program_.recent.Add(path.toStdString(), title.toStdString());
  rebuildRecentMenu();
}

void mdiMain::newProjectDialog(const QString& fromTemplate) {
  frmNewProject dialog(program_, this, fromTemplate);
  if (dialog.exec() == QDialog::Accepted) newProject(dialog.request());
}

void mdiMain::openDialog() {
  const QString path = QFileDialog::getOpenFileName(this, text(9004), QDir::currentPath(),
                                                    ProjectFilter(program_.strings));
  if (!path.isEmpty()) openProject(path);
}

void mdiMain::showWelcomeIfWanted() {
  if (program_.settings.showWelcome != 0) showWelcome();
}

void mdiMain::showWelcome() {
  frmWelcome dialog(program_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (dialog.blankProjectChosen() || !dialog.chosenTemplate().isEmpty())
    newProjectDialog(dialog.chosenTemplate());
  else
    openProject(dialog.chosenPath());
}

void mdiMain::showSettings() {
  frmSettings dialog(program_, this);
  if (dialog.exec() == QDialog::Accepted) checkCurrentLanguage();
}

void mdiMain::showAbout() { frmAbout(program_, this).exec(); }

void mdiMain::closeEvent(QCloseEvent* event) {
  // Each changed project asks whether to save it; one answer of Cancel keeps
  // the program open. Unchanged projects close without a question.
  for (QMdiSubWindow* window : mdiArea_->subWindowList()) {
    auto* project = qobject_cast<frmProject*>(window->widget());
    if (project) project->setProgramClosing(true);
    if (!window->close()) {
      if (project) project->setProgramClosing(false);
      event->ignore();
      return;
    }
  }
  program_.closeEngine();
  event->accept();
}

QString mdiMain::text(int number) const {
  return QString::fromStdString(program_.strings.text(number));
}
