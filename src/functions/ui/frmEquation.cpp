#include "functions/ui/frmEquation.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/HelpTopics.h"
#include "app/ui/HelpDesk.h"
#include "app/ui/Program.h"
#include "functions/FunctionEditing.h"
#include "functions/FunctionVariables.h"
#include "functions/ui/FunctionGraphPanel.h"

namespace {

// An operator button: its caption, what it puts at the caret, and how far
// back from the end of that text the caret goes (into a function's brackets).
struct Operator {
  const char* caption;
  const char* inserted;
  int caretBack;
};

// In the order of their tooltips, 4030 onwards. The word operators get blanks
// so that "N" then "AND" does not become the unknown name "NAND".
constexpr Operator kOperators[] = {
    {"+", "+", 0},          {"-", "-", 0},           {"*", "*", 0},           {"/", "/", 0},
    {"^", "^", 0},          {"(", "(", 0},           {")", ")", 0},           {"<", "<", 0},
    {"<=", "<=", 0},        {">", ">", 0},           {">=", ">=", 0},         {"=", "=", 0},
    {"!=", "!=", 0},        {"AND", " AND ", 0},     {"OR", " OR ", 0},       {"NOT", "NOT ", 0},
    {"TRUE", "TRUE", 0},    {"FALSE", "FALSE", 0},   {"E", "E", 0},           {"Pi", "Pi", 0},
    {"SQRT", "SQRT()", 1},  {"LOG10", "LOG10()", 1}, {"LN", "LN()", 1},       {"EXP", "EXP()", 1},
    {"POW", "POW(;)", 2},   {"ABS", "ABS()", 1},     {"MIN", "MIN(;)", 2},    {"MAX", "MAX(;)", 2},
    {"MOD", "MOD(;)", 2},   {"ROUND", "ROUND()", 1}, {"FLOOR", "FLOOR()", 1}, {"CEIL", "CEIL()", 1},
    {"SIN", "SIN()", 1},    {"COS", "COS()", 1},     {"TAN", "TAN()", 1},     {"ASIN", "ASIN()", 1},
    {"ACOS", "ACOS()", 1},  {"ATAN", "ATAN()", 1},   {"RAND", "RAND", 0},     {"SRAND", "SRAND()", 1},
    {"NRAND", "NRAND", 0},  {"SNRAND", "SNRAND()", 1}, {";", ";", 0},
};
constexpr int kFirstOperatorTip = 4030;
constexpr int kOperatorColumns = 11;

const FunctionGraphPanel::Texts kGraphTexts{4006, 4007, 4008, 4005, 4010, 4017, 4023, 4011, 4012, 4013, 4014};

}  // namespace

frmEquation::frmEquation(Program& program, tamsic::Engine& engine, const QString& cellText, QWidget* parent)
    : QDialog(parent), program_(program), engine_(engine), history_(program.store) {
  setObjectName("frmEquation");
  setWindowTitle(text(4016));
  cboEQ_ = new QComboBox(this);
  cboEQ_->setObjectName("cboEQ");
  cboEQ_->setEditable(true);
  cboEQ_->setInsertPolicy(QComboBox::NoInsert);
  cboEQ_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cboEQ_->setMinimumContentsLength(40);
  for (const std::string& formula : history_.Entries()) cboEQ_->addItem(QString::fromStdString(formula));
  cboEQ_->setEditText(QString::fromStdString(tamsic::EditedFormula(cellText.toStdString())));
  lblAnswer_ = new QLabel(this);
  lblAnswer_->setObjectName("lblAnswer");
  lblAnswer_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lblAnswer_->setWordWrap(true);

  graph_ = new FunctionGraphPanel(kGraphTexts, program_.messages, engine_, this);
  graph_->formula = [this] { return cboEQ_->currentText().toStdString(); };
  auto* polish = new QPushButton(text(4004), this);
  polish->setObjectName("SSShowPolish");
  polish->setToolTip(text(4009));

  chkShowOnEquals_ = new QCheckBox(text(4003), this);
  chkShowOnEquals_->setObjectName("chkShowOnEquals");
  chkShowOnEquals_->setToolTip(text(4015));
  chkShowOnEquals_->setChecked(program_.settings.showEquationDialogOnEquals != 0);

  auto* buttons = new QDialogButtonBox(this);
  QPushButton* cmdOk = buttons->addButton(text(4019), QDialogButtonBox::AcceptRole);
  QPushButton* cmdCancel = buttons->addButton(text(4020), QDialogButtonBox::RejectRole);
  QPushButton* cmdHelp = buttons->addButton(text(4021), QDialogButtonBox::HelpRole);
  cmdOk->setObjectName("cmdOk");
  cmdCancel->setObjectName("cmdCancel");
  cmdHelp->setObjectName("cmdHelp");

  auto* formulaRow = new QHBoxLayout;
  formulaRow->addWidget(new QLabel(text(4001), this));
  formulaRow->addWidget(cboEQ_, 1);
  formulaRow->addWidget(polish);
  auto* middle = new QHBoxLayout;
  middle->addWidget(buildVariables(), 2);
  middle->addWidget(graph_, 3);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(formulaRow);
  layout->addWidget(lblAnswer_);
  layout->addWidget(buildOperators());
  layout->addLayout(middle, 1);
  layout->addWidget(chkShowOnEquals_);
  layout->addWidget(buttons);

  connect(polish, &QPushButton::clicked, this, &frmEquation::showPolish);
  connect(cboEQ_, &QComboBox::editTextChanged, this, &frmEquation::formulaEdited);
  connect(graph_, &FunctionGraphPanel::refused, this, &frmEquation::showRefusal);
  connect(graph_, &FunctionGraphPanel::graphed, this, [this] {
    lblAnswer_->clear();
    history_.Remember(cboEQ_->currentText().toStdString());
  });
  connect(chkShowOnEquals_, &QCheckBox::toggled, this, [this](bool on) {
    program_.settings.showEquationDialogOnEquals = on ? 1 : 0;
    tamsic::SaveSettings(program_.store, program_.settings);
  });
  connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    if (!cboEQ_->currentText().trimmed().isEmpty()) history_.Remember(cboEQ_->currentText().toStdString());
    accept();
  });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this,
          [this] { ShowHelpTopic(this, tamsic::help::kFunctionEditor); });

  graph_->detectVariables();
  if (!cboEQ_->currentText().isEmpty()) graph_->updateGraph();
  cboEQ_->setFocus();
}

