// Adding, deleting, renaming, reordering and moving between scenarios, as
// the bar and its dialogs do them; the rules themselves are the core's and
// its tests cover them.
#include <QComboBox>
#include <QPushButton>
#include <QToolButton>

#include "PagesHarness.h"
#include "pages/ui/frmNewScenario.h"
#include "pages/ui/frmScenarios.h"

using tamsic::F;

class ScenarioBarTest : public QObject {
  Q_OBJECT
 private slots:
  void copiesOfATemplate();
  void moveAndDelete();
  void renameRules();
  void reorderCautionsAndFollowsTheCurrentScenario();
};

namespace {

std::string Name(const pagestest::Harness& h, std::size_t n) { return h.scenarios.Item(n).Text(F("txtSceneName")); }

void AddNamed(pagestest::Harness& h, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    tamsic::clsScenario s = tamsic::NewScenarioDefaults();
    s.SetText(F("txtSceneName"), name);
    h.scenarios.Add(s);
  }
  h.bar->UpdateScenarioSelector();
}

}  // namespace

void ScenarioBarTest::copiesOfATemplate() {
  pagestest::Harness h;
  h.type("txtNumYear", "250");
  h.bar->runDialog = [](QDialog& dialog) {
    auto& form = static_cast<frmNewScenario&>(dialog);
    form.txtNumCreate->setText("3");
    return true;
  };
  h.bar->addScenarios();
  QCOMPARE(h.scenarios.Count(), std::size_t{4});
  QCOMPARE(Name(h, 2), std::string("Baseline - Copy 1"));
  QCOMPARE(Name(h, 4), std::string("Baseline - Copy 3"));
  QCOMPARE(h.scenarios.Item(4).Text(F("txtNumYear")), std::string("250"));
  QCOMPARE(h.pages->currentScenario(), std::size_t{2});
  QCOMPARE(h.bar->cboScenario->count(), 4);
  QCOMPARE(h.bar->cboScenario->currentText(), QString("Baseline - Copy 1"));
  QCOMPARE(h.undo.count(), 0);  // the numbers the history refers to are no longer sure
}

// Previous and next follow the place of the current scenario; deleting asks first.
void ScenarioBarTest::moveAndDelete() {
  pagestest::Harness h;
  QVERIFY(!h.bar->cmdDeleteScene->isEnabled());  // the last scenario stays
  QVERIFY(!h.bar->cmdPrevScene->isEnabled());
  QVERIFY(!h.bar->cmdNextScene->isEnabled());
  AddNamed(h, {"Dry", "Wet"});
  QVERIFY(h.bar->cmdNextScene->isEnabled());
  h.bar->cmdNextScene->click();
  QCOMPARE(h.find<QLineEdit>("txtSceneName")->text(), QString("Dry"));
  QVERIFY(h.bar->cmdPrevScene->isEnabled());
  QVERIFY(h.bar->cmdDeleteScene->isEnabled());
  const std::string confirm = h.strings.text(9121);
  h.box.expect(confirm, tamsic::MsgAnswer::No);
  h.bar->cmdDeleteScene->click();
  QCOMPARE(h.scenarios.Count(), std::size_t{3});
  h.box.expect(confirm, tamsic::MsgAnswer::Yes);
  h.bar->cmdDeleteScene->click();
  QCOMPARE(h.scenarios.Count(), std::size_t{2});
  QCOMPARE(h.find<QLineEdit>("txtSceneName")->text(), QString("Wet"));
  QCOMPARE(h.box.shown.back().caption, h.strings.text(9115));
  QVERIFY(!h.bar->cmdNextScene->isEnabled());
  h.bar->cboScenario->setCurrentIndex(0);
  QCOMPARE(h.pages->currentScenario(), std::size_t{1});
}

// Another scenario's name in other capitals is refused; the scenario's own is not.
void ScenarioBarTest::renameRules() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  AddNamed(h, {"Dry"});
  h.box.expect("Each scenario must have a unique name!");
  h.type("txtSceneName", "DRY");
  QCOMPARE(Name(h, 1), std::string("Baseline"));
  QTRY_VERIFY(h.find<QLineEdit>("txtSceneName")->hasFocus());
  h.type("txtSceneName", "BASELINE");
  QCOMPARE(Name(h, 1), std::string("BASELINE"));
  QCOMPARE(h.bar->cboScenario->itemText(0), QString("BASELINE"));
}

void ScenarioBarTest::reorderCautionsAndFollowsTheCurrentScenario() {
  pagestest::Harness h;
  AddNamed(h, {"Dry", "Wet"});
  h.box.expect("Caution: Changing the order of scenarios can change the baselines of ST analyses.");
  h.bar->runDialog = [](QDialog& dialog) {
    auto& order = static_cast<frmScenarios&>(dialog);
    order.cmdDown->click();
    order.cmdDown->click();
    return true;
  };
  h.bar->cmdSceneFrm->click();
  QCOMPARE(Name(h, 1), std::string("Dry"));
  QCOMPARE(Name(h, 3), std::string("Baseline"));
  QCOMPARE(h.pages->currentScenario(), std::size_t{3});
  QCOMPARE(h.bar->cboScenario->itemText(2), QString("Baseline"));
  QVERIFY(!h.bar->cmdNextScene->isEnabled());
}

QTEST_MAIN(ScenarioBarTest)
#include "ScenarioBarTest.moc"
