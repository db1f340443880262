#include "app/ui/frmHelp.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <set>

#include "app/ui/Program.h"

namespace {

constexpr int kTarget = Qt::UserRole;
QString Q(const std::string& text) { return QString::fromStdString(text); }

QString FileOf(const QString& target) { return target.section('#', 0, 0); }

}  // namespace

frmHelp::frmHelp(Program& program, const tamsic::HelpManual& manual, QWidget* parent)
    : QWidget(parent, Qt::Window), program_(program), manual_(manual), index_(tamsic::BuildIndex(manual)) {
  setObjectName("frmHelp");
  setWindowTitle(text(1600));
  txtTopic_ = new QTextBrowser(this);
  txtTopic_->setObjectName("txtTopic");
  txtTopic_->setToolTip(text(1621));
  // Links are followed here, and only to pages of the manual.
  txtTopic_->setOpenLinks(false);
  tabHelp_ = new QTabWidget(this);
  tabHelp_->setObjectName("tabHelp");
  tabHelp_->addTab(buildContents(), text(1601));
  tabHelp_->addTab(buildIndex(), text(1602));
  tabHelp_->addTab(buildSearch(), text(1603));
  auto* split = new QSplitter(this);
  split->addWidget(tabHelp_);
  split->addWidget(txtTopic_);
  split->setStretchFactor(1, 1);
  split->setSizes({280, 720});
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(buildButtons());
  layout->addWidget(split, 1);
  wireSignals();
  fillIndex({});
  const QScreen* screen = QGuiApplication::primaryScreen();
  resize(screen ? QSize(1000, 700).boundedTo(screen->availableGeometry().size() * 9 / 10) : QSize(1000, 700));
}

QWidget* frmHelp::buildContents() {
  trvContents_ = new QTreeWidget(this);
  trvContents_->setObjectName("trvContents");
  trvContents_->setToolTip(text(1611));
  trvContents_->setHeaderHidden(true);
  std::vector<QTreeWidgetItem*> parents;  // the last entry of each level
  for (const tamsic::ContentsEntry& entry : manual_.contents()) {
    const std::size_t depth = std::min(static_cast<std::size_t>(entry.level - 1), parents.size());
    parents.resize(depth);
    auto* item = depth == 0 ? new QTreeWidgetItem(trvContents_) : new QTreeWidgetItem(parents.back());
    item->setText(0, Q(entry.title));
    item->setData(0, kTarget, Q(entry.target));
    parents.push_back(item);
  }
  trvContents_->expandToDepth(0);
  return trvContents_;
}

QWidget* frmHelp::buildIndex() {
  auto* page = new QWidget(this);
  txtIndex_ = new QLineEdit(page);
  txtIndex_->setObjectName("txtIndex");
  txtIndex_->setToolTip(text(1612));
  lstIndex_ = new QListWidget(page);
  lstIndex_->setObjectName("lstIndex");
  lstIndex_->setToolTip(text(1613));
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(new QLabel(text(1608), page));
  layout->addWidget(txtIndex_);
  layout->addWidget(lstIndex_, 1);
  return page;
}

QWidget* frmHelp::buildSearch() {
  auto* page = new QWidget(this);
  txtSearch_ = new QLineEdit(page);
  txtSearch_->setObjectName("txtSearch");
  txtSearch_->setToolTip(text(1614));
  cmdSearch_ = new QPushButton(text(1603), page);
  cmdSearch_->setObjectName("cmdSearch");
  lstSearch_ = new QListWidget(page);
  lstSearch_->setObjectName("lstSearch");
  lstSearch_->setToolTip(text(1615));
  lblSearch_ = new QLabel(page);
  lblSearch_->setObjectName("lblSearch");
  auto* query = new QHBoxLayout;
  query->addWidget(txtSearch_, 1);
  query->addWidget(cmdSearch_);
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(new QLabel(text(1609), page));
  layout->addLayout(query);
  layout->addWidget(lblSearch_);
  layout->addWidget(lstSearch_, 1);
  return page;
}

QWidget* frmHelp::buildButtons() {
  auto* row = new QWidget(this);
  const auto button = [row, this](const char* name, int caption, int hint) {
    auto* command = new QPushButton(text(caption), row);
    command->setObjectName(name);
    if (hint != 0) command->setToolTip(text(hint));
    command->setAutoDefault(false);
    return command;
  };
  cmdBack_ = button("cmdBack", 1604, 1616);
  cmdForward_ = button("cmdForward", 1605, 1617);
  cmdPrint_ = button("cmdPrint", 1606, 1620);
  cmdClose_ = button("cmdClose", 1607, 0);
  cmdBack_->setEnabled(false);
  cmdForward_->setEnabled(false);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  for (QPushButton* command : {cmdBack_, cmdForward_, cmdPrint_}) layout->addWidget(command);
  layout->addStretch(1);
  layout->addWidget(cmdClose_);
  return row;
}

