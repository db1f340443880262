// Every input page reads fully in a 1024x700 frame, alone and with two
// projects side by side, in each language: no control squeezed below the
// size its text needs, none cut by its container (a page may scroll as a
// whole), no grid heading cut.
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QScrollArea>
#include <QTabBar>

#include "GuiTestSupport.h"
#include "app/ui/WindowArrangement.h"
#include "app/ui/mdiMain.h"
#include "pages/ui/FlowLayout.h"
#include "pages/ui/GridView.h"
#include "pages/ui/InputPages.h"
#include "pages/ui/frmProject.h"

using namespace guitest;

namespace {

QString Name(const QWidget* widget) {
  QString name = widget->objectName();
  if (const auto* label = qobject_cast<const QLabel*>(widget)) name += " \"" + label->text() + "\"";
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) name += " \"" + button->text() + "\"";
  if (const auto* box = qobject_cast<const QGroupBox*>(widget)) name += " \"" + box->title() + "\"";
  return name.isEmpty() ? widget->metaObject()->className() : name;
}

bool Squeezed(const QWidget* widget) {
  // The tab bar's own scroll arrows are as small as the style makes them.
  if (qobject_cast<const QTabBar*>(widget->parentWidget())) return false;
  const auto* label = qobject_cast<const QLabel*>(widget);
  if (label && (label->wordWrap() || label->text().isEmpty())) return false;
  if (!label && !qobject_cast<const QAbstractButton*>(widget) && !qobject_cast<const QComboBox*>(widget) &&
      !qobject_cast<const QGroupBox*>(widget))
    return false;
  const QSize needed = widget->minimumSizeHint();
  return widget->width() < needed.width() || widget->height() < needed.height();
}

// Cut by a container on the way up; what lies inside a scrolling view is not.
bool Cut(const QWidget* widget, const QWidget* root) {
  for (const QWidget* up = widget->parentWidget(); up && up != root; up = up->parentWidget()) {
    if (qobject_cast<const QAbstractScrollArea*>(up->parentWidget())) return false;
    if (!up->rect().contains(widget->geometry().translated(widget->parentWidget()->mapTo(up, QPoint())))) return true;
  }
  return false;
}

QStringList CutHeadings(const GridView* view) {
  QStringList cut;
  const QHeaderView* header = view->horizontalHeader();
  const int margin = header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
  // A selected column's heading is bold.
  QFont bold = header->font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  for (int c = 0; c < header->count(); ++c) {
    const QString heading = view->model()->headerData(c, Qt::Horizontal).toString();
    const QRect room(0, 0, header->sectionSize(c) - 2 * margin, header->height() - 2 * margin);
    const QRect needed = metrics.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, heading);
    if (needed.width() > room.width() || needed.height() > room.height()) cut << heading;
  }
  const QHeaderView* rows = view->verticalHeader();
  for (int r = 0; r < rows->count(); ++r) {
    const QString heading = view->model()->headerData(r, Qt::Vertical).toString();
    if (metrics.horizontalAdvance(heading) > rows->width() - 2 * margin) cut << heading;
  }
  return cut;
}

QStringList Unreadable(frmProject* project) {
  QStringList found;
  auto* pages = project->findChild<InputPages*>();
  for (int page = 0; page < InputPages::kPageCount; ++page) {
    if (!pages->pageAvailable(page)) continue;
    pages->showPage(page);
    // Nested layouts settle in turns.
    for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
    const QString where = pages->pageTitle(page) + ": ";
    for (const QWidget* widget : project->findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      if (Squeezed(widget))
        found << where + "squeezed " + Name(widget) + QString(" %1x%2 < %3x%4").arg(widget->width()).arg(widget->height())
                   .arg(widget->minimumSizeHint().width()).arg(widget->minimumSizeHint().height());
      else if (Cut(widget, project)) found << where + "cut " + Name(widget) + " in " + Name(widget->parentWidget()->parentWidget());
      if (const auto* view = qobject_cast<const GridView*>(widget))
        for (const QString& heading : CutHeadings(view)) found << where + Name(view) + " heading \"" + heading + "\"";
    }
  }
  found.removeDuplicates();
  return found;
}

}  // namespace

class LayoutFitTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { ClearSettings(); }

  // A row wraps only when it must: at the width it asks for it takes one line.
  void aFlowWrapsOnlyWhenItMust() {
    QWidget row;
    auto* flow = new FlowLayout(&row, 12);
    for (int width : {341, 309}) {
      auto* part = new QWidget(&row);
      part->setFixedSize(width, 23);
      flow->addWidget(part);
    }
    QCOMPARE(flow->sizeHint(), QSize(662, 23));
    QCOMPARE(flow->heightForWidth(662), 23);
    QCOMPARE(flow->heightForWidth(661), 23 + 12 + 23);
    QCOMPARE(flow->heightForWidth(200), 23 + 12 + 23);
  }

  void everyPageReadsFully_data() {
    QTest::addColumn<int>("language");
    QTest::newRow("English") << 1;
    QTest::newRow("Spanish") << 2;
    QTest::newRow("German") << 3;
    QTest::newRow("Portuguese") << 0;
  }

  void everyPageReadsFully() {
    QFETCH(int, language);
    QTemporaryDir folder;
    for (const char* name : {"Koalas.tpj", "Gorillas.tpj"})
      QVERIFY(QFile::copy(Example(name), folder.filePath(name)));
    TestProgram t;
    t.program.setLanguage(language);
    mdiMain frame(t.program);
    frame.resize(1024, 700);
    frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    frmProject* koalas = frame.openProject(folder.filePath("Koalas.tpj"));
    QVERIFY(koalas);
    QCoreApplication::processEvents();
    const QStringList alone = Unreadable(koalas);
    QVERIFY2(alone.isEmpty(), qPrintable(alone.join("\n")));

    frmProject* gorillas = frame.openProject(folder.filePath("Gorillas.tpj"));
    TileVertically(*frame.mdiArea());
    QCoreApplication::processEvents();
    const QStringList tiled = Unreadable(koalas) + Unreadable(gorillas);
    QVERIFY2(tiled.isEmpty(), qPrintable(tiled.join("\n")));
  }
};

QTEST_MAIN(LayoutFitTest)
#include "LayoutFitTest.moc"
