// A user who chooses German, Spanish or Portuguese meets no English. The walk
// opens the example project in that language, shows every input page and
// every tab, opens the dialogs, the file dialogs and a refused value's
// message, reads every text on show, and fails on each one that is English.
//
// A text is English when it is the English of a message whose translation
// differs, or when it holds a word (four letters or more, a plural's "s"
// dropped) that the English table uses and the chosen language's table never
// does. Names are left out: the project's own texts (its title, notes, users,
// scenarios, populations and catastrophes), the labels of the result
// variables that the result files fix, file names and paths, and the few
// words that the languages write alike. The manual is English in every
// language: its pages, and the contents, keywords and topics of the help
// window's lists, are content, while the window's own texts are walked.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextDocumentFragment>
#include <QTextDocument>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <set>

#include "GuiTestSupport.h"
#include "app/ui/QtMessageBox.h"
#include "app/ui/QtSaveFileDialog.h"
#include "app/ui/frmAbout.h"
#include "app/ui/frmNewProject.h"
#include "app/ui/frmHelp.h"
#include "app/ui/frmSettings.h"
#include "app/ui/frmWelcome.h"
#include "app/ui/mdiMain.h"
#include "engine/OutputFiles.h"
#include "engine/ui/frmSimRun.h"
#include "functions/FunctionVariables.h"
#include "functions/ui/frmEquation.h"
#include "functions/ui/frmEquationPreview.h"
#include "notes/ui/frmReport.h"
#include "support/FakeEngine.h"
#include "files/TextCodec.h"
#include "pages/ui/GridView.h"
#include "pages/ui/InputPage.h"
#include "pages/ui/InputPages.h"
#include "pages/ui/ScenarioBar.h"
#include "pages/ui/frmProject.h"
#include "st/basST.h"
#include "st/ui/frmSTDesign.h"
#include "st/ui/frmSTSetup.h"
#include "results/ResultVariables.h"
#include "st/ui/STAnalysisPanel.h"

using namespace guitest;

namespace {

struct Seen {
  QString text;
  QString where;
};

QString Where(const QObject* object) {
  return QString::fromLatin1(object->metaObject()->className()) + " " + object->objectName();
}

// Collects the texts of widgets, their actions and their item models.
class TextWalk {
 public:
  // Every widget of the tree that is on show.
  void tree(QWidget* root) {
    widget(root);
    for (QWidget* child : root->findChildren<QWidget*>())
      if (child->isVisible()) widget(child);
  }

  void actions(const QList<QAction*>& items, const QString& where) {
    for (QAction* item : items) {
      add(item->text(), where + " action");
      add(item->toolTip(), where + " action tooltip");
      if (item->menu() != nullptr) {
        add(item->menu()->title(), where + " menu");
        actions(item->menu()->actions(), where + " > " + item->text());
      }
    }
  }

  void add(const QString& text, const QString& where) {
    if (!text.trimmed().isEmpty()) seen.push_back({text, where});
  }

  std::vector<Seen> seen;
  // Views whose items are content, not texts of the program.
  std::set<const QWidget*> content;

 private:
  void widget(QWidget* w) {
    const QString where = Where(w);
    if (w->isWindow() || qobject_cast<QMdiSubWindow*>(w) || qobject_cast<QDockWidget*>(w))
      add(w->windowTitle(), where + " title");
    add(w->toolTip(), where + " tooltip");
    add(w->statusTip(), where + " status tip");
    add(w->whatsThis(), where + " what's this");
    actions(w->actions(), where);
    if (auto* label = qobject_cast<QLabel*>(w)) add(label->text(), where);
    if (auto* button = qobject_cast<QAbstractButton*>(w)) add(button->text(), where);
    if (auto* group = qobject_cast<QGroupBox*>(w)) add(group->title(), where);
    if (auto* edit = qobject_cast<QLineEdit*>(w)) add(edit->placeholderText(), where + " placeholder");
    if (auto* status = qobject_cast<QStatusBar*>(w)) add(status->currentMessage(), where);
    if (auto* menuBar = qobject_cast<QMenuBar*>(w)) actions(menuBar->actions(), where);
    if (auto* sub = qobject_cast<QMdiSubWindow*>(w); sub && sub->systemMenu())
      actions(sub->systemMenu()->actions(), where + " system menu");
    if (auto* tabs = qobject_cast<QTabBar*>(w))
      for (int i = 0; i < tabs->count(); ++i) {
        add(tabs->tabText(i), where + " tab");
        add(tabs->tabToolTip(i), where + " tab tooltip");
      }
    if (auto* combo = qobject_cast<QComboBox*>(w))
      for (int i = 0; i < combo->count(); ++i) add(combo->itemText(i), where + " item");
    if (auto* view = qobject_cast<QAbstractItemView*>(w);
        view && !qobject_cast<QHeaderView*>(w) && view->model() && !content.contains(view))
      model(*view->model(), where, !qobject_cast<QTableView*>(w));
    if (auto* chart = qobject_cast<QChartView*>(w)) {
      add(chart->chart()->title(), where + " chart title");
      for (const QAbstractAxis* axis : chart->chart()->axes()) add(axis->titleText(), where + " axis");
    }
  }

