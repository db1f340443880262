// What the values on the pages switch on and off, grids re-shaped by their
// counts, the page links, and the hints of the focused control or cell.
#include <QAbstractButton>
#include <QSignalSpy>

#include "PagesHarness.h"

class PageEnablingTest : public QObject {
  Q_OBJECT
 private slots:
  void rules_data();
  void rules();
  void stateVariableCounts();
  void pageLinksAndHints();
};

// A step is "click NAME" or "type NAME VALUE"; the control must then be enabled or not.
void PageEnablingTest::rules_data() {
  QTest::addColumn<QStringList>("steps");
  QTest::addColumn<QString>("control");
  QTest::addColumn<bool>("enabled");
  QTest::newRow("depression off") << QStringList{"click chkDepress"} << "txtPercentLethal" << false;
  QTest::newRow("critical size unused") << QStringList{} << "txtExtinctN" << false;
  QTest::newRow("critical size used") << QStringList{"click optExtinctDef_1"} << "txtExtinctN" << true;
  QTest::newRow("hermaphrodites: no male age") << QStringList{"click optMPHLQ_2"} << "txtAgeReproM" << false;
  QTest::newRow("hermaphrodites: no sex ratio") << QStringList{"click optMPHLQ_2"} << "txtSexRatio" << false;
  QTest::newRow("monogamy again") << QStringList{"click optMPHLQ_2", "click optMPHLQ_0"} << "txtSexRatio" << true;
  QTest::newRow("exact distribution: no mean") << QStringList{} << "gridRepRates2" << false;
  QTest::newRow("normal distribution") << QStringList{"click optUseMean_0"} << "gridRepRates2" << true;
  QTest::newRow("stable ages: no ages") << QStringList{} << "gridInitPopMale" << false;
  QTest::newRow("given ages") << QStringList{"click optStartWith_1"} << "gridInitPopFemale" << true;
  QTest::newRow("studbook") << QStringList{"click chkGenMgtImportStudbookFile"}
                            << "valtxtGenMgtImportStudbookFile" << true;
  QTest::newRow("allele file") << QStringList{"click chkGenMgtAlleleFreqs"} << "cmdBrowseGenMgtAlleleFreqs" << true;
  QTest::newRow("kinship on") << QStringList{"click chkGenMgtPairMeanKinship"} << "SSOptGenMgtPairMK_0" << true;
  QTest::newRow("matings limited") << QStringList{"click chkGenMgtPreventMatingsF"}
                                   << "valtxtGenMgtNumTimesTryFindMate" << true;
  QTest::newRow("one population: no EV correlation") << QStringList{} << "txtEV" << false;
  QTest::newRow("two populations") << QStringList{"type txtNumPop 2"} << "txtEV" << true;
  QTest::newRow("copy between two") << QStringList{"type txtNumPop 2"} << "cboPopulationPicker" << true;
  QTest::newRow("global variables") << QStringList{"type txtNumGlobalVars 2"} << "gridGlobalVars" << true;
}

void PageEnablingTest::rules() {
  QFETCH(QStringList, steps);
  QFETCH(QString, control);
  QFETCH(bool, enabled);
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  for (const QString& step : steps) {
    const QStringList words = step.split(' ');
    if (words[0] == "click") {
      auto* button = h.find<QAbstractButton>(words[1].toUtf8().constData());
      h.showPageOf(button);
      QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));  // on the box, not past its text
    } else {
      h.type(words[1].toUtf8().constData(), words[2]);
    }
  }
  auto* widget = h.find<QWidget>(control.toUtf8().constData());
  QCOMPARE(widget->isEnabled(), enabled);
  if (auto* view = qobject_cast<GridView*>(widget)) {
    const QColor paint = view->grid()->indexAt(1, 1).data(Qt::BackgroundRole).value<QBrush>().color();
    QCOMPARE(paint, enabled ? QColor(0xFFFFFF) : QColor(0xE0E0E0));
  }
  QCOMPARE(h.undo.count(), static_cast<int>(steps.size()));
  // A sex ratio that is switched off is stored as 0.
  if (control == "txtSexRatio" && !enabled) QCOMPARE(h.record().Text(tamsic::F("txtSexRatio")), std::string("0"));
}

// Each count names the grid's variable columns; no variables leave the grid its fixed columns.
void PageEnablingTest::stateVariableCounts() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  const struct { const char *box, *grid; QString prefix; int firstVariableColumn; } counts[] = {
      {"txtNumPopStateVars", "gridPopLabels", "PS", 2},
      {"txtNumGlobalVars", "gridGlobalVars", "GS", 1},
      {"txtNumIndividualStateParams", "gridIndividualStateParams", "IS", 1}};
  for (const auto& count : counts) {
    h.type(count.box, "3");
    GridModel* model = h.grid(count.grid)->grid();
    QCOMPARE(model->columnCount(), count.firstVariableColumn + 2);
    for (int v = 0; v < 3; ++v)
      QCOMPARE(model->headerData(count.firstVariableColumn - 1 + v, Qt::Horizontal, Qt::DisplayRole).toString(),
               count.prefix + QString::number(v + 1));
    h.type(count.box, "0");
    QCOMPARE(h.record().GetGrid(*tamsic::FieldByMember(count.grid)).cols(), std::size_t{2});
    if (count.firstVariableColumn == 1) QVERIFY(!h.grid(count.grid)->isEnabled());
  }
}

// The page links follow the counts; the hint follows the focused control or cell.
void PageEnablingTest::pageLinksAndHints() {
  pagestest::Harness h;
  QVERIFY(QTest::qWaitForWindowActive(h.pages.get()));
  QSignalSpy changed(h.pages.get(), &InputPages::availabilityChanged);
  QVERIFY(!h.pages->pageAvailable(InputPages::Dispersal));
  QVERIFY(h.pages->pageAvailable(InputPages::Catastrophes));
  h.type("txtNumPop", "2");
  QVERIFY(h.pages->pageAvailable(InputPages::Dispersal));
  h.type("txtNumCatast", "0");
  QVERIFY(!h.pages->pageAvailable(InputPages::Catastrophes));
  QVERIFY(changed.count() >= 2);
  QCOMPARE(h.pages->linkHint(InputPages::Dispersal), QString::fromStdString(h.strings.text(1303)));

  h.pages->showPage(InputPages::Settings);
  QSignalSpy hints(h.pages.get(), &InputPages::hintChanged);
  QLineEdit* years = h.find<QLineEdit>("txtNumYear");
  years->setFocus();
  QTRY_VERIFY(!hints.isEmpty());
  QCOMPARE(hints.last().first().toString(), QString::fromStdString(h.strings.text(3)));

  GridView* mortality = h.grid("gridMortFemales");
  h.showPageOf(mortality);
  mortality->setFocus();
  mortality->setCurrentIndex(mortality->grid()->indexAt(1, 2));
  QCOMPARE(hints.last().first().toString(), QString::fromStdString(h.strings.text(606)));
  mortality->setCurrentIndex(mortality->grid()->indexAt(1, 3));
  QCOMPARE(hints.last().first().toString(), QString::fromStdString(h.strings.text(604)));
}

QTEST_MAIN(PageEnablingTest)
#include "PageEnablingTest.moc"
