#pragma once
// The welcome dialog: open a recent project, start a blank one or one from an
// example project, or find a project file by drive, folder and file.
#include <QDialog>

struct Program;
class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QTabWidget;
class QTreeWidget;

class frmWelcome : public QDialog {
  Q_OBJECT
 public:
  explicit frmWelcome(Program& program, QWidget* parent = nullptr);

  // After acceptance: the blank project, an example to start a new project
  // from, or a project file to open was chosen.
  bool blankProjectChosen() const { return blank_; }
  const QString& chosenTemplate() const { return template_; }
  const QString& chosenPath() const { return path_; }

  void accept() override;
  void done(int result) override;
  // Shows the subfolders and project files of a folder.
  void showFolder(const QString& folder);

 private:
  QWidget* buildRecentTab();
  QWidget* buildNewTab();
  QWidget* buildOpenTab();
  void wireSignals();
  void fillRecent();
  void fillExamples();
  void fillDrives();
  QString text(int number) const;

  Program& program_;
  QTabWidget* tabs_ = nullptr;
  QTreeWidget* lstRecent_ = nullptr;
  QListWidget* lstNew_ = nullptr;
  QListWidget* lstExamples_ = nullptr;
  QComboBox* cboDrive_ = nullptr;
  QLabel* lblFolder_ = nullptr;
  QListWidget* lstFolders_ = nullptr;
  QListWidget* lstFiles_ = nullptr;
  QCheckBox* chkShowWelcome_ = nullptr;
  QString folder_;
  bool blank_ = false;
  QString path_;
  QString template_;
  int recentWidth_ = 0;
};
