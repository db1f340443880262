// The sensitivity-testing window on the Koalas example, whose scheme has
// three items and no generated scenarios yet: editing an item with a refused
// value, generating the "ST." scenarios into the project and generating them
// again, and the question before edits are thrown away.
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "GuiTestSupport.h"
#include "app/ui/mdiMain.h"
#include "engine/Engine.h"
#include "files/ProjectFile.h"
#include "model/ScenarioManagement.h"
#include "pages/ui/frmProject.h"
#include "st/STGeneration.h"
#include "st/basST.h"
#include "st/ui/frmSTDesign.h"
#include "st/ui/frmSTSetup.h"

using namespace guitest;

namespace {

void Click(QWidget& window, const char* name) { window.findChild<QPushButton*>(name)->click(); }

QTableWidget* Table(QWidget& window, const char* name) { return window.findChild<QTableWidget*>(name); }

// What the scenario at the end holds for an ST variable.
std::string LastValue(const frmProject& project, const char* name) {
  const auto& scenarios = project.state().document.scenarios;
  return tamsic::STBaselineValue(scenarios.Item(scenarios.Count()), name).value_or("?");
}

}  // namespace

class STWindowTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { ClearSettings(); }

  void aSchemeIsEditedCheckedGeneratedAndKept() {
    QTemporaryDir folder;
    const QString path = folder.filePath("Koalas.tpj");
    WriteFile(path, ReadFile(Example("Koalas.tpj")));
    TestProgram t;
    mdiMain frame(t.program);
    frmProject* project = frame.openProject(path);
    QVERIFY(frame.findChild<QAction*>("cmdST")->isEnabled());
    const std::size_t scenarios = project->state().document.scenarios.Count();
    QCOMPARE(tamsic::CountTrailingSTScenarios(project->state().document.scenarios), std::size_t{0});

    tamsic::LibraryEngine engine;
    frmSTSetup window(t.program, engine, project->state(),
                      {[project](const tamsic::STScheme& scheme) { return project->takeOverSTScheme(scheme); }, [] {}});
    window.show();
    QCOMPARE(Table(window, "gridItems")->rowCount(), 3);
    QCOMPARE(window.findChild<QLabel*>("lblStatus")->text(), QString::fromStdString(t.strings.text(8832)));

    // A new item varies the sex ratio; a value holding a "b" is refused and the cell keeps the stored one.
    Click(window, "cmdAddItem");
    QTableWidget* variables = Table(window, "gridVars");
    QCOMPARE(variables->rowCount(), 1);
    qobject_cast<QComboBox*>(variables->cellWidget(0, 0))->setCurrentText("SexRatio");
    QCOMPARE(variables->item(0, 1)->text(), QString("=B"));
    t.box.expect("You must use the '=' symbol");
    variables->item(0, 1)->setText("abc");
    QVERIFY(t.box.allShown());
    QCOMPARE(variables->item(0, 1)->text(), QString("=B"));
    variables->item(0, 1)->setText("45");
    QCOMPARE(window.scheme().Items[3].Vals[0], std::string("45"));

    // Generating puts one scenario per item at the end; the others stay as they were.
    Click(window, "cmdGenerate");
    QCOMPARE(project->state().document.scenarios.Count(), scenarios + 4);
    QCOMPARE(tamsic::CountTrailingSTScenarios(project->state().document.scenarios), std::size_t{4});
    QCOMPARE(LastValue(*project, "SexRatio"), std::string("45"));
    QVERIFY(project->state().Changed());
    QCOMPARE(window.findChild<QLabel*>("lblStatus")->text(), QString::fromStdString(t.strings.text(8804)) + "4");

    // A changed value makes the scenarios out of date; Cancel asks before dropping it, OK generates anew.
    variables->item(0, 1)->setText("=B*1.1");
    QCOMPARE(window.findChild<QLabel*>("lblStatus")->text(), QString::fromStdString(t.strings.text(8805)));
    t.box.expect(t.strings.text(8806), tamsic::MsgAnswer::No);
    Click(window, "cmdCancel");
    QVERIFY(window.isVisible());
    Click(window, "cmdOk");
    QVERIFY(!window.isVisible());
    QCOMPARE(project->state().document.scenarios.Count(), scenarios + 4);
    QVERIFY(LastValue(*project, "SexRatio").starts_with("=("));
    QCOMPARE(project->state().document.stScheme.NumItems, std::int16_t{4});
  }

  // A Latin hypercube over three suggested ranges: the suggestions skip inputs
  // that cannot take a fraction (the number of populations comes first in
  // the list), a range that is not a number is refused, and every sample
  // falls inside its range.
  void aDesignSuggestsRangesAndMakesItsItems() {
    TestProgram t;
    const tamsic::ProjectDocument koalas =
        tamsic::LoadProject(Example("Koalas.tpj").toStdString(), "9.99", t.program.messages);
    tamsic::LibraryEngine engine;
    frmSTDesign design(t.program, engine, koalas.scenarios, {1});
    design.findChild<QRadioButton*>("optLatin")->click();
    design.findChild<QSpinBox*>("txtSamples")->setValue(8);
    Click(design, "cmdAddVar");
    Click(design, "cmdAddVar");
    QTableWidget* ranges = Table(design, "gridRanges");
    QCOMPARE(ranges->rowCount(), 3);  // the dialog opens with one range
    QStringList names;
    for (int row = 0; row < 3; ++row) {
      names << qobject_cast<QComboBox*>(ranges->cellWidget(row, 0))->currentText();
      QVERIFY(!ranges->item(row, 1)->text().isEmpty());
    }
    QVERIFY(!names.contains("NumberPopulations"));
    QCOMPARE(names.removeDuplicates(), 0);

    const QString from = ranges->item(0, 1)->text();
    ranges->item(0, 1)->setText("abc");
    t.box.expect(t.strings.text(8818));
    design.accept();
    QVERIFY(t.box.allShown());
    QVERIFY(design.items().empty());

    ranges->item(0, 1)->setText(from);
    design.accept();
    QCOMPARE(design.items().size(), std::size_t{8});
    for (const tamsic::STItem& item : design.items()) {
      QCOMPARE(item.Vars.size(), std::size_t{3});
      for (int row = 0; row < 3; ++row) {
        const double value = std::stod(item.Vals[row]);
        QVERIFY(value >= ranges->item(row, 1)->text().toDouble() && value <= ranges->item(row, 2)->text().toDouble());
      }
    }
  }
};

QTEST_MAIN(STWindowTest)
#include "STWindowTest.moc"