  // Headings in both orientations and tooltips; the words of lists, not the values of tables.
  void model(const QAbstractItemModel& items, const QString& where, bool list) {
    for (int c = 0; c < items.columnCount(); ++c)
      add(items.headerData(c, Qt::Horizontal).toString(), where + " heading");
    for (int r = 0; r < std::min(items.rowCount(), 400); ++r) {
      add(items.headerData(r, Qt::Vertical).toString(), where + " row heading");
      for (int c = 0; c < items.columnCount(); ++c) {
        const QModelIndex index = items.index(r, c);
        add(items.data(index, Qt::ToolTipRole).toString(), where + " item tooltip");
        if (list) add(items.data(index).toString(), where + " item");
      }
    }
  }
};

// Opens a modal dialog through `open`, reads it, and closes it unanswered.
bool WalkModal(TextWalk& walk, const std::function<void()>& open) {
  bool found = false;
  QTimer poll;
  poll.setInterval(5);
  QObject::connect(&poll, &QTimer::timeout, [&] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || found) return;
    found = true;
    QApplication::processEvents();
    walk.tree(modal);
    if (auto* dialog = qobject_cast<QDialog*>(modal))
      dialog->reject();
    else
      modal->close();
  });
  poll.start();
  open();
  return found;
}

// Decides which texts are English, from the string table in both languages.
class EnglishJudge {
 public:
  EnglishJudge(const tamsic::StringTable& shipped, tamsic::Language language, const QStringList& names) {
    tamsic::StringTable english = shipped;
    english.setLanguage(tamsic::Language::English);
    tamsic::StringTable chosen = shipped;
    chosen.setLanguage(language);
    std::set<QString> chosenWords;
    for (const int number : shipped.numbers(language)) {
      const QString mine = Normal(QString::fromStdString(chosen.text(number)));
      const QString theirs = Normal(QString::fromStdString(english.text(number)));
      chosenTexts_.insert(mine);
      if (mine != theirs) englishTexts_.insert(theirs);
      for (const QString& word : Words(mine)) chosenWords.insert(word);
    }
    for (const int number : shipped.numbers(tamsic::Language::English))
      for (const QString& word : Words(Normal(QString::fromStdString(english.text(number)))))
        if (!chosenWords.contains(word)) englishWords_.insert(word);
    for (const QString& word : kAlike) englishWords_.erase(word);
    // Portuguese writes a date "data" (Qt's file dialogs: "Data de modificação").
    if (language == tamsic::Language::Portuguese) englishWords_.erase("data");
    names_ = names;
    std::sort(names_.begin(), names_.end(), [](const QString& a, const QString& b) { return a.size() > b.size(); });
  }

  // Why a text is English, or nothing when it is not.
  QString englishIn(const QString& shown) const {
    QString text = Normal(shown);
    for (const QString& name : names_)
      if (!name.isEmpty()) text.remove(name);
    QStringList parts = text.split('\n');
    parts << text;
    for (const QString& line : parts) {
      const QString part = line.simplified();
      if (!chosenTexts_.contains(part) && englishTexts_.contains(part)) return "the English of a message";
    }
    for (const QString& word : Words(text))
      if (englishWords_.contains(word)) return "the English word \"" + word + "\"";
    return {};
  }

 private:
  // Words every language writes alike: the values of the catastrophe cells that
  // project files fix, and the program's name.
  inline static const QStringList kAlike = {"local", "global", "tamsic"};

  // Without mnemonics, markup, file names and paths.
  static QString Normal(QString text) {
    if (Qt::mightBeRichText(text)) text = QTextDocumentFragment::fromHtml(text).toPlainText();
    text.replace("&&", "\x01").remove('&').replace("\x01", "&");
    static const QRegularExpression files(R"(\S*[/\\]\S*|\S*\w\.\w+\S*)");
    text.remove(files);
    return text.trimmed();
  }

