#include "pages/ui/InputPages.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QUndoStack>
#include <QVBoxLayout>

#include "model/ScenarioManagement.h"
#include "model/ScenarioShape.h"
#include "pages/AfterEdit.h"
#include "pages/InputHelpers.h"
#include "pages/MatesEquivalents.h"
#include "pages/ui/CarryingCapacityPage.h"
#include "pages/ui/CatastrophesPage.h"
#include "pages/ui/CopyInputValues.h"
#include "pages/ui/DispersalPage.h"
#include "pages/ui/GeneticsPage.h"
#include "pages/ui/GridView.h"
#include "pages/ui/InitialPopulationPage.h"
#include "pages/ui/LabelsPage.h"
#include "pages/ui/MonopolizationPage.h"
#include "pages/ui/MortalityPage.h"
#include "pages/ui/RecordEditCommand.h"
#include "pages/ui/ReproRatesPage.h"
#include "pages/ui/ReproSystemPage.h"
#include "pages/ui/ScenarioSettingsPage.h"
#include "pages/ui/SchedulePage.h"
#include "pages/ui/SpeciesPage.h"
#include "pages/ui/UpdateGuard.h"

namespace {
// The hints of the page links, in the order of the pages.
constexpr std::array<int, InputPages::kPageCount> kLinkHints = {1301, 1302, 1346, 1303, 1304, 1305, 1306,
                                                                1307, 1308, 1309, 1310, 1311, 1312, 1345};
}  // namespace

InputPages::InputPages(const PageContext& context, tamsic::ScenarioCollection& scenarios, QUndoStack& undo,
                       QWidget* parent)
    : QWidget(parent), context_(context), scenarios_(scenarios), undo_(undo) {
  createPages();
  layOut();
  wire();
  if (scenarios_.Count() > 0) showScenario(1);
}

void InputPages::createPages() {
  settings_ = new ScenarioSettingsPage(context_);
  settings_->nameProblem = [this](const std::string& name) -> std::optional<std::string> {
    if (const auto problem = tamsic::ScenarioNameProblem(scenarios_, current_, name))
      return context_.strings.text(*problem);
    return std::nullopt;
  };
  pages_ = {settings_,
            new SpeciesPage(context_),
            new LabelsPage(context_),
            new DispersalPage(context_),
            new ReproSystemPage(context_),
            new ReproRatesPage(context_),
            new MortalityPage(context_),
            new CatastrophesPage(context_),
            new MonopolizationPage(context_),
            new InitialPopulationPage(context_),
            new CarryingCapacityPage(context_),
            new HarvestPage(context_),
            new SupplementPage(context_),
            new GeneticsPage(context_)};
}

void InputPages::layOut() {
  title_ = new QLabel(this);
  QFont bold = title_->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.2);
  title_->setFont(bold);
  title_->setWordWrap(true);  // long translated titles in a narrow window
  stack_ = new QStackedWidget(this);
  for (InputPage* page : pages_) {
    auto* scroll = new QScrollArea(stack_);
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    stack_->addWidget(scroll);
  }
  copyBar_ = new CopyInputValuesBar(context_, this);
  auto* column = new QVBoxLayout(this);
  column->addWidget(title_);
  column->addWidget(stack_, 1);
  column->addWidget(copyBar_);
  showPage(0);
}

InputPages::~InputPages() {
  // The pages outlive this object's own part of the destruction, and a grid
  // closing its editor on the way out still signals an edit: it must not reach
  // an object that has stopped being InputPages.
  for (int index = 0; index < kPageCount; ++index) disconnect(page(index), nullptr, this, nullptr);
  disconnect(qApp, nullptr, this, nullptr);
}

void InputPages::wire() {
  for (int index = 0; index < kPageCount; ++index) {
    connect(page(index), &InputPage::edited, this, [this, index] { commit(index); });
    connect(page(index), &InputPage::hintChanged, this, &InputPages::hintChanged);
  }
  connect(copyBar_, &CopyInputValuesBar::copyRequested, this, &InputPages::copyInputValues);
  // Text boxes, check boxes and buttons show their own hint; grid cells tell theirs through their page.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && isAncestorOf(now) && !now->toolTip().isEmpty() && !qobject_cast<GridView*>(now))
      emit hintChanged(now->toolTip());
    // Installing a filter again only moves it to the front.
    if (auto* box = qobject_cast<QLineEdit*>(now); box && isAncestorOf(box)) box->installEventFilter(this);
  });
}

QString InputPages::pageTitle(int index) const { return page(index)->title(); }

QString InputPages::linkHint(int index) const { return context_.text(kLinkHints[static_cast<std::size_t>(index)]); }

bool InputPages::pageAvailable(int index) const {
  if (index == Dispersal) return populations_ > 1;
  if (index == Catastrophes) return catastrophes_ > 0;
  return true;
}

int InputPages::currentPage() const { return stack_->currentIndex(); }

void InputPages::showPage(int index) {
  stack_->setCurrentIndex(index);
  copyBar_->setVisible(!tamsic::PopulationGridsOfPage(index).empty());
  title_->setText(pageTitle(index));
  emit pageShown(index);
}

void InputPages::showScenario(std::size_t number) {
  current_ = number;
  restorePages(scenarios_.Item(number));
  emit scenarioShown(number);
}

void InputPages::reload() {
  current_ = std::clamp<std::size_t>(current_, 1, scenarios_.Count());
  showScenario(current_);
}

