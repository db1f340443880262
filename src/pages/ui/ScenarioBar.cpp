#include "pages/ui/ScenarioBar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QUndoStack>

#include "model/ScenarioManagement.h"
#include "pages/ui/FlowLayout.h"
#include "pages/ui/InputPages.h"
#include "pages/ui/UpdateGuard.h"
#include "pages/ui/frmNewScenario.h"
#include "pages/ui/frmScenarios.h"

namespace {
QPushButton* Button(QWidget* parent, const char* name, const QString& caption, const QString& hint) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setToolTip(hint);
  return button;
}

QToolButton* Arrow(QWidget* parent, const char* name, QStyle::StandardPixmap icon, const QString& hint) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setIcon(parent->style()->standardIcon(icon));
  button->setToolTip(hint);
  return button;
}
}  // namespace

ScenarioBar::ScenarioBar(const PageContext& context, tamsic::ScenarioCollection& scenarios, InputPages& pages,
                         QUndoStack& undo, QWidget* parent)
    : QWidget(parent), context_(context), scenarios_(scenarios), pages_(pages), undo_(undo) {
  runDialog = [](QDialog& dialog) { return dialog.exec() == QDialog::Accepted; };
  cmdPrevScene = Arrow(this, "cmdPrevScene", QStyle::SP_ArrowBack, context.text(1416));
  cboScenario = new QComboBox(this);
  cboScenario->setObjectName("cboScenario");
  cboScenario->setToolTip(context.text(1424));
  cboScenario->setMinimumContentsLength(24);
  cmdNextScene = Arrow(this, "cmdNextScene", QStyle::SP_ArrowForward, context.text(1417));
  cmdAddScene = Button(this, "cmdAddScene", context.text(1418), context.text(1419));
  cmdDeleteScene = Button(this, "cmdDeleteScene", context.text(1420), context.text(1421));
  cmdSceneFrm = Button(this, "cmdSceneFrm", context.text(1422), context.text(1423));
  layOut();
  wire();
  UpdateScenarioSelector();
}

// The chooser and the buttons each stay together; in a narrow window the
// buttons go to a line of their own.
void ScenarioBar::layOut() {
  auto* chooser = new QWidget(this);
  auto* choose = new QHBoxLayout(chooser);
  choose->setContentsMargins(0, 0, 0, 0);
  choose->addWidget(new QLabel(context_.text(1415), chooser));
  choose->addWidget(cmdPrevScene);
  choose->addWidget(cboScenario);
  choose->addWidget(cmdNextScene);
  auto* buttons = new QWidget(this);
  auto* press = new QHBoxLayout(buttons);
  press->setContentsMargins(0, 0, 0, 0);
  press->addWidget(cmdAddScene);
  press->addWidget(cmdDeleteScene);
  press->addWidget(cmdSceneFrm);
  auto* flow = new FlowLayout(this, 12);
  flow->addWidget(chooser);
  flow->addWidget(buttons);
}

void ScenarioBar::wire() {
  connect(cmdPrevScene, &QToolButton::clicked, this, &ScenarioBar::previous);
  connect(cmdNextScene, &QToolButton::clicked, this, &ScenarioBar::next);
  connect(cmdAddScene, &QPushButton::clicked, this, &ScenarioBar::addScenarios);
  connect(cmdDeleteScene, &QPushButton::clicked, this, &ScenarioBar::deleteScenario);
  connect(cmdSceneFrm, &QPushButton::clicked, this, &ScenarioBar::reorderScenarios);
  connect(cboScenario, &QComboBox::currentIndexChanged, this, &ScenarioBar::select);
  connect(&pages_, &InputPages::scenarioShown, this, &ScenarioBar::UpdateScenarioSelector);
  connect(&pages_, &InputPages::scenarioNamesChanged, this, &ScenarioBar::UpdateScenarioSelector);
}

void ScenarioBar::UpdateScenarioSelector() {
  UpdateGuard guard(updating_);
  cboScenario->clear();
  for (std::size_t n = 1; n <= scenarios_.Count(); ++n)
    cboScenario->addItem(FromRecord(scenarios_.Item(n).Text(tamsic::F("txtSceneName"))));
  cboScenario->setCurrentIndex(static_cast<int>(pages_.currentScenario()) - 1);
  EnableDisableNav();
}

void ScenarioBar::EnableDisableNav() {
  const std::size_t current = pages_.currentScenario();
  cmdPrevScene->setEnabled(current > 1);
  cmdNextScene->setEnabled(current < scenarios_.Count());
  // The project always keeps one scenario.
  cmdDeleteScene->setEnabled(scenarios_.Count() > 1);
}

void ScenarioBar::select(int index) {
  if (updating_ || index < 0) return;
  pages_.showScenario(static_cast<std::size_t>(index) + 1);
}

void ScenarioBar::previous() {
  if (pages_.currentScenario() > 1) pages_.showScenario(pages_.currentScenario() - 1);
}

void ScenarioBar::next() {
  if (pages_.currentScenario() < scenarios_.Count()) pages_.showScenario(pages_.currentScenario() + 1);
}

void ScenarioBar::listChanged(std::size_t show) {
  undo_.clear();
  pages_.showScenario(show);
  emit scenarioListChanged();
}

void ScenarioBar::addScenarios() {
  frmNewScenario dialog(context_, scenarios_, pages_.currentScenario(), this);
  if (!runDialog(dialog)) return;
  const int count = dialog.count();
  if (count == 0) {
    context_.messages.show(context_.strings.text(tamsic::msg::kInvalidInput), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Critical);
    return;
  }
  listChanged(tamsic::AddScenarioCopies(scenarios_, dialog.templateNumber(), count));
}

void ScenarioBar::deleteScenario() {
  if (scenarios_.Count() <= 1) return;
  if (const auto next = tamsic::DeleteScenario(scenarios_, pages_.currentScenario(), context_.messages))
    listChanged(*next);
}

void ScenarioBar::reorderScenarios() {
  context_.messages.show(context_.strings.text(tamsic::msg::kReorderCaution), tamsic::msg::kWarning,
                         tamsic::MsgIcon::Exclamation);
  frmScenarios dialog(context_, scenarios_, pages_.currentScenario(), this);
  runDialog(dialog);
  listChanged(dialog.followed());
}
