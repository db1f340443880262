#include "pages/ui/frmProject.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "files/TextCodec.h"

namespace {

// Each page's title number and the number of the hint on its link, in the
// order of the links.
struct PageLink {
  int title;
  int hint;
};
constexpr PageLink kPageLinks[frmProject::kPageCount] = {
    {0, 1301},    {100, 1302},  {200, 1346},  {300, 1303},  {400, 1304},
    {500, 1305},  {600, 1306},  {700, 1307},  {800, 1308},  {900, 1309},
    {1000, 1310}, {1100, 1311}, {1200, 1312}, {1300, 1345}};

constexpr int kUserNamePrompt = 1713;

QString FromFile(const std::string& text) {
  return QString::fromStdString(tamsic::Cp1252ToUtf8(text));
}

std::string ToFile(const QString& text) { return tamsic::Utf8ToCp1252(text.toStdString()); }

}  // namespace

frmProject::frmProject(Program& program, tamsic::ProjectState state, QWidget* parent)
    : QWidget(parent), program_(program), state_(std::move(state)) {
  setObjectName("frmProject");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(buildHeader());
  layout->addWidget(buildPageArea(), 1);
  fillScenarioSelector();
  wireSignals();
  showScenario(1);
  refreshCaption();
}

QWidget* frmProject::buildHeader() {
  auto* header = new QWidget(this);
  auto* row = new QHBoxLayout(header);
  row->setContentsMargins(0, 0, 0, 0);
  txtProjectTitle_ = new QLineEdit(FromFile(state_.document.title), header);
  txtProjectTitle_->setObjectName("txtProjectTitle");
  txtProjectTitle_->setToolTip(text(1425));
  cboScenario_ = new QComboBox(header);
  cboScenario_->setObjectName("cboScenario");
  cboScenario_->setToolTip(text(1424));
  cboScenario_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  cmdPrevScene_ = new QToolButton(header);
  cmdPrevScene_->setObjectName("cmdPrevScene");
  cmdPrevScene_->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
  cmdPrevScene_->setToolTip(text(1416));
  cmdNextScene_ = new QToolButton(header);
  cmdNextScene_->setObjectName("cmdNextScene");
  cmdNextScene_->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
  cmdNextScene_->setToolTip(text(1417));
  row->addWidget(new QLabel(text(1414), header));
  row->addWidget(txtProjectTitle_, 2);
  row->addSpacing(12);
  row->addWidget(new QLabel(text(1415), header));
  row->addWidget(cmdPrevScene_);
  row->addWidget(cboScenario_, 1);
  row->addWidget(cmdNextScene_);
  return header;
}

QWidget* frmProject::buildPageArea() {
  auto* area = new QWidget(this);
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(0, 0, 0, 0);
  hypInput_ = new QListWidget(area);
  hypInput_->setObjectName("hypInput");
  pages_ = new QStackedWidget(area);
  for (const PageLink& link : kPageLinks) {
    auto* item = new QListWidgetItem(text(link.title), hypInput_);
    item->setToolTip(text(link.hint));
    auto* page = new QLabel(pages_);
    page->setAlignment(Qt::AlignCenter);
    page->setWordWrap(true);
    page->setFrameShape(QFrame::StyledPanel);
    pages_->addWidget(page);
  }
  hypInput_->setFixedWidth(hypInput_->sizeHintForColumn(0) + 2 * hypInput_->frameWidth() + 8);
  hypInput_->setCurrentRow(0);
  row->addWidget(hypInput_);
  row->addWidget(pages_, 1);
  return area;
}

void frmProject::wireSignals() {
  connect(txtProjectTitle_, &QLineEdit::textEdited, this, &frmProject::titleEdited);
  connect(hypInput_, &QListWidget::currentRowChanged, pages_, &QStackedWidget::setCurrentIndex);
  connect(cboScenario_, &QComboBox::currentIndexChanged, this,
          [this](int index) { showScenario(static_cast<std::size_t>(index) + 1); });
  connect(cmdPrevScene_, &QToolButton::clicked, this,
          [this] { showScenario(currentScenario() - 1); });
  connect(cmdNextScene_, &QToolButton::clicked, this,
          [this] { showScenario(currentScenario() + 1); });
}

void frmProject::fillScenarioSelector() {
  const auto& scenarios = state_.document.scenarios;
  for (std::size_t n = 1; n <= scenarios.Count(); ++n)
    cboScenario_->addItem(FromFile(scenarios.Item(n).Text(tamsic::F("txtSceneName"))));
}

