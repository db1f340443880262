#include "pages/ui/frmProject.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QUndoStack>
#include <QVBoxLayout>

#include "model/Errors.h"
#include "model/TextSplit.h"
#include "app/ui/Program.h"
#include "engine/OutputFiles.h"
#include "engine/SpecialOptionsFlags.h"
#include "engine/WorkFile.h"
#include "engine/basSimulation.h"
#include "engine/ui/TextOutputPage.h"
#include "engine/ui/frmRunProgress.h"
#include "engine/ui/frmSimRun.h"
#include "files/ProjectFile.h"
#include "files/TextCodec.h"
#include "functions/ui/frmEquation.h"
#include "functions/ui/frmEquationPreview.h"
#include "notes/NoteCoding.h"
#include "engine/EmptyStart.h"
#include "files/UnfinishedRun.h"
#include "pages/MatesEquivalents.h"
#include "pages/StableAgeDistribution.h"
#include "pages/ui/FlowLayout.h"
#include "pages/ui/GridView.h"
#include "pages/ui/InputPage.h"
#include "pages/ui/InputPages.h"
#include "pages/ui/ProjectSettingsPage.h"
#include "pages/ui/ScenarioBar.h"
#include "st/STGeneration.h"
#include "st/STAnswers.h"
#include "st/ui/frmSTSetup.h"
#include "results/ui/ResultsPage.h"

namespace {

constexpr int kUserNamePrompt = 1713;
constexpr int kChooseFunctionInput = 9199;

QString FromFile(const std::string& text) {
  return QString::fromStdString(tamsic::Cp1252ToUtf8(text));
}

std::string ToFile(const QString& text) { return tamsic::Utf8ToCp1252(text.toStdString()); }

// The hourglass over the whole program, for an engine that cannot report progress.
class WaitCursor : public tamsic::IBusyCursor {
 public:
  void setBusy(bool busy) override {
    if (busy)
      QApplication::setOverrideCursor(Qt::WaitCursor);
    else
      QApplication::restoreOverrideCursor();
  }
};

constexpr int kRunCancelled = 8221;

}  // namespace

