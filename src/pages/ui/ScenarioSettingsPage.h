#pragma once
// "Scenario Settings": name, iterations, years, days, extinction, populations.
#include <optional>
#include <string>

#include "pages/ui/InputPage.h"

class ScenarioSettingsPage : public InputPage {
  Q_OBJECT
 public:
  explicit ScenarioSettingsPage(const PageContext& context, QWidget* parent = nullptr);

  // The message refusing a scenario name, from the project's scenario list.
  std::function<std::optional<std::string>(const std::string& name)> nameProblem;

  void applyEnabling() override;

  QLineEdit* txtSceneName;
  QLineEdit* txtNumIter;
  QLineEdit* txtNumYear;
  QLineEdit* txtNumDays;
  QRadioButton* optExtinctDef_0;
  QRadioButton* optExtinctDef_1;
  QLineEdit* txtExtinctN;
  QLineEdit* txtNumPop;

 private:
  bool refuseName(const QString& name);
  void layOut();
  void wire();
};
