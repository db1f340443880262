#pragma once
// The project report: a rich-text document of the user's own, kept in the
// project's report file (ReportFile). It opens from the project window; the
// user writes in it, inserts at the cursor the scenarios with their inputs
// and the summary table and graph last made on the results tab, saves it,
// prints it or exports it as PDF. Saving never replaces a Rich Text file of
// another program unasked, and a failed write leaves the file as it was.
#include <QPointer>
#include <QWidget>
#include <functional>

struct Program;
class QMenu;
class QTextDocument;
class QTextEdit;
class frmProject;

class frmReport : public QWidget {
  Q_OBJECT
 public:
  frmReport(Program& program, frmProject& project, QWidget* parent = nullptr);

  frmProject* project() const { return project_; }
  QTextDocument* document() const;
  QString path() const { return path_; }

  // Each answers whether the report was written.
  bool save();
  bool saveAs();
  // Reads the file again; over unsaved changes it asks first.
  void reload();
  void print();
  void exportPdf();

  void insertScenarios();
  void insertSummaryTable();
  void insertGraph();

  // Where Save As and the PDF export write (caption, proposed file, filter);
  // empty when the user cancels. A save-file dialog, unless a test stands in for it.
  std::function<QString(const QString& caption, const QString& proposed, const QString& filter)> askSavePath;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* buildCommands();
  QMenu* buildInsertMenu(QWidget* parent);
  // Shows the file's report; an absent file gives an empty one.
  void load();
  bool writeTo(const QString& path);
  void refreshCaption();
  QString text(int number) const;

  Program& program_;
  QPointer<frmProject> project_;
  QString path_;
  // The message saving asks before it replaces the file at path_, which the report does not show: another
  // program's Rich Text document, or a file that could not be read. 0 when the report holds what the file holds.
  int replaceQuestion_ = 0;
  QTextEdit* txtReport_ = nullptr;
};