frmProject::frmProject(Program& program, tamsic::ProjectState state, QWidget* parent)
    : QWidget(parent),
      program_(program),
      state_(std::move(state)),
      context_{program.strings, program.messages, engine_},
      undo_(new QUndoStack(this)) {
  setObjectName("frmProject");
  context_.showEquationDialogOnEquals = [this] { return program_.settings.showEquationDialogOnEquals != 0; };
  context_.decimalSeparator = program.decimalSeparator;
  context_.openEquationEditor = [this](const QString& cellText) {
    return frmEquation::Edit(program_, engine_, cellText, this);
  };
  context_.openFunctionPreview = [this](const QString& function) {
    frmEquationPreview preview(program_.messages, engine_, function, this);
    preview.exec();
  };
  context_.stableAgeDistribution = [this](tamsic::clsScenario& record, std::size_t number) {
    return askAboutRecord(record, number, [&](const std::string& work) {
      return tamsic::ApplyStableAgeDistribution(record, number, work, engine_);
    });
  };
  context_.matesEquivalents = [this](const tamsic::clsScenario& before, tamsic::clsScenario& after,
                                     std::size_t number) {
    return askAboutRecord(after, number, [&](const std::string& work) {
      return tamsic::ApplyMatesEquivalents(before, after, number, work, engine_);
    });
  };
  inputPages_ = new InputPages(context_, state_.document.scenarios, *undo_, this);
  stbProject_ = new QStatusBar(this);
  stbProject_->setObjectName("stbProject");
  stbProject_->setSizeGripEnabled(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(buildHeader());
  layout->addWidget(buildTabs(), 1);
  layout->addWidget(stbProject_);
  wireSignals();
  refreshLinks();
  refreshCaption();
}

frmProject::~frmProject() {
  // The undo stack empties itself as it goes, after this window's members are
  // gone; telling the window of it would reach them.
  disconnect(undo_, nullptr, this, nullptr);
}

QWidget* frmProject::buildHeader() {
  auto* header = new QWidget(this);
  txtProjectTitle_ = new QLineEdit(FromFile(state_.document.title), header);
  txtProjectTitle_->setObjectName("txtProjectTitle");
  txtProjectTitle_->setToolTip(text(1425));
  // The selector, previous and next, and adding, deleting and ordering scenarios.
  scenarioBar_ = new ScenarioBar(context_, state_.document.scenarios, *inputPages_, *undo_, header);
  auto* title = new QWidget(header);
  auto* titleRow = new QHBoxLayout(title);
  titleRow->setContentsMargins(0, 0, 0, 0);
  titleRow->addWidget(new QLabel(text(1414), title));
  txtProjectTitle_->setMinimumWidth(220);
  titleRow->addWidget(txtProjectTitle_);
  // The scenario bar goes below the title when the window is too narrow for both.
  auto* flow = new FlowLayout(header, 12);
  flow->addWidget(title);
  flow->addWidget(scenarioBar_);
  flow->addWidget(buildReportButton(header));
  return header;
}

QWidget* frmProject::buildReportButton(QWidget* parent) {
  auto* button = new QPushButton(text(7007), parent);
  button->setObjectName("cmdReport");
  button->setToolTip(text(7008));
  connect(button, &QPushButton::clicked, this, &frmProject::reportRequested);
  return button;
}

QWidget* frmProject::buildPageArea() {
  auto* area = new QWidget(this);
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(0, 0, 0, 0);
  hypInput_ = new QListWidget(area);
  hypInput_->setObjectName("hypInput");
  for (int page = 0; page < kPageCount; ++page) {
    auto* item = new QListWidgetItem(inputPages_->pageTitle(page), hypInput_);
    item->setToolTip(inputPages_->linkHint(page));
  }
  hypInput_->setFixedWidth(hypInput_->sizeHintForColumn(0) + 2 * hypInput_->frameWidth() + 8);
  hypInput_->setCurrentRow(0);
  row->addWidget(hypInput_);
  row->addWidget(inputPages_, 1);
  return area;
}

QWidget* frmProject::buildTabs() {
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("tabProject");
  tabs_->addTab(buildPageArea(), text(1413));
  settingsPage_ = new ProjectSettingsPage(program_, state_, tabs_);
  tabs_->addTab(settingsPage_, text(1700));
  textOutput_ = new TextOutputPage(
      program_, state_, [this](std::size_t number) { return checkIn(number); }, tabs_);
  tabs_->addTab(textOutput_, text(1800));
  results_ = new ResultsPage(
      program_, state_, [this](std::size_t number) { return deterministicValues(number); }, tabs_);
  tabs_->addTab(results_, text(1900));
  return tabs_;
}

void frmProject::wireSignals() {
  connect(txtProjectTitle_, &QLineEdit::textEdited, this, &frmProject::titleEdited);
  connect(hypInput_, &QListWidget::currentRowChanged, inputPages_, &InputPages::showPage);
  connect(inputPages_, &InputPages::availabilityChanged, this, &frmProject::refreshLinks);
  connect(inputPages_, &InputPages::hintChanged, stbProject_, [this](const QString& hint) {
    stbProject_->showMessage(hint);
  });
  // Undo back to the state of the last save leaves nothing to save, unless something no undo takes back changed.
  connect(undo_, &QUndoStack::cleanChanged, this, [this](bool clean) {
    state_.SetEditsAsSaved(clean);
    refreshCaption();
  });
  connect(scenarioBar_, &ScenarioBar::scenarioListChanged, this, [this] {
    state_.MarkChanged();
    refreshCaption();
    resultsChanged();
  });
  connect(inputPages_, &InputPages::scenarioNamesChanged, this, &frmProject::resultsChanged);
  connect(inputPages_, &InputPages::scenarioShown, textOutput_, &TextOutputPage::showScenario);
  connect(settingsPage_, &ProjectSettingsPage::changed, this, [this] {
    state_.MarkChanged();
    refreshCaption();
  });
  connect(settingsPage_, &ProjectSettingsPage::addUser, this, &frmProject::addUserName);
  connect(settingsPage_, &ProjectSettingsPage::editUser, this, &frmProject::editUserName);
  connect(settingsPage_, &ProjectSettingsPage::removeUser, this, &frmProject::removeUserName);
  // Undo may show another page than the one chosen.
  connect(inputPages_, &InputPages::pageShown, hypInput_, [this](int page) {
    const QSignalBlocker quiet(hypInput_);
    hypInput_->setCurrentRow(page);
  });
  connect(inputPages_, &InputPages::pageShown, this, &frmProject::inputShown);
  connect(inputPages_, &InputPages::scenarioShown, this, &frmProject::inputShown);
  connect(scenarioBar_, &ScenarioBar::scenarioListChanged, this, &frmProject::inputShown);
}

void frmProject::undo() {
  tabs_->setCurrentIndex(0);
  inputPages_->undo();
}

void frmProject::redo() {
  tabs_->setCurrentIndex(0);
  inputPages_->redo();
}

void frmProject::editFunction() {
  QWidget* focus = QApplication::focusWidget();
  for (QWidget* widget = focus; widget != nullptr && widget != this; widget = widget->parentWidget()) {
    if (auto* grid = qobject_cast<GridView*>(widget); grid && grid->editFunction()) return;
    if (auto* page = qobject_cast<InputPage*>(widget))
      if (auto* box = qobject_cast<QLineEdit*>(focus); box && page->editFunction(box)) return;
  }
  program_.messages.show(program_.messages.text(kChooseFunctionInput), tamsic::msg::kWarning,
                         tamsic::MsgIcon::Information);
}

std::size_t frmProject::currentScenario() const { return inputPages_->currentScenario(); }

void frmProject::showScenario(std::size_t number) {
  if (number < 1 || number > state_.document.scenarios.Count()) return;
  inputPages_->showScenario(number);
}

// Dispersal needs two populations and the catastrophes page a type of
// catastrophe; a page that becomes unavailable while shown gives way to the first.
void frmProject::refreshLinks() {
  for (int page = 0; page < kPageCount; ++page) {
    QListWidgetItem* link = hypInput_->item(page);
    const bool available = inputPages_->pageAvailable(page);
    link->setFlags(available ? link->flags() | Qt::ItemIsEnabled : link->flags() & ~Qt::ItemIsEnabled);
  }
  if (!inputPages_->pageAvailable(hypInput_->currentRow())) hypInput_->setCurrentRow(0);
}

int frmProject::currentPage() const { return inputPages_->currentPage(); }

QString frmProject::pageTitle(int page) const { return inputPages_->pageTitle(page); }

// Notes are stored as they are typed: a save, a run, another scenario or a
// copy of this one always finds them in the record. No undo of the pages
// takes them back, so they keep the project changed until it is saved.
void frmProject::setNoteCell(std::size_t scenario, int page, std::string cell) {
  if (!tamsic::SetNoteCell(state_.document.scenarios.Item(scenario), static_cast<std::size_t>(page), std::move(cell)))
    return;
  state_.MarkChanged();
  refreshCaption();
}

void frmProject::setReportLocation(std::string path) {
  if (state_.document.reportLocation == path) return;
  state_.document.reportLocation = std::move(path);
  state_.MarkChanged();
  refreshCaption();
}

QWidget* frmProject::activeView() const {
  switch (tabs_->currentIndex()) {
    case 0: return inputPages_->page(inputPages_->currentPage());
    case 1: return settingsPage_;
    case 2: return textOutput_;
    default: return results_;
  }
}

void frmProject::refreshCaption() {
  setWindowTitle(QString::fromStdString(tamsic::ProjectCaption(state_, program_.strings)));
}

void frmProject::titleEdited(const QString& title) {
  state_.document.title = ToFile(title);
  state_.MarkChanged();
  refreshCaption();
}

bool frmProject::save() {
  inputPages_->commitPending();
  return afterSave(tamsic::FunctionSave(state_, program_.messages, program_.saveDialog));
}

bool frmProject::saveAs() {
  inputPages_->commitPending();
  return afterSave(tamsic::FunctionSaveAs(state_, program_.messages, program_.saveDialog));
}

bool frmProject::afterSave(tamsic::SaveResult result) {
  // Save As may have taken the file's name as the title.
  txtProjectTitle_->setText(FromFile(state_.document.title));
  refreshCaption();
  if (result != tamsic::SaveResult::Saved) return false;
  undo_->setClean();
  settingsPage_->refresh();
  emit saved(QString::fromStdString(state_.FullPath()), FromFile(state_.document.title));
  return true;
}

void frmProject::closeEvent(QCloseEvent* event) {
  const auto closing = programClosing_ ? tamsic::Closing::Program : tamsic::Closing::Project;
  if (tamsic::MayCloseProject(state_, program_.messages, program_.saveDialog, closing))
    event->accept();
  else
    event->ignore();
  refreshCaption();
}

void frmProject::addUserName() {
  bool ok = false;
  const QString name =
      QInputDialog::getText(this, windowTitle(), text(kUserNamePrompt), QLineEdit::Normal, {}, &ok)
          .trimmed();
  if (!ok || name.isEmpty()) return;
  state_.document.users.push_back(ToFile(name));
  state_.MarkChanged();
  settingsPage_->refresh();
}

void frmProject::editUserName() {
  const int index = chooseUserName();
  if (index < 0) return;
  std::string& user = state_.document.users[static_cast<std::size_t>(index)];
  bool ok = false;
  const QString name = QInputDialog::getText(this, windowTitle(), text(kUserNamePrompt),
                                             QLineEdit::Normal, FromFile(user), &ok)
                           .trimmed();
  if (!ok || name.isEmpty()) return;
  user = ToFile(name);
  state_.MarkChanged();
  settingsPage_->refresh();
}

void frmProject::removeUserName() {
  const int index = chooseUserName();
  if (index < 0) return;
  auto& users = state_.document.users;
  users.erase(users.begin() + index);
  state_.MarkChanged();
  settingsPage_->refresh();
}

int frmProject::chooseUserName() {
  const auto& users = state_.document.users;
  if (users.empty()) {
    program_.messages.show(program_.messages.text(9119), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Information);
    return -1;
  }
  QStringList names;
  for (const std::string& user : users) names << FromFile(user);
  bool ok = false;
  const QString chosen =
      QInputDialog::getItem(this, windowTitle(), text(1703), names, 0, false, &ok);
  return ok ? static_cast<int>(names.indexOf(chosen)) : -1;
}

std::optional<std::filesystem::path> frmProject::saveWorkFile(const tamsic::ProjectDocument& document) {
  try {
    const auto work = tamsic::CreateWorkFile(QCoreApplication::applicationDirPath().toStdString());
    tamsic::SaveProject(document, work.string(), program_.messages);
    return work;
  } catch (const tamsic::TamsicError& error) {
    program_.messages.show(error.what(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
    return std::nullopt;
  }
}

// The engine reads the scenario from a saved copy of the project that holds
// the record as it is about to be stored.
std::optional<std::string> frmProject::askAboutRecord(tamsic::clsScenario& record, std::size_t number,
                                                      const RecordQuestion& question) {
  try {
    tamsic::ProjectDocument copy = state_.document;
    copy.scenarios.Item(number) = record;
    const auto work = tamsic::CreateWorkFile(QCoreApplication::applicationDirPath().toStdString());
    tamsic::SaveProject(copy, work.string(), program_.messages);
    auto error = question(work.string());
    std::error_code ignored;
    std::filesystem::remove(work, ignored);
    return error;
  } catch (const tamsic::TamsicError& error) {
    return error.what();
  }
}

// The engine writes the reports into the current directory.
// The engine reads the scenario from a saved copy of the project and writes
// into the current directory. A copy that a check-in refused is kept for a
// look; a data reply has no such use.
std::optional<std::string> frmProject::askAboutSavedCopy(std::size_t number, const EngineQuestion& question,
                                                         bool keepRefusedCopy) {
  inputPages_->commitPending();
  const auto work = saveWorkFile(state_.document);
  if (!work) return std::nullopt;
  QDir::setCurrent(QString::fromStdString(tamsic::ResultsFolder(state_)));
  std::optional<std::string> reply;
  try {
    reply = question(work->string() + "{" + std::to_string(number) + "}");
  } catch (const std::exception& error) {
    program_.messages.show(program_.messages.text(tamsic::msg::kUnableToRunSimulation) + "\n\n" + error.what(),
                           tamsic::msg::kError, tamsic::MsgIcon::Critical);
  }
  if (!keepRefusedCopy || (reply && reply->starts_with("Message"))) {
    std::error_code ignored;
    std::filesystem::remove(*work, ignored);
  }
  return reply;
}

std::optional<std::string> frmProject::checkIn(std::size_t number) {
  return askAboutSavedCopy(number, [this](const std::string& text) { return engine_.tcheckin(text, 1); }, true);
}

// detGraphValues loads the scenario named by a check-in text before it projects.
std::optional<std::string> frmProject::deterministicValues(std::size_t number) {
  return askAboutSavedCopy(number, [this](const std::string& text) { return engine_.detGraphValues(text, 0); },
                           false);
}

// The run dialog chooses; the project goes to the engine as a saved copy, and
// the engine writes its files into the results folder, made the current
// directory. A stepwise run asks before each next scenario.
void frmProject::runSimulation(const std::vector<std::size_t>& preselected) {
  inputPages_->commitPending();
  const auto& scenarios = state_.document.scenarios;
  QStringList names;
  for (std::size_t n = 1; n <= scenarios.Count(); ++n)
    names << FromFile(scenarios.Item(n).Text(tamsic::F("txtSceneName")));
  frmSimRun dialog(program_, names, this);
  dialog.check(preselected);
  if (dialog.exec() != QDialog::Accepted) return;
  freshAnalysis_ = true;
  const std::string mode = dialog.runMode().toStdString();
  std::vector<std::string> checked;
  for (std::size_t entry : dialog.runList().checked)
    checked.push_back(std::string(tamsic::Trim(scenarios.Item(entry + 1).Text(tamsic::F("txtSceneName")))));
  if (!startsAcceptable(checked)) return;
  const std::string folder = tamsic::ResultsFolder(state_);
  // A new run's summary keeps no line of an earlier run of a scenario run again (the engine adds
  // the new line when the scenario is done); a run taken up again keeps the lines of those finished.
  if (mode.empty()) {
    try {
      for (const std::string& name : checked) tamsic::PruneSummary(folder, state_.document.title, name);
    } catch (const tamsic::FileError& error) {
      program_.messages.show(error.what(), tamsic::msg::kError, tamsic::MsgIcon::Critical);
      return;
    }
  }
  for (;;) {
    const std::vector<std::string> now = tamsic::ScenariosToRun(folder, state_.document.title, checked, mode);
    const std::optional<std::string> reply = runOnce(dialog.runList().names, mode, now);
    tellRunOutcome(reply);
    resultsChanged();
    if (mode != "META" || !reply || !reply->starts_with("Message") || !stepsLeft()) return;
    const std::string next = program_.strings.text(8214) + tamsic::Cp1252ToUtf8(now.empty() ? "" : now.front()) +
                             "\n\n" + program_.strings.text(8222);
    if (program_.messages.show(next, tamsic::msg::kConfirmation, tamsic::MsgIcon::Question,
                               tamsic::MsgButtons::YesNo) != tamsic::MsgAnswer::Yes)
      return;
  }
}

// Populations that start empty are extinct at once; the user says whether that is meant.
bool frmProject::startsAcceptable(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) {
    const std::size_t number = state_.document.scenarios.Find(name);
    if (number == 0) continue;
    const std::vector<std::string> empty = tamsic::PopulationsStartingEmpty(state_.document.scenarios.Item(number));
    if (empty.empty()) continue;
    list += "\n" + name + ": " + empty.front();
    for (std::size_t p = 1; p < empty.size(); ++p) list += ", " + empty[p];
  }
  if (list.empty()) return true;
  return program_.messages.show(program_.strings.text(8223) + "\n" + tamsic::Cp1252ToUtf8(list),
                                tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation,
                                tamsic::MsgButtons::YesNo) == tamsic::MsgAnswer::Yes;
}

bool frmProject::stepsLeft() const {
  try {
    const auto kept = tamsic::ReadUnfinishedRun(tamsic::ResultsFolder(state_), state_.document.title);
    return kept && kept->next();
  } catch (const tamsic::FileError&) {
    return false;
  }
}

// One call of the engine, on a thread of its own under a progress dialog
// when the engine can report progress, else under the hourglass.
std::optional<std::string> frmProject::runOnce(const std::string& list, const std::string& mode,
                                               const std::vector<std::string>& scenarios) {
  const auto work = saveWorkFile(state_.document);
  if (!work) return std::nullopt;
  QDir::setCurrent(QString::fromStdString(tamsic::ResultsFolder(state_)));
  const tamsic::basSimulation::RunRequest request{*work, list, tamsic::Flags(state_.document.specialOptions), mode};
  bool watchable = false;
  try {
    watchable = engine_.progress().has_value();
  } catch (const std::exception&) {
    // Without the library the call below fails and says why.
  }
  if (!watchable) {
    WaitCursor cursor;
    return tamsic::basSimulation::Run(engine_, cursor, program_.messages, request);
  }
  std::vector<frmRunProgress::Scenario> chosen;
  const auto& all = state_.document.scenarios;
  for (const std::string& name : scenarios) {
    const std::size_t number = all.Find(name);
    if (number == 0) continue;
    chosen.push_back({FromFile(name).trimmed(), std::atol(all.Item(number).Text(tamsic::F("txtNumIter")).c_str())});
  }
  frmRunProgress progress(program_, engine_, request, std::move(chosen), this);
  return tamsic::basSimulation::Conclude(program_.messages, request, progress.run());
}

// A reply other than "Message" is the engine's word on what went wrong.
void frmProject::tellRunOutcome(const std::optional<std::string>& reply) {
  if (!reply || reply->starts_with("Message")) return;
  auto& messages = program_.messages;
  if (reply->starts_with("Error: the run was cancelled"))
    messages.show(messages.text(kRunCancelled) + "\n\n" + tamsic::Cp1252ToUtf8(*reply), tamsic::msg::kWarning,
                  tamsic::MsgIcon::Information);
  else
    messages.show(messages.text(tamsic::msg::kUnableToRunSimulation) + "\n\n" + tamsic::Cp1252ToUtf8(*reply),
                  tamsic::msg::kError, tamsic::MsgIcon::Critical);
}

void frmProject::resultsChanged() {
  textOutput_->resultsChanged();
  results_->resultsChanged();
}

QString frmProject::text(int number) const {
  return QString::fromStdString(program_.strings.text(number));
}

void frmProject::editSensitivityTests() {
  inputPages_->commitPending();
  const frmSTSetup::Project project{
      [this](const tamsic::STScheme& scheme) { return takeOverSTScheme(scheme); },
      [this] {
        const auto& scenarios = state_.document.scenarios;
        std::vector<std::size_t> generated;
        for (std::size_t n = scenarios.Count() - tamsic::CountTrailingSTScenarios(scenarios) + 1;
             n <= scenarios.Count(); ++n)
          generated.push_back(n);
        runSimulation(generated);
      }};
  frmSTSetup window(program_, engine_, state_, project, this);
  window.exec();
}

bool frmProject::takeOverSTScheme(const tamsic::STScheme& scheme) {
  const auto problems = tamsic::CheckSTScheme(state_.document.scenarios, scheme, engine_);
  if (!problems.empty()) {
    std::string shown = program_.strings.text(8807);
    for (const tamsic::STProblem& problem : problems)
      shown += "\n" + tamsic::Cp1252ToUtf8(scheme.Items[static_cast<std::size_t>(problem.item)].Label) + ": " +
               tamsic::LocalizedSTAnswer(problem.text, program_.strings);
    program_.messages.show(shown, tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return false;
  }
  const tamsic::ScenarioCollection before = state_.document.scenarios;
  tamsic::GenerateSTScenarios(state_.document.scenarios, scheme);
  const bool schemeChanged = !(state_.document.stScheme == scheme);
  state_.document.stScheme = scheme;
  if (!schemeChanged && before == state_.document.scenarios) return true;
  // The generated scenarios are shown anew; edits before them cannot be undone across new scenario numbers.
  undo_->clear();
  inputPages_->reload();
  scenarioBar_->UpdateScenarioSelector();
  scenarioBar_->EnableDisableNav();
  state_.MarkChanged();
  refreshCaption();
  resultsChanged();
  emit inputShown();
  return true;
}