  // Words of four letters or more, lower case, a plural's "s" dropped ("Adults" is "adult").
  static QStringList Words(const QString& text) {
    static const QRegularExpression letters(R"(\p{L}{4,})");
    QStringList words;
    for (auto match = letters.globalMatch(text); match.hasNext();) {
      QString word = match.next().captured().toLower();
      if (word.size() > 4 && word.endsWith('s')) word.chop(1);
      words << word;
    }
    return words;
  }

  std::set<QString> chosenTexts_;
  std::set<QString> englishTexts_;
  std::set<QString> englishWords_;
  QStringList names_;
};

// The project's own texts: the user wrote them, in whatever language. The
// labels of the result variables, which the result files fix, the names of
// the sensitivity-test variables, and the function language's variables and
// function names count as names too.
QStringList NamesOf(const tamsic::ProjectState& state, const QStringList& functionWords) {
  const auto text = [](const std::string& record) { return QString::fromStdString(tamsic::Cp1252ToUtf8(record)); };
  QStringList names{text(state.document.title), text(state.document.notes), QDir::home().dirName()};
  for (int number = 1; number <= tamsic::kResultVariableCount; ++number)
    names << QString::fromUtf8(tamsic::ResultLabel(number));
  for (const tamsic::FunctionVariable& variable : tamsic::FunctionVariables())
    names << QString::fromStdString(tamsic::ListEntry(variable));
  names << functionWords;
  for (const std::string& user : state.document.users) names << text(user);
  for (const tamsic::STItem& item : state.document.stScheme.Items) {
    names << text(item.Label);
    for (const std::string& variable : item.Vars) names << text(variable);
  }
  const auto& scenarios = state.document.scenarios;
  for (std::size_t n = 1; n <= scenarios.Count(); ++n) {
    const tamsic::clsScenario& scenario = scenarios.Item(n);
    names << text(scenario.Text(tamsic::F("txtSceneName")));
    // The names of the inputs a sensitivity test varies are keys of the project file, the same in every language.
    for (const std::string& variable : tamsic::STVariableNames(scenario)) names << QString::fromStdString(variable);
    const tamsic::Grid& populations = scenario.GetGrid(tamsic::F("gridPopLabels"));
    for (std::size_t r = 1; r < populations.rows(); ++r) names << text(populations.at(r, 1));
    const tamsic::Grid& catastrophes = scenario.GetGrid(tamsic::F("gridCatastropheLabels"));
    for (std::size_t r = 0; r < catastrophes.rows(); ++r) names << text(catastrophes.at(r, 1));
  }
  return names;
}

const char* LanguageItem(int language) {
  switch (language) {
    case 0: return "mniPortuguese";
    case 2: return "mniSpanish";
    case 3: return "mniGerman";
    default: return "mniEnglish";
  }
}

// The control of that name, or the only one of its type.
template <typename T>
T* Find(const QObject* parent, const char* name = "") {
  T* found = parent->findChild<T*>(name);
  if (found == nullptr) qFatal("no control %s", name);
  return found;
}

}  // namespace

class LanguageWalkTest : public QObject {
  Q_OBJECT

 private slots:
  void walk_data() {
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("atStart");
    QTest::newRow("German, saved") << 3 << 3;
    QTest::newRow("Spanish, chosen from the menu after German") << 2 << 3;
    QTest::newRow("Portuguese, chosen from the menu after English") << 0 << 1;
  }

