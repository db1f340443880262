#pragma once
// The project window: one project, its title, the scenario on show and the
// column of input-page links beside the page area. It owns the project and
// its file state; saving and the question before closing run through the
// core's save flow.
#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>

#include "engine/Engine.h"
#include "files/ProjectSaveFlow.h"
#include "pages/ui/PageContext.h"

struct Program;
class InputPages;
class QLineEdit;
class QListWidget;
class QStatusBar;
class QTabWidget;
class QUndoStack;
class ProjectSettingsPage;
class ResultsPage;
class ScenarioBar;
class TextOutputPage;

class frmProject : public QWidget {
  Q_OBJECT
 public:
  static constexpr int kPageCount = 14;

  frmProject(Program& program, tamsic::ProjectState state, QWidget* parent = nullptr);
  ~frmProject() override;

  const tamsic::ProjectState& state() const { return state_; }

  // Both answer whether the project was written.
  bool save();
  bool saveAs();

  void addUserName();
  void editUserName();
  void removeUserName();

  // The edits of the input pages, for the main frame's undo and redo commands.
  QUndoStack* undoStack() const { return undo_; }
  // Undo and redo show the input pages, where the edits are; a text box in
  // focus takes back its own typing first.
  void undo();
  void redo();

  // The function editor on the cell or box in focus, when it may hold a function.
  void editFunction();

  // The scenario on show, counted from 1.
  std::size_t currentScenario() const;
  void showScenario(std::size_t number);

  // The run command: the run dialog, then the engine on the chosen scenarios;
  // `preselected` are checked in the dialog (scenario numbers from 1).
  void runSimulation(const std::vector<std::size_t>& preselected = {});

  // The sensitivity-testing window on this project's scheme.
  void editSensitivityTests();
  // Takes a scheme over and replaces the "ST." scenarios at the end by the
  // ones it makes; false when the scheme cannot make them (the user was told why).
  bool takeOverSTScheme(const tamsic::STScheme& scheme);
  // Set while the program ends, which a project closing asks about in its own words.
  void setProgramClosing(bool closing) { programClosing_ = closing; }

  // Set when a run is confirmed, so that result views built from earlier files are rebuilt.
  bool freshAnalysis() const { return freshAnalysis_; }

  // For the notes, the report and printing: the input page on show, the
  // notes' cells, where the report is kept, and the view on show (the input
  // page, the project settings, the text output or the results tab).
  int currentPage() const;
  QString pageTitle(int page) const;
  void setNoteCell(std::size_t scenario, int page, std::string cell);
  void setReportLocation(std::string path);
  QWidget* activeView() const;
  ResultsPage* results() const { return results_; }

 signals:
  // The project now lives in this file under this title.
  void saved(const QString& path, const QString& title);
  // Another scenario or input page is on show, or the scenario list changed.
  void inputShown();
  void reportRequested();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* buildHeader();
  QWidget* buildReportButton(QWidget* parent);
  QWidget* buildPageArea();
  QWidget* buildTabs();
  void wireSignals();
  void refreshLinks();
  void refreshCaption();
  void titleEdited(const QString& text);
  bool afterSave(tamsic::SaveResult result);
  // The user name chosen from the project's users; -1 when there are none or the user cancels.
  int chooseUserName();
  QString text(int number) const;
  std::optional<std::string> runOnce(const std::string& list, const std::string& mode,
                                     const std::vector<std::string>& scenarios);
  bool stepsLeft() const;
  bool startsAcceptable(const std::vector<std::string>& names);
  using RecordQuestion = std::function<std::optional<std::string>(const std::string& workFile)>;
  std::optional<std::string> askAboutRecord(tamsic::clsScenario& record, std::size_t number,
                                            const RecordQuestion& question);
  // The project as it stands saved to a fresh work file for the engine; nothing when that failed (the user was told).
  std::optional<std::filesystem::path> saveWorkFile(const tamsic::ProjectDocument& document);
  using EngineQuestion = std::function<std::string(const std::string& checkInText)>;
  std::optional<std::string> askAboutSavedCopy(std::size_t number, const EngineQuestion& question,
                                               bool keepRefusedCopy);
  // tcheckin with flag 1: the engine writes the scenario's input and deterministic reports.
  std::optional<std::string> checkIn(std::size_t number);
  // The engine's deterministic projection of N for the scenario, from a saved copy.
  std::optional<std::string> deterministicValues(std::size_t number);
  void tellRunOutcome(const std::optional<std::string>& reply);
  void resultsChanged();

  Program& program_;
  tamsic::ProjectState state_;
  tamsic::LibraryEngine engine_;
  PageContext context_;
  QUndoStack* undo_ = nullptr;
  QLineEdit* txtProjectTitle_ = nullptr;
  ScenarioBar* scenarioBar_ = nullptr;
  QListWidget* hypInput_ = nullptr;
  InputPages* inputPages_ = nullptr;
  QStatusBar* stbProject_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  ProjectSettingsPage* settingsPage_ = nullptr;
  TextOutputPage* textOutput_ = nullptr;
  ResultsPage* results_ = nullptr;
  bool programClosing_ = false;
  bool freshAnalysis_ = false;
};