std::size_t frmProject::currentScenario() const {
  return static_cast<std::size_t>(cboScenario_->currentIndex() + 1);
}

void frmProject::showScenario(std::size_t number) {
  const std::size_t count = state_.document.scenarios.Count();
  if (number < 1 || number > count) return;
  cboScenario_->setCurrentIndex(static_cast<int>(number) - 1);
  cmdPrevScene_->setEnabled(number > 1);
  cmdNextScene_->setEnabled(number < count);
  refreshPages();
}

void frmProject::refreshPages() {
  // Until the input pages arrive, each page shows the scenario's essentials.
  const tamsic::clsScenario& scenario = state_.document.scenarios.Item(currentScenario());
  QString summary;
  for (const auto& [caption, field] :
       {std::pair{8, tamsic::F("txtSceneName")}, std::pair{9, tamsic::F("txtNumIter")},
        std::pair{10, tamsic::F("txtNumYear")}, std::pair{15, tamsic::F("txtNumPop")}})
    summary += QStringLiteral("<tr><td>%1</td><td><b>%2</b></td></tr>")
                   .arg(text(caption).toHtmlEscaped(),
                        FromFile(scenario.Text(field)).toHtmlEscaped());
  for (int page = 0; page < kPageCount; ++page)
    static_cast<QLabel*>(pages_->widget(page))
        ->setText(QStringLiteral("<h2>%1</h2><table align='center' cellspacing='6'>%2</table>")
                      .arg(text(kPageLinks[page].title).toHtmlEscaped(), summary));
}

void frmProject::refreshCaption() {
  setWindowTitle(QString::fromStdString(tamsic::ProjectCaption(state_, program_.strings)));
}

void frmProject::titleEdited(const QString& title) {
  state_.document.title = ToFile(title);
  state_.MarkChanged();
  refreshCaption();
}

bool frmProject::save() {
  return afterSave(tamsic::FunctionSave(state_, program_.messages, program_.saveDialog));
}

bool frmProject::saveAs() {
  return afterSave(tamsic::FunctionSaveAs(state_, program_.messages, program_.saveDialog));
}

bool frmProject::afterSave(tamsic::SaveResult result) {
  // Save As may have taken the file's name as the title.
  txtProjectTitle_->setText(FromFile(state_.document.title));
  refreshCaption();
  if (result != tamsic::SaveResult::Saved) return false;
  emit saved(QString::fromStdString(state_.FullPath()), FromFile(state_.document.title));
  return true;
}

void frmProject::closeEvent(QCloseEvent* event) {
  if (tamsic::MayCloseProject(state_, program_.messages, program_.saveDialog))
    event->accept();
  else
    event->ignore();
  refreshCaption();
}

void frmProject::addUserName() {
  bool ok = false;
  const QString name =
      QInputDialog::getText(this, windowTitle(), text(kUserNamePrompt), QLineEdit::Normal, {}, &ok)
          .trimmed();
  if (!ok || name.isEmpty()) return;
  state_.document.users.push_back(ToFile(name));
  state_.MarkChanged();
}

void frmProject::editUserName() {
  const int index = chooseUserName();
  if (index < 0) return;
  std::string& user = state_.document.users[static_cast<std::size_t>(index)];
  bool ok = false;
  const QString name = QInputDialog::getText(this, windowTitle(), text(kUserNamePrompt),
                                             QLineEdit::Normal, FromFile(user), &ok)
                           .trimmed();
  if (!ok || name.isEmpty()) return;
  user = ToFile(name);
  state_.MarkChanged();
}

void frmProject::removeUserName() {
  const int index = chooseUserName();
  if (index < 0) return;
  auto& users = state_.document.users;
  users.erase(users.begin() + index);
  state_.MarkChanged();
}

int frmProject::chooseUserName() {
  const auto& users = state_.document.users;
  if (users.empty()) {
    program_.messages.show(program_.messages.text(9119), tamsic::msg::kWarning,
                           tamsic::MsgIcon::Information);
    return -1;
  }
  QStringList names;
  for (const std::string& user : users) names << FromFile(user);
  bool ok = false;
  const QString chosen =
      QInputDialog::getItem(this, windowTitle(), text(1703), names, 0, false, &ok);
  return ok ? static_cast<int>(names.indexOf(chosen)) : -1;
}

QString frmProject::text(int number) const {
  return QString::fromStdString(program_.strings.text(number));
}
