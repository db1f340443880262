#include "app/ui/frmWelcome.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QStorageInfo>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/ExampleProjects.h"
#include "app/ui/LanguageLocale.h"
#include "app/ui/Program.h"
#include "app/ui/ThemeIcon.h"
#include "files/ProjectFile.h"
#include "files/TextCodec.h"

namespace {

enum Tab { kRecentTab, kNewTab, kOpenTab };
enum RecentColumn { kFile, kPath, kModified, kTitle, kNotes, kUsers, kRecentColumns };
constexpr int kWidestColumn = 240;
// Paths are what tells two projects of one name apart: they get the most room,
// and a longer one loses its middle, not its end.
constexpr int kWidestPath = 560;

// A damaged recent project must not interrupt the welcome with messages: its
// row simply shows no title.
class SilentBox : public tamsic::IMessageBox {
 public:
  tamsic::MsgAnswer show(const tamsic::MessageBoxRequest&) override { return tamsic::MsgAnswer::Ok; }
};

QString FromFile(const std::string& text) {
  return QString::fromStdString(tamsic::Cp1252ToUtf8(text));
}

}  // namespace

frmWelcome::frmWelcome(Program& program, QWidget* parent) : QDialog(parent), program_(program) {
  setObjectName("frmWelcome");
  setWindowTitle(text(8700));
  tabs_ = new QTabWidget(this);
  tabs_->addTab(buildRecentTab(), text(8701));
  tabs_->addTab(buildNewTab(), text(8702));
  tabs_->addTab(buildOpenTab(), text(8703));
  chkShowWelcome_ = new QCheckBox(text(8704), this);
  chkShowWelcome_->setObjectName("chkShowWelcome");
  chkShowWelcome_->setChecked(program_.settings.showWelcome != 0);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(text(8715));
  buttons->button(QDialogButtonBox::Cancel)->setText(text(8716));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmWelcome::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmWelcome::reject);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(chkShowWelcome_, 1);
  bottom->addWidget(buttons);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_);
  layout->addLayout(bottom);
  fillRecent();
  fillExamples();
  fillDrives();
  wireSignals();
  showFolder(QDir::currentPath());
  // As wide as the recent projects' columns need, within the screen.
  const int wanted = std::max(860, recentWidth_ + 60);
  const QScreen* screen = QGuiApplication::primaryScreen();
  resize(screen ? std::min(wanted, screen->availableGeometry().width() * 9 / 10) : wanted, 440);
}

QWidget* frmWelcome::buildRecentTab() {
  lstRecent_ = new QTreeWidget(this);
  lstRecent_->setObjectName("lstRecent");
  lstRecent_->setRootIsDecorated(false);
  lstRecent_->setColumnCount(kRecentColumns);
  lstRecent_->setTextElideMode(Qt::ElideMiddle);
  lstRecent_->setHeaderLabels({text(8709), text(8710), text(8711), text(8712), text(8713), text(8714)});
  return lstRecent_;
}

QWidget* frmWelcome::buildNewTab() {
  auto* page = new QWidget(this);
  lstNew_ = new QListWidget(page);
  lstNew_->setObjectName("lstNew");
  lstNew_->setViewMode(QListView::IconMode);
  lstNew_->setIconSize(QSize(64, 64));
  lstNew_->setMovement(QListView::Static);
  lstNew_->addItem(new QListWidgetItem(ThemeIcon("document-new", *style(), QStyle::SP_FileIcon), text(8706)));
  lstNew_->setCurrentRow(0);
  lstNew_->setFixedHeight(lstNew_->sizeHintForRow(0) + 2 * lstNew_->frameWidth() + 8);
  lstExamples_ = new QListWidget(page);
  lstExamples_->setObjectName("lstExamples");
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(lstNew_);
  layout->addWidget(new QLabel(text(8720), page));
  layout->addWidget(lstExamples_, 1);
  return page;
}

QWidget* frmWelcome::buildOpenTab() {
  auto* page = new QWidget(this);
  cboDrive_ = new QComboBox(page);
  cboDrive_->setObjectName("cboDrive");
  lblFolder_ = new QLabel(page);
  lblFolder_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lstFolders_ = new QListWidget(page);
  lstFolders_->setObjectName("lstFolders");
  lstFiles_ = new QListWidget(page);
  lstFiles_->setObjectName("lstFiles");
  auto* lists = new QHBoxLayout;
  auto* folders = new QVBoxLayout;
  folders->addWidget(new QLabel(text(8718), page));
  folders->addWidget(lblFolder_);
  folders->addWidget(lstFolders_);
  auto* files = new QVBoxLayout;
  files->addWidget(new QLabel(text(8719), page));
  files->addWidget(lstFiles_);
  lists->addLayout(folders);
  lists->addLayout(files);
  auto* layout = new QFormLayout(page);
  layout->addRow(text(8717), cboDrive_);
  layout->addRow(lists);
  return page;
}

