#pragma once
// What every input page needs from its project window: the texts, the message
// box, the engine for formula tests, and the user's setting for "=" in a cell.
#include <QString>
#include <functional>
#include <optional>
#include <string>

#include "model/Messages.h"
#include "engine/Engine.h"
#include "model/clsScenario.h"

struct PageContext {
  const tamsic::IStringTable& strings;
  tamsic::Messages& messages;
  tamsic::Engine& engine;
  // Whether "=" typed in a cell or box opens the function editor.
  std::function<bool()> showEquationDialogOnEquals = [] { return false; };
  // The function editor on a cell's value: the new value, or nothing when the user cancels.
  std::function<std::optional<QString>(const QString& cellText)> openEquationEditor = nullptr;
  // Shows a function and its graph.
  std::function<void(const QString& function)> openFunctionPreview = nullptr;
  // Fills a record's initial numbers by age from the stable age distribution
  // (the window saves the project for the engine); answers the error, if any.
  std::function<std::optional<std::string>(tamsic::clsScenario& record, std::size_t number)> stableAgeDistribution =
      nullptr;
  // Works out the two other mate-monopolization measures of each population
  // whose one measure changed from `before` (the window saves the project for
  // the engine); answers the error, if any.
  std::function<std::optional<std::string>(const tamsic::clsScenario& before, tamsic::clsScenario& after,
                                           std::size_t number)>
      matesEquivalents = nullptr;
  // The user's decimal separator: numbers pasted from their spreadsheets may use a comma.
  char decimalSeparator = '.';

  QString text(int number) const { return QString::fromStdString(strings.text(number)); }
};

// Record texts are Windows-1252 bytes as project files hold them.
QString FromRecord(const std::string& text);
std::string ToRecord(const QString& text);
