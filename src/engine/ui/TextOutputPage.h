#pragma once
// The "Text Output" tab of the project window: the input report, the
// deterministic report and the output report of a scenario as text, and the
// project summary or the scenario's run table as a grid. Each view reads its
// file when it is shown; the input and deterministic reports are made by the
// engine when they are missing.
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "engine/OutputFiles.h"
#include "files/ProjectState.h"
#include "results/TableExport.h"

struct Program;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QTableWidget;
class QTextDocument;

class TextOutputPage : public QWidget {
  Q_OBJECT
 public:
  // checkIn(scenario) has the engine write the scenario's input and
  // deterministic reports into the results folder and answers its reply, or
  // nothing when the call failed (the user was told).
  TextOutputPage(Program& program, const tamsic::ProjectState& state,
                 std::function<std::optional<std::string>(std::size_t)> checkIn, QWidget* parent = nullptr);

  // Result files were replaced, or scenarios added, renamed or removed.
  void resultsChanged();
  // The scenario whose reports are offered, counted from 1.
  void showScenario(std::size_t number);

  // The report on show, for printing.
  const QTextDocument* reportDocument() const;

  // The grid of the other output as CSV: a header row (the file's column
  // names, or numbers where it names none), then the records.
  QString otherOutputCsv() const;

 private:
  QWidget* buildReportRow();
  QWidget* buildOtherOutputRow();
  void showReport();
  void makeReportIfMissing(const std::filesystem::path& file);
  void fillPopulations();
  void goToPopulation(int index);
  void find();
  void saveReportAs();
  void showOtherOutput();
  void exportOtherOutput();
  // Texts in the project file's encoding, as the result files hold them.
  tamsic::TableRows otherOutputRows() const;
  std::string scenarioName() const;
  std::filesystem::path file(tamsic::ScenarioOutput kind) const;
  std::filesystem::path folder() const;
  QString text(int number) const;

  Program& program_;
  const tamsic::ProjectState& state_;
  std::function<std::optional<std::string>(std::size_t)> checkIn_;
  QComboBox* cboScenario_ = nullptr;
  QComboBox* cboReport_ = nullptr;
  QComboBox* cboPopulation_ = nullptr;
  QLineEdit* txtFind_ = nullptr;
  QPlainTextEdit* txtReport_ = nullptr;
  QComboBox* cboOtherOutput_ = nullptr;
  QTableWidget* grdOtherOutput_ = nullptr;
};