void frmHelp::wireSignals() {
  connect(trvContents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item != nullptr) showTarget(item->data(0, kTarget).toString());
  });
  connect(txtIndex_, &QLineEdit::textChanged, this, &frmHelp::fillIndex);
  connect(txtIndex_, &QLineEdit::returnPressed, this, [this] {
    if (lstIndex_->count() > 0) showTarget(lstIndex_->item(0)->data(kTarget).toString());
  });
  const auto showItem = [this](QListWidgetItem* item) { showTarget(item->data(kTarget).toString()); };
  connect(lstIndex_, &QListWidget::itemClicked, this, showItem);
  connect(lstIndex_, &QListWidget::itemActivated, this, showItem);
  connect(txtSearch_, &QLineEdit::returnPressed, this, &frmHelp::search);
  connect(cmdSearch_, &QPushButton::clicked, this, &frmHelp::search);
  const auto showHit = [this](QListWidgetItem* item) {
    showTarget(item->data(kTarget).toString());
    // The first place the first word asked for stands.
    const std::vector<std::string> words = tamsic::SearchWords(txtSearch_->text().toStdString());
    if (!words.empty()) txtTopic_->find(Q(words.front()));
  };
  connect(lstSearch_, &QListWidget::itemClicked, this, showHit);
  connect(lstSearch_, &QListWidget::itemActivated, this, showHit);
  connect(txtTopic_, &QTextBrowser::anchorClicked, this, &frmHelp::followLink);
  connect(txtTopic_, &QTextBrowser::sourceChanged, this, &frmHelp::markContents);
  connect(txtTopic_, &QTextBrowser::backwardAvailable, cmdBack_, &QPushButton::setEnabled);
  connect(txtTopic_, &QTextBrowser::forwardAvailable, cmdForward_, &QPushButton::setEnabled);
  connect(cmdBack_, &QPushButton::clicked, txtTopic_, &QTextBrowser::backward);
  connect(cmdForward_, &QPushButton::clicked, txtTopic_, &QTextBrowser::forward);
  connect(cmdPrint_, &QPushButton::clicked, this, &frmHelp::print);
  connect(cmdClose_, &QPushButton::clicked, this, &QWidget::close);
}

void frmHelp::showTarget(const QString& target) {
  QUrl url = QUrl::fromLocalFile(QString::fromStdString((manual_.folder() / FileOf(target).toStdString()).string()));
  if (target.contains('#')) url.setFragment(target.section('#', 1));
  txtTopic_->setSource(url);
}

QString frmHelp::currentTarget() const {
  const QUrl source = txtTopic_->source();
  return source.hasFragment() ? source.fileName() + '#' + source.fragment() : source.fileName();
}

// A keyword given for several pages names the page too.
void frmHelp::fillIndex(const QString& typed) {
  std::set<std::string> repeated;
  std::string last;
  for (const tamsic::IndexEntry& entry : index_) {
    const std::string keyword = QString::fromStdString(entry.keyword).toLower().toStdString();
    if (keyword == last) repeated.insert(keyword);
    last = keyword;
  }
  lstIndex_->clear();
  const auto entries = typed.isEmpty() ? index_ : tamsic::FindInIndex(index_, typed.toStdString());
  for (const tamsic::IndexEntry& entry : entries) {
    const bool named = repeated.contains(QString::fromStdString(entry.keyword).toLower().toStdString());
    auto* item = new QListWidgetItem(named ? Q(entry.keyword) + " - " + Q(entry.title) : Q(entry.keyword), lstIndex_);
    item->setData(kTarget, Q(entry.target));
  }
}

void frmHelp::search() {
  lstSearch_->clear();
  const std::vector<tamsic::SearchHit> hits = tamsic::SearchManual(manual_, txtSearch_->text().toStdString());
  for (const tamsic::SearchHit& hit : hits) {
    auto* item = new QListWidgetItem(Q(hit.title), lstSearch_);
    item->setData(kTarget, Q(hit.file));
  }
  lblSearch_->setText(hits.empty() && !txtSearch_->text().trimmed().isEmpty() ? text(1610) : QString());
}

void frmHelp::followLink(const QUrl& link) {
  const QUrl resolved = txtTopic_->source().resolved(link);
  if (!resolved.isLocalFile()) return;
  const QString folder = QFileInfo(QString::fromStdString(manual_.folder().string())).canonicalFilePath();
  if (QFileInfo(resolved.toLocalFile()).canonicalPath() == folder) txtTopic_->setSource(resolved);
}

// The contents show where the page on show stands: its own entry, else its
// page's. The browser tells of a new page before its source() has become it.
void frmHelp::markContents(const QUrl& shown) {
  const QString target = shown.hasFragment() ? shown.fileName() + '#' + shown.fragment() : shown.fileName();
  QTreeWidgetItem* page = nullptr;
  for (QTreeWidgetItemIterator it(trvContents_); *it != nullptr; ++it) {
    const QString entry = (*it)->data(0, kTarget).toString();
    if (entry == target) {
      page = *it;
      break;
    }
    if (page == nullptr && FileOf(entry) == shown.fileName()) page = *it;
  }
  if (page == nullptr) return;
  const QSignalBlocker quiet(trvContents_);
  trvContents_->setCurrentItem(page);
}

void frmHelp::print() {
  QPrinter printer;
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  txtTopic_->print(&printer);
  if (printer.printerState() == QPrinter::Error)
    program_.messages.show(program_.messages.text(9197) + "\n\n" + currentTarget().toStdString(),
                           tamsic::msg::kError, tamsic::MsgIcon::Critical);
}

QString frmHelp::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
