#pragma once
// What the input-page tests share: a project window's input pages and
// scenario strip over a scenario list, wired to the real string table, a
// message box that fails the test on any message it was not told to expect,
// and an engine whose formula test refuses anything containing "BAD".
#include <QLineEdit>
#include <QUndoStack>
#include <QtTest>
#include <deque>

#include "app/StringTable.h"
#include "model/NewScenario.h"
#include "pages/ui/GridView.h"
#include "pages/ui/InputPage.h"
#include "pages/ui/InputPages.h"
#include "support/FakeEngine.h"
#include "pages/ui/ScenarioBar.h"

namespace pagestest {

class ExpectedMessages : public tamsic::IMessageBox {
 public:
  // The next message must begin with `text` and is answered with `answer`.
  void expect(std::string text, tamsic::MsgAnswer answer = tamsic::MsgAnswer::Ok) {
    expected_.push_back({std::move(text), answer});
  }
  bool allShown() const { return expected_.empty(); }

  tamsic::MsgAnswer show(const tamsic::MessageBoxRequest& request) override {
    shown.push_back(request);
    if (closing) return tamsic::MsgAnswer::Cancel;
    if (expected_.empty() || request.text.rfind(expected_.front().text, 0) != 0) {
      QTest::qFail(("unexpected message: " + request.text).c_str(), __FILE__, __LINE__);
      return tamsic::MsgAnswer::Cancel;
    }
    const tamsic::MsgAnswer answer = expected_.front().answer;
    expected_.pop_front();
    return answer;
  }
  std::vector<tamsic::MessageBoxRequest> shown;
  // Set when the window closes: an editor still holding a refused value is
  // committed once more as it goes, which is no longer the test's business.
  bool closing = false;

 private:
  struct Expected {
    std::string text;
    tamsic::MsgAnswer answer;
  };
  std::deque<Expected> expected_;
};

// Formulas holding "BAD" are refused, as the engine refuses an unknown name.
struct PagesEngine : tamsic::test::FakeEngine {
  PagesEngine() {
    judge = [](const std::string& formula) {
      return formula.find("BAD") != std::string::npos ? std::string("Error: BAD is not a variable") : std::string("OK");
    };
  }
};

struct Harness {
  explicit Harness(tamsic::Language language = tamsic::Language::English) {
    strings.setLanguage(language);
    scenarios.Add(tamsic::NewScenarioDefaults());
    pages = std::make_unique<InputPages>(context, scenarios, undo);
    bar = std::make_unique<ScenarioBar>(context, scenarios, *pages, undo);
    pages->resize(1000, 700);
    pages->show();
    pages->activateWindow();
  }
  ~Harness() {
    if (!box.allShown()) QTest::qFail("an expected message was not shown", __FILE__, __LINE__);
    box.closing = true;
  }

  template <typename T>
  T* find(const char* name) const {
    T* found = pages->findChild<T*>(name);
    if (!found) found = bar->findChild<T*>(name);
    if (!found) QTest::qFail((std::string("no control ") + name).c_str(), __FILE__, __LINE__);
    return found;
  }
  GridView* grid(const char* name) const { return find<GridView>(name); }
  const tamsic::clsScenario& record() const { return scenarios.Item(pages->currentScenario()); }
  const std::string& cell(const char* grid, int row, int col) const {
    return record().GetGrid(*tamsic::FieldByMember(grid)).at(row, col);
  }

  // Shows the page of a control, types into the box and presses Return.
  void type(const char* boxName, const QString& text) {
    QLineEdit* box = find<QLineEdit>(boxName);
    showPageOf(box);
    box->setFocus();
    box->selectAll();
    if (text.isEmpty()) QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
  }

  // Types into a cell through the view's own editor and presses Return.
  void editCell(const char* gridName, int row, int col, const QString& text) {
    GridView* view = grid(gridName);
    showPageOf(view);
    view->setFocus();
    view->setCurrentIndex(view->grid()->indexAt(row, col));
    view->edit(view->currentIndex());
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(editor);
    editor->selectAll();
    if (text.isEmpty()) QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
  }

  void showPageOf(QWidget* control) {
    for (int p = 0; p < InputPages::kPageCount; ++p)
      if (pages->page(p)->isAncestorOf(control)) pages->showPage(p);
  }

  ExpectedMessages box;
  tamsic::StringTable strings = tamsic::StringTable::fromFile(tamsic::StringTable::locate());
  tamsic::Messages messages{box, strings};
  PagesEngine engine;
  PageContext context{strings, messages, engine};
  tamsic::ScenarioCollection scenarios;
  QUndoStack undo;
  std::unique_ptr<InputPages> pages;
  std::unique_ptr<ScenarioBar> bar;
};

}  // namespace pagestest
