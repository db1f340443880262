#include "app/ui/QtSaveFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

#include "app/ui/FileFilter.h"

std::optional<std::string> QtSaveFileDialog::AskSavePath(const std::string& folder,
                                                         const std::string& proposedName) {
  const QString start = folder.empty() ? QDir::currentPath() : QString::fromStdString(folder);
  QFileDialog dialog(QApplication::activeWindow(), QString(), start, ProjectFilter(strings_));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("tpj");
  dialog.selectFile(QString::fromStdString(proposedName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst().toStdString();
}
