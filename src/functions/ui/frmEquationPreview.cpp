#include "functions/ui/frmEquationPreview.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "functions/FunctionEditing.h"
#include "functions/ui/FunctionGraphPanel.h"

namespace {

const FunctionGraphPanel::Texts kGraphTexts{1503, 1504, 1505, 1502, 1508, 1507, 1509, 1510, 4012, 4013, 4014};

}  // namespace

frmEquationPreview::frmEquationPreview(tamsic::Messages& messages, tamsic::Engine& engine, const QString& function,
                                       QWidget* parent)
    : QDialog(parent),
      messages_(messages),
      engine_(engine),
      formula_(QString::fromStdString(tamsic::EditedFormula(function.toStdString()))) {
  setObjectName("frmEquationPreview");
  setWindowTitle(text(1500));
  auto* shown = new QLineEdit(formula_, this);
  shown->setObjectName("txtFunction");
  shown->setReadOnly(true);
  shown->setMinimumWidth(shown->fontMetrics().horizontalAdvance(formula_) + 24);
  auto* polish = new QPushButton(text(1501), this);
  polish->setObjectName("SSShowPolish");
  lblAnswer_ = new QLabel(this);
  lblAnswer_->setObjectName("lblAnswer");
  lblAnswer_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lblAnswer_->setWordWrap(true);
  auto* graph = new FunctionGraphPanel(kGraphTexts, messages_, engine, this);
  graph->formula = [this] { return formula_.toStdString(); };
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* close = buttons->addButton(text(1506), QDialogButtonBox::RejectRole);
  close->setObjectName("cmdClose");

  auto* top = new QHBoxLayout;
  top->addWidget(shown, 1);
  top->addWidget(polish);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(lblAnswer_);
  layout->addWidget(graph, 1);
  layout->addWidget(buttons);

  connect(polish, &QPushButton::clicked, this, [this] {
    const tamsic::PolishAnswer answer = tamsic::PolishForm(formula_.toStdString(), engine_, messages_);
    lblAnswer_->setText(QString::fromStdString(answer.polish ? *answer.polish : answer.reason));
  });
  connect(graph, &FunctionGraphPanel::refused, lblAnswer_, [this](const QString& reason) {
    lblAnswer_->setText(reason);
  });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  graph->detectVariables();
  graph->updateGraph();
}

QString frmEquationPreview::text(int number) const { return QString::fromStdString(messages_.text(number)); }
