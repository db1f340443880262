// Not a test: draws every input page of a project into PNG files, for
// looking at them under xvfb-run. Usage: PageScreens PROJECT.tpj OUTDIR LANGUAGE(1 English, 3 German)
#include <QApplication>
#include <QVBoxLayout>

#include "PagesHarness.h"
#include "files/ProjectFile.h"
#include "pages/ui/frmNewScenario.h"
#include "pages/ui/frmScenarios.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc != 4) return 2;
  pagestest::Harness h(static_cast<tamsic::Language>(std::atoi(argv[3])));
  tamsic::ProjectDocument project = tamsic::LoadProject(argv[1], "9.99", h.messages);
  h.scenarios = project.scenarios;
  h.pages->reload();
  QWidget window;
  auto* column = new QVBoxLayout(&window);
  column->addWidget(h.bar.get());
  column->addWidget(h.pages.get());
  h.bar->UpdateScenarioSelector();
  window.resize(1000, 700);
  window.show();
  QTest::qWait(200);
  for (int p = 0; p < InputPages::kPageCount; ++p) {
    h.pages->showPage(p);
    QTest::qWait(50);
    window.grab().save(QString("%1/page%2.png").arg(argv[2]).arg(p, 2, 10, QChar('0')));
  }
  frmNewScenario add(h.context, h.scenarios, 1);
  add.show();
  QTest::qWait(50);
  add.grab().save(QString("%1/dialog-new.png").arg(argv[2]));
  frmScenarios order(h.context, h.scenarios, 1);
  order.show();
  QTest::qWait(50);
  order.grab().save(QString("%1/dialog-order.png").arg(argv[2]));
  h.pages.release();  // owned by the window now
  h.bar.release();
  return 0;
}