  void walk() {
    QFETCH(int, language);
    QFETCH(int, atStart);
    ClearSettings();
    GlobalSettingsFile().setValue("GlobalSettings/Language", atStart);
    QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    const QString koalas = folder.filePath("Koalas.tpj");
    QVERIFY(QFile::copy(Example("Koalas.tpj"), koalas));
    TestProgram t;
    if (language != atStart) {
      mdiMain first(t.program);
      Find<QAction>(&first, LanguageItem(language))->trigger();
    }
    TextWalk walk;
    QStringList functionWords;

    mdiMain frame(t.program);
    frame.show();
    frmProject* project = frame.openProject(koalas);
    QVERIFY(project != nullptr);
    auto* pages = Find<InputPages>(project);
    pages->page(InputPages::Labels)->enter(Find<QLineEdit>(project, "txtNumGlobalVars"), "1");
    for (const char* schedule : {"gridHarvest", "gridSuppl"}) {
      GridModel* grid = Find<GridView>(project, schedule)->grid();
      QVERIFY(grid->setData(grid->indexAt(1, 1), Qt::Checked, Qt::CheckStateRole));
    }
    auto* links = Find<QListWidget>(project, "hypInput");
    for (int page = 0; page < InputPages::kPageCount; ++page) {
      QVERIFY2(pages->pageAvailable(page), qPrintable(pages->pageTitle(page)));
      links->setCurrentRow(page);
      walk.tree(&frame);
    }
    // An output report as the engine writes it, so that the report's population chooser shows.
    const tamsic::ProjectState& state = project->state();
    WriteFile(QString::fromStdString(tamsic::ScenarioOutputFile(tamsic::ResultsFolder(state), state.document.title,
                                                                "Baseline", tamsic::ScenarioOutput::OutputReport)),
              "Population 1\r\n");
    auto* tabs = Find<QTabWidget>(project, "tabProject");
    for (int tab = 1; tab < tabs->count(); ++tab) {
      tabs->setCurrentIndex(tab);
      if (tab == 2) Find<QPushButton>(project, "cmdShow")->click();
      walk.tree(&frame);
    }
    QVERIFY(Find<QComboBox>(project, "cboPopulation")->count() == 5);
    tabs->setCurrentIndex(0);

    // The notes, and the project report with the scenarios' section in it.
    auto* toolbar = Find<QToolBar>(&frame, "tbrMain");
    qobject_cast<QToolButton*>(toolbar->widgetForAction(Find<QAction>(&frame, "tblNotes")))->click();
    Find<QPushButton>(project, "cmdReport")->click();
    auto* report = Find<frmReport>(&frame, "frmReport");
    report->insertScenarios();
    walk.tree(&frame);
    walk.actions(Find<QMenu>(report, "mnuInsert")->actions(), "report's insert menu");
    walk.add(report->document()->toPlainText(), "report's scenarios");
    report->document()->setModified(false);
    report->parentWidget()->close();

    // Refused values and a questioned one, as the user meets them.
    for (int message = 0; message < 6; ++message) t.box.expect("");
    InputPage* settings = pages->page(InputPages::Settings);
    settings->enter(Find<QLineEdit>(project, "txtNumYear"), "5000");
    settings->enter(Find<QLineEdit>(project, "txtSceneName"), "Dry/wet");
    pages->page(InputPages::ReproSystem)->enter(Find<QLineEdit>(project, "txtAgeReproF"), "2.5");
    GridModel* mortality = Find<GridView>(project, "gridMortFemales")->grid();
    QVERIFY(mortality->setData(mortality->indexAt(1, 1), "0.5", Qt::EditRole));
    QVERIFY(!mortality->setData(mortality->indexAt(1, 3), "500", Qt::EditRole));

    // The dialogs of the scenario strip.
    auto* bar = Find<ScenarioBar>(project);
    bar->runDialog = [&walk](QDialog& dialog) {
      dialog.show();
      walk.tree(&dialog);
      return false;
    };
    Find<QPushButton>(bar, "cmdAddScene")->click();
    Find<QPushButton>(bar, "cmdSceneFrm")->click();
    QVERIFY(t.box.allShown());
    for (const tamsic::MessageBoxRequest& shown : t.box.shown) {
      walk.add(QString::fromStdString(shown.text), "message");
      walk.add(QString::fromStdString(shown.caption), "message caption");
    }

    // The program's dialogs, and Qt's own where the program uses them.
    {
      frmWelcome welcome(t.program, &frame);
      frmSettings properties(t.program, &frame);
      frmAbout about(t.program, &frame);
      frmSimRun run(t.program, {"Baseline", "Managed"}, &frame);
      tamsic::test::FakeEngine engine;
      frmEquation editor(t.program, engine, "", &frame);
      frmEquationPreview preview(t.program.messages, engine, "N", &frame);
      for (const QPushButton* button : editor.findChildren<QPushButton*>(QRegularExpression("^ssOperator_")))
        if (button->text().size() > 1 && button->text().front().isLetter()) functionWords << button->text();
      for (QDialog* dialog : std::initializer_list<QDialog*>{&welcome, &properties, &about, &run, &editor, &preview}) {
        dialog->show();
        walk.tree(dialog);
      }
    }
    // The analysis of the sensitivity test, whose items have no ST scenarios yet.
    {
      tamsic::test::FakeEngine engine;
      STAnalysisPanel analysis(t.program, engine);
      analysis.setProject(project->state(), project->state().document.stScheme);
      analysis.show();
      auto* grouping = Find<QComboBox>(&analysis, "cboGroup");
      auto* analysisTabs = Find<QTabWidget>(&analysis, "tabAnalysis");
      for (int choice = 0; choice < grouping->count(); ++choice) {
        grouping->setCurrentIndex(choice);
        for (int tab = 0; tab < analysisTabs->count(); ++tab) {
          analysisTabs->setCurrentIndex(tab);
          walk.tree(&analysis);
        }
      }
      QVERIFY(Find<QListWidget>(&analysis, "lstMissing")->count() == 3);
    }
    // The sensitivity-testing window with its scheme, and its design dialog with a range in it.
    {
      tamsic::test::FakeEngine engine;
      frmSTSetup window(t.program, engine, project->state(), {}, &frame);
      window.show();
      auto* windowTabs = Find<QTabWidget>(&window, "tabST");
      for (int tab = 0; tab < windowTabs->count(); ++tab) {
        windowTabs->setCurrentIndex(tab);
        walk.tree(&window);
      }
      frmSTDesign design(t.program, engine, project->state().document.scenarios, {1, 2}, &frame);
      design.show();
      Find<QPushButton>(&design, "cmdAddVar")->click();
      walk.tree(&design);
    }
    {
      frmNewProject dialog(t.program, &frame);
      dialog.show();
      walk.tree(&dialog);
      QVERIFY(WalkModal(walk, [&] { Find<QPushButton>(&dialog, "cmdBrowse")->click(); }));
    }
    QVERIFY(WalkModal(walk, [&] { Find<QAction>(&frame, "mniOpen")->trigger(); }));
    QVERIFY(WalkModal(walk, [&] { QtSaveFileDialog(t.strings).AskSavePath(folder.path().toStdString(), "Koalas"); }));
    QVERIFY(WalkModal(walk, [&] { Find<QAction>(&frame, "mniAddName")->trigger(); }));
    QVERIFY(WalkModal(walk, [&] {
      QtMessageBox(t.strings).show({t.strings.text(9118), "", tamsic::MsgIcon::Question,
                                    tamsic::MsgButtons::YesNoCancel});
    }));
    links->setCurrentRow(InputPages::Dispersal);
    QVERIFY(WalkModal(walk, [&] { Find<QPushButton>(project, "SSCommand2")->click(); }));
    links->setCurrentRow(InputPages::Genetics);
    Find<QCheckBox>(project, "chkGenMgtImportStudbookFile")->click();
    QVERIFY(WalkModal(walk, [&] { Find<QPushButton>(project, "cmdBrowseGenMgtImportStudbookFile")->click(); }));
    tabs->setCurrentIndex(1);
    QVERIFY(WalkModal(walk, [&] { Find<QPushButton>(project, "cmdSpecialOptions")->click(); }));
    tabs->setCurrentIndex(3);
    QVERIFY(WalkModal(walk, [&] { Find<QPushButton>(project, "cmdSpecify")->click(); }));
    // The help window, with a search that finds nothing.
    Find<QAction>(&frame, "mniContents")->trigger();
    auto* help = Find<frmHelp>(&frame, "frmHelp");
    for (const char* view : {"trvContents", "lstIndex", "lstSearch"}) walk.content.insert(Find<QWidget>(help, view));
    Find<QLineEdit>(help, "txtSearch")->setText("zebra");
    Find<QPushButton>(help, "cmdSearch")->click();
    auto* helpTabs = Find<QTabWidget>(help, "tabHelp");
    for (int tab = 0; tab < helpTabs->count(); ++tab) {
      helpTabs->setCurrentIndex(tab);
      walk.tree(help);
    }
    help->close();
    std::unique_ptr<QMenu> standardMenu(Find<QLineEdit>(project, "txtProjectTitle")->createStandardContextMenu());
    walk.actions(standardMenu->actions(), "text box context menu");

    const EnglishJudge judge(t.strings, static_cast<tamsic::Language>(language),
                             NamesOf(project->state(), functionWords));
    QSet<QString> english;
    for (const Seen& seen : walk.seen)
      if (const QString why = judge.englishIn(seen.text); !why.isEmpty() && !english.contains(seen.text)) {
        english << seen.text;
        qWarning().noquote() << seen.where + ": \"" + seen.text + "\" (" + why + ")";
      }
    QVERIFY2(walk.seen.size() > 1000, qPrintable(QString::number(walk.seen.size())));
    QVERIFY2(english.isEmpty(), qPrintable(QString::number(english.size()) + " English texts"));
    QDir::setCurrent(before);
  }
};

QTEST_MAIN(LanguageWalkTest)
#include "LanguageWalkTest.moc"
