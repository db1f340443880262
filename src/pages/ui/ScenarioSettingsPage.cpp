#include "pages/ui/ScenarioSettingsPage.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

using tamsic::F;

ScenarioSettingsPage::ScenarioSettingsPage(const PageContext& context, QWidget* parent)
    : InputPage(context, 0, parent) {
  txtSceneName = textBox("txtSceneName", F("txtSceneName"), [this](const QString& name) { return refuseName(name); });
  txtNumIter = textBox("txtNumIter", F("txtNumIter"));
  txtNumYear = textBox("txtNumYear", F("txtNumYear"));
  txtNumDays = textBox("txtNumDays", F("txtNumDays"));
  optExtinctDef_0 = option("optExtinctDef_0", F("optExtinctDef_0"));
  optExtinctDef_1 = option("optExtinctDef_1", F("optExtinctDef_1"));
  txtExtinctN = textBox("txtExtinctN", F("txtExtinctN"));
  txtNumPop = textBox("txtNumPop", F("txtNumPop"));
  layOut();
  wire();
}

void ScenarioSettingsPage::layOut() {
  auto* form = new QFormLayout;
  form->addRow(label(8), txtSceneName);
  form->addRow(label(9), txtNumIter);
  form->addRow(label(10), txtNumYear);
  form->addRow(label(11), txtNumDays);

  auto* extinction = new QGroupBox(context_.text(12), this);
  auto* inner = new QFormLayout(extinction);
  inner->addRow(optExtinctDef_0);
  inner->addRow(optExtinctDef_1, txtExtinctN);

  auto* populations = new QFormLayout;
  populations->addRow(label(15), txtNumPop);

  auto* page = new QVBoxLayout(this);
  page->addLayout(form);
  page->addWidget(extinction);
  page->addLayout(populations);
  page->addStretch();
  txtSceneName->setMaximumWidth(320);
  txtSceneName->setMinimumWidth(260);
}

void ScenarioSettingsPage::wire() {
  connect(optExtinctDef_1, &QRadioButton::toggled, this, &ScenarioSettingsPage::applyEnabling);
}

void ScenarioSettingsPage::applyEnabling() { txtExtinctN->setEnabled(optExtinctDef_1->isChecked()); }

bool ScenarioSettingsPage::refuseName(const QString& name) {
  std::optional<std::string> problem;
  if (name.trimmed().isEmpty())
    problem = context_.strings.text(9146);
  else if (nameProblem)
    problem = nameProblem(ToRecord(name));
  if (!problem) return false;
  context_.messages.show(*problem, tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
  return true;
}