void InputPages::commitPending() {
  for (InputPage* page : pages_) page->settle();
  QWidget* focus = QApplication::focusWidget();
  if (focus && isAncestorOf(focus)) focus->clearFocus();
  // Leaving a cell committed what it could; an editor still open holds a refused value.
  for (GridView* view : findChildren<GridView*>()) view->dropRefusedEdit();
}

void InputPages::storePages(tamsic::clsScenario& record) const {
  for (InputPage* page : pages_) page->storeInto(record);
  record.usingformula = tamsic::AnyInputIsFunction(record);
}

void InputPages::restorePages(const tamsic::clsScenario& record) {
  UpdateGuard guard(updating_);
  for (InputPage* page : pages_) page->showRecord(record);
  applyCrossPageRules(record);
}

void InputPages::applyCrossPageRules(const tamsic::clsScenario& record) {
  const tamsic::LayoutCounts counts = tamsic::CountsOf(record);
  populations_ = static_cast<int>(counts.populations.size());
  catastrophes_ = counts.catastrophes;
  static_cast<SpeciesPage*>(page(Species))->setPopulationCount(populations_);
  QStringList labels;
  for (const std::string& label : counts.populations) labels << FromRecord(label);
  copyBar_->setPopulations(labels);
  copyBar_->setEnabled(populations_ > 1);
  emit availabilityChanged();
}

void InputPages::commit(int page) {
  if (updating_) return;
  const tamsic::clsScenario before = scenarios_.Item(current_);
  tamsic::clsScenario stored = before;
  storePages(stored);
  tamsic::clsScenario after = stored;
  tamsic::AfterEdit(before, after);
  if (after == before) return;
  tamsic::WarnAboutRateFunctions(before, after, context_.messages);
  spreadByStableAges(before, after);
  matchMatesMeasures(before, after);
  scenarios_.Item(current_) = after;
  if (after != stored) restorePages(after);
  else applyCrossPageRules(after);
  undo_.push(new RecordEditCommand(*this, current_, page, before, after));
  if (before.Text(tamsic::F("txtSceneName")) != after.Text(tamsic::F("txtSceneName"))) emit scenarioNamesChanged();
}

// Choosing the stable age distribution fills the numbers by age from it.
void InputPages::spreadByStableAges(const tamsic::clsScenario& before, tamsic::clsScenario& after) {
  const tamsic::Field stable = tamsic::F("optStartWith_0");
  if (!after.Truth(stable) || before.Truth(stable) || !context_.stableAgeDistribution) return;
  if (const auto error = context_.stableAgeDistribution(after, current_))
    context_.messages.show(*error, tamsic::msg::kError, tamsic::MsgIcon::Critical);
}

// A measure of mate monopolization typed for a population gives the other two.
void InputPages::matchMatesMeasures(const tamsic::clsScenario& before, tamsic::clsScenario& after) {
  if (!context_.matesEquivalents || !tamsic::MatesMeasureChanged(before, after)) return;
  if (const auto error = context_.matesEquivalents(before, after, current_))
    context_.messages.show(*error, tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
}

void InputPages::copyInputValues(int from, bool allSections) {
  tamsic::clsScenario before = scenarios_.Item(current_);
  tamsic::clsScenario after = before;
  const auto grids = allSections ? tamsic::PopulationGrids() : tamsic::PopulationGridsOfPage(currentPage());
  tamsic::CopyInputValues(after, static_cast<std::size_t>(from), grids);
  tamsic::AfterEdit(before, after);
  if (after == before) return;
  scenarios_.Item(current_) = after;
  restorePages(after);
  undo_.push(new RecordEditCommand(*this, current_, currentPage(), std::move(before), after));
}

// Notes are no edit of the pages: they stay as the notes window last stored them.
void InputPages::putBack(std::size_t scenario, int page, const tamsic::clsScenario& record) {
  tamsic::clsScenario& stored = scenarios_.Item(scenario);
  tamsic::Grid notes = stored.Notes();
  stored = record;
  stored.SetNotes(std::move(notes));
  current_ = scenario;
  restorePages(record);
  showPage(page);
  emit scenarioShown(scenario);
  emit scenarioNamesChanged();
}

QLineEdit* InputPages::focusedBox() const {
  auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  return box && isAncestorOf(box) ? box : nullptr;
}

void InputPages::closeCellEditor() {
  QWidget* focus = QApplication::focusWidget();
  for (QWidget* up = focus && isAncestorOf(focus) ? focus->parentWidget() : nullptr; up && up != this;
       up = up->parentWidget())
    if (auto* grid = qobject_cast<GridView*>(up)) {
      grid->setFocus();
      return;
    }
}

void InputPages::undo() {
  if (QLineEdit* box = focusedBox(); box && box->isUndoAvailable()) {
    box->undo();
    return;
  }
  closeCellEditor();
  undo_.undo();
}

// Typing not yet stored stays with its box: the page's redo would show the
// record over it.
void InputPages::redo() {
  if (QLineEdit* box = focusedBox(); box && (box->isUndoAvailable() || box->isRedoAvailable())) {
    box->redo();
    return;
  }
  closeCellEditor();
  undo_.redo();
}

bool InputPages::eventFilter(QObject* watched, QEvent* event) {
  auto* box = qobject_cast<QLineEdit*>(watched);
  if (box && event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    if ((key->matches(QKeySequence::Undo) && !box->isUndoAvailable()) ||
        (key->matches(QKeySequence::Redo) && !box->isUndoAvailable() && !box->isRedoAvailable())) {
      event->ignore();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}