QString frmEquation::function() const {
  return QString::fromStdString(tamsic::AcceptedFunction(cboEQ_->currentText().toStdString()));
}

std::optional<QString> frmEquation::Edit(Program& program, tamsic::Engine& engine, const QString& cellText,
                                         QWidget* parent) {
  frmEquation editor(program, engine, cellText, parent);
  if (editor.exec() != QDialog::Accepted) return std::nullopt;
  return editor.function();
}

QWidget* frmEquation::buildOperators() {
  auto* panel = new QWidget(this);
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(2);
  int index = 0;
  for (const Operator& item : kOperators) {
    auto* button = new QPushButton(item.caption, panel);
    button->setObjectName(QStringLiteral("ssOperator_%1").arg(index));
    button->setToolTip(text(kFirstOperatorTip + index));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);  // the caret stays in the formula
    const QString inserted = item.inserted;
    const int back = item.caretBack;
    connect(button, &QPushButton::clicked, this, [this, inserted, back] { insertAtCaret(inserted, back); });
    grid->addWidget(button, index / kOperatorColumns, index % kOperatorColumns);
    ++index;
  }
  return panel;
}

QWidget* frmEquation::buildVariables() {
  auto* panel = new QWidget(this);
  auto* layout = new QVBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new QLabel(text(4018), panel));
  lstVars_ = new QListWidget(panel);
  lstVars_->setObjectName("lstVars");
  lstVars_->setToolTip(text(4002));
  for (const tamsic::FunctionVariable& variable : tamsic::FunctionVariables()) {
    auto* item = new QListWidgetItem(QString::fromStdString(tamsic::ListEntry(variable)), lstVars_);
    // The longest descriptions may not fit the list's width.
    item->setToolTip(item->text());
  }
  lstVars_->setMinimumWidth(std::min(lstVars_->sizeHintForColumn(0) + 24, 400));
  layout->addWidget(lstVars_);
  connect(lstVars_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
    const auto variable = tamsic::FunctionVariables()[static_cast<std::size_t>(lstVars_->row(item))];
    insertAtCaret(QString::fromUtf8(variable.name.data(), static_cast<int>(variable.name.size())),
                  variable.name.ends_with("()") ? 1 : 0);
  });
  return panel;
}

void frmEquation::insertAtCaret(const QString& inserted, int caretBack) {
  QLineEdit* line = cboEQ_->lineEdit();
  line->insert(inserted);
  line->setCursorPosition(line->cursorPosition() - caretBack);
  line->setFocus();
}

void frmEquation::showPolish() {
  const tamsic::PolishAnswer answer = tamsic::PolishForm(cboEQ_->currentText().toStdString(), engine_,
                                                         program_.messages);
  if (answer.polish) lblAnswer_->setText(QString::fromStdString(*answer.polish));
  else if (!answer.reason.empty()) showRefusal(QString::fromStdString(answer.reason), answer.errorAt);
}

// The engine's reason under the formula, and the character it names selected
// in the formula, so that the user sees where to look.
void frmEquation::showRefusal(const QString& reason, std::optional<std::size_t> at) {
  lblAnswer_->setText(reason);
  QLineEdit* line = cboEQ_->lineEdit();
  if (at && static_cast<int>(*at) < line->text().size()) {
    line->setFocus();
    line->setSelection(static_cast<int>(*at), 1);
  }
}

void frmEquation::formulaEdited() {
  lblAnswer_->clear();
  graph_->detectVariables();
}

QString frmEquation::text(int number) const { return QString::fromStdString(program_.messages.text(number)); }