void frmWelcome::wireSignals() {
  connect(lstRecent_, &QTreeWidget::itemDoubleClicked, this, &frmWelcome::accept);
  connect(lstNew_, &QListWidget::itemDoubleClicked, this, &frmWelcome::accept);
  connect(lstExamples_, &QListWidget::itemDoubleClicked, this, &frmWelcome::accept);
  // One choice in the tab: the blank project or an example.
  connect(lstNew_, &QListWidget::itemPressed, lstExamples_, [this] { lstExamples_->setCurrentRow(-1); });
  connect(lstExamples_, &QListWidget::currentRowChanged, lstNew_, [this](int row) {
    if (row >= 0) lstNew_->clearSelection();
  });
  connect(lstFiles_, &QListWidget::itemDoubleClicked, this, &frmWelcome::accept);
  connect(cboDrive_, &QComboBox::currentTextChanged, this, &frmWelcome::showFolder);
  connect(lstFolders_, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* item) { showFolder(QDir(folder_).absoluteFilePath(item->text())); });
}

void frmWelcome::fillRecent() {
  SilentBox silent;
  tamsic::Messages quiet(silent, program_.strings);
  for (const tamsic::RecentProject& entry : program_.recent.Entries()) {
    const QFileInfo file(QString::fromStdString(entry.name));
    auto* item = new QTreeWidgetItem(lstRecent_);
    item->setText(kFile, file.fileName());
    item->setText(kPath, file.absolutePath());
    item->setToolTip(kPath, file.absoluteFilePath());
    item->setData(kFile, Qt::UserRole, file.absoluteFilePath());
    item->setText(kTitle, QString::fromStdString(entry.title));
    if (!file.exists()) {
      item->setText(kModified, text(8705));
      item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
      continue;
    }
    item->setText(kModified, LanguageLocale(program_.settings.language).toString(file.lastModified(), QLocale::ShortFormat));
    try {
      const tamsic::ProjectHeader header = tamsic::GetTamsicHeader(entry.name, quiet);
      item->setText(kTitle, FromFile(header.title));
      item->setText(kNotes, FromFile(header.notes));
      item->setToolTip(kNotes, FromFile(header.notes));
      QStringList users;
      for (const std::string& user : header.users) users << FromFile(user);
      item->setText(kUsers, users.join(", "));
    } catch (const std::exception&) {
      // The list still offers the file; opening it will tell what is wrong.
    }
  }
  // Notes can be paragraphs: their column is kept narrow and the tooltip shows them whole.
  int width = 0;
  for (int column = 0; column < kRecentColumns; ++column) {
    lstRecent_->resizeColumnToContents(column);
    const int widest = column == kPath ? kWidestPath : kWidestColumn;
    lstRecent_->setColumnWidth(column, std::min(lstRecent_->columnWidth(column), widest));
    width += lstRecent_->columnWidth(column);
  }
  recentWidth_ = width;
  if (lstRecent_->topLevelItemCount() > 0) lstRecent_->setCurrentItem(lstRecent_->topLevelItem(0));
}

// Each example by its title, its notes in the tooltip.
void frmWelcome::fillExamples() {
  SilentBox silent;
  tamsic::Messages quiet(silent, program_.strings);
  for (const auto& path : tamsic::ExampleProjects(QCoreApplication::applicationDirPath().toStdString())) {
    auto* item = new QListWidgetItem(QString::fromStdString(path.stem().string()), lstExamples_);
    item->setData(Qt::UserRole, QString::fromStdString(path.string()));
    try {
      const tamsic::ProjectHeader header = tamsic::GetTamsicHeader(path.string(), quiet);
      if (!header.title.empty()) item->setText(FromFile(header.title));
      item->setToolTip(FromFile(header.notes));
    } catch (const std::exception&) {
      // Listed by its file name; starting from it will tell what is wrong.
    }
  }
}

// The drives are the mounted file systems; the one holding the current folder is chosen.
void frmWelcome::fillDrives() {
  QStringList roots{QDir::rootPath()};
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
    if (volume.isValid() && volume.isReady() && !roots.contains(volume.rootPath()))
      roots << volume.rootPath();
  cboDrive_->addItems(roots);
  cboDrive_->setCurrentText(QStorageInfo(QDir::currentPath()).rootPath());
}

void frmWelcome::showFolder(const QString& folder) {
  const QDir dir(folder);
  folder_ = dir.absolutePath();
  lblFolder_->setText(folder_);
  lstFolders_->clear();
  if (!dir.isRoot()) lstFolders_->addItem("..");
  lstFolders_->addItems(dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
  lstFiles_->clear();
  lstFiles_->addItems(dir.entryList({"*.tpj"}, QDir::Files, QDir::Name | QDir::IgnoreCase));
}

void frmWelcome::accept() {
  switch (tabs_->currentIndex()) {
    case kRecentTab: {
      const QTreeWidgetItem* item = lstRecent_->currentItem();
      if (item == nullptr || !(item->flags() & Qt::ItemIsEnabled)) return;
      path_ = item->data(kFile, Qt::UserRole).toString();
      break;
    }
    case kNewTab:
      if (const QListWidgetItem* example = lstExamples_->currentItem(); example && example->isSelected())
        template_ = example->data(Qt::UserRole).toString();
      else
        blank_ = true;
      break;
    default: {
      const QListWidgetItem* item = lstFiles_->currentItem();
      if (item == nullptr) return;
      path_ = QDir(folder_).absoluteFilePath(item->text());
    }
  }
  QDialog::accept();
}

void frmWelcome::done(int result) {
  program_.settings.showWelcome = chkShowWelcome_->isChecked() ? 1 : 0;
  tamsic::SaveSettings(program_.store, program_.settings);
  QDialog::done(result);
}

QString frmWelcome::text(int number) const {
  return QString::fromStdString(program_.strings.text(number));
}
