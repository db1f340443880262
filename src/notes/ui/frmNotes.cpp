#include "notes/ui/frmNotes.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "files/TextCodec.h"
#include "notes/NoteCoding.h"
#include "notes/ui/FormatBar.h"
#include "notes/ui/NoteText.h"
#include "notes/ui/Printing.h"
#include "pages/ui/UpdateGuard.h"
#include "pages/ui/frmProject.h"

namespace {
constexpr int kTitle = 7000;
constexpr int kScenario = 7001;
constexpr int kSection = 7002;
constexpr int kSave = 7003;
constexpr int kPrint = 7004;
constexpr int kClose = 7005;
constexpr int kHint = 7006;
constexpr int kNoteToPrint = 9101;
constexpr int kCannotSave = 9102;
constexpr int kCannotLoad = 9104;
}  // namespace

frmNotes::frmNotes(Program& program, QWidget* parent) : QDockWidget(parent), program_(program) {
  setObjectName("frmNotes");
  setWindowTitle(text(kTitle));
  auto* body = new QWidget(this);
  lblScenario_ = new QLabel(body);
  lblScenario_->setObjectName("lblScenario");
  lblSection_ = new QLabel(body);
  lblSection_->setObjectName("lblSection");
  lblSection_->setWordWrap(true);
  txtNotes_ = new NoteEdit(body);
  txtNotes_->setObjectName("txtNotes");
  txtNotes_->setToolTip(text(kHint));
  auto* where = new QFormLayout;
  where->addRow(text(kScenario), lblScenario_);
  where->addRow(text(kSection), lblSection_);
  auto* column = new QVBoxLayout(body);
  column->addLayout(where);
  column->addWidget(new FormatBar(*txtNotes_, [this](int number) { return text(number); }, body));
  column->addWidget(txtNotes_, 1);
  column->addWidget(buildButtons(body));
  setWidget(body);
  setFocusProxy(txtNotes_);
  connect(txtNotes_->document(), &QTextDocument::contentsChanged, this, &frmNotes::store);
  follow(nullptr);
}

QWidget* frmNotes::buildButtons(QWidget* parent) {
  auto* row = new QWidget(parent);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  const auto button = [row, line, this](const char* name, int caption) {
    auto* pressed = new QPushButton(text(caption), row);
    pressed->setObjectName(name);
    line->addWidget(pressed);
    return pressed;
  };
  connect(button("cmdSave", kSave), &QPushButton::clicked, this, &frmNotes::save);
  connect(button("cmdPrint", kPrint), &QPushButton::clicked, this, &frmNotes::print);
  line->addStretch(1);
  connect(button("cmdClose", kClose), &QPushButton::clicked, this, &QDockWidget::close);
  return row;
}

QTextDocument* frmNotes::document() const { return txtNotes_->document(); }

void frmNotes::follow(frmProject* project) {
  if (project == project_ && project != nullptr) return;
  disconnect(following_);
  disconnect(ending_);
  project_ = project;
  if (project != nullptr) {
    following_ = connect(project, &frmProject::inputShown, this, &frmNotes::showNote);
    ending_ = connect(project, &QObject::destroyed, this, [this] { follow(nullptr); });
  }
  showNote();
}

void frmNotes::showNote() {
  const UpdateGuard guard(updating_);
  txtNotes_->setEnabled(project_ != nullptr);
  if (project_ == nullptr) {
    lblScenario_->clear();
    lblSection_->clear();
    txtNotes_->clear();
    txtNotes_->setPlaceholderText(text(kCannotLoad));
    return;
  }
  scenario_ = project_->currentScenario();
  page_ = project_->currentPage();
  const tamsic::clsScenario& record = project_->state().document.scenarios.Item(scenario_);
  lblScenario_->setText(QString::fromStdString(tamsic::Cp1252ToUtf8(record.Text(tamsic::F("txtSceneName")))));
  lblSection_->setText(project_->pageTitle(page_));
  txtNotes_->setPlaceholderText(text(kHint));
  const std::string note = tamsic::DecodeNote(tamsic::NoteCell(record, static_cast<std::size_t>(page_)));
  ShowNote(*txtNotes_->document(), QString::fromStdString(note));
  // Typing on another page's note cannot be taken back into this one.
  txtNotes_->document()->clearUndoRedoStacks();
}

void frmNotes::store() {
  if (updating_ || project_ == nullptr) return;
  project_->setNoteCell(scenario_, page_, tamsic::EncodeNote(NoteHtml(*txtNotes_->document()).toStdString()));
}

void frmNotes::save() {
  if (project_ == nullptr) {
    program_.messages.show(program_.messages.text(kCannotSave), tamsic::msg::kWarning, tamsic::MsgIcon::Exclamation);
    return;
  }
  project_->save();
}

void frmNotes::print() {
  if (project_ == nullptr || txtNotes_->document()->isEmpty()) {
    program_.messages.show(program_.messages.text(kNoteToPrint), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Information);
    return;
  }
  const QString title = windowTitle() + " - " + lblScenario_->text() + " - " + lblSection_->text();
  PrintWithDialog(this, Printable::Text(title, txtNotes_->document()), program_.messages);
}

QString frmNotes::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
