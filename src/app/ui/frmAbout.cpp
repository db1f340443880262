#include "app/ui/frmAbout.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "app/ui/Version.h"
#include "engine/EngineLibrary.h"

frmAbout::frmAbout(Program& program, QWidget* parent) : QDialog(parent) {
  const auto text = [&](int number) { return QString::fromStdString(program.strings.text(number)); };
  setObjectName("frmAbout");
  setWindowTitle(text(3000));
  auto* name = new QLabel(QStringLiteral("<h1>%1</h1>").arg(text(9001).toHtmlEscaped()), this);
  auto* version = new QLabel(text(3001) + " " + kTamsicVersion, this);
  auto* description = new QLabel(text(3002), this);
  description->setWordWrap(true);
  auto* engine = new QLabel(text(3003) + ": " + tamsic::kEngineFileName, this);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  buttons->button(QDialogButtonBox::Ok)->setText(text(3004));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmAbout::accept);
  auto* layout = new QVBoxLayout(this);
  for (QWidget* line : {static_cast<QWidget*>(name), static_cast<QWidget*>(version),
                        static_cast<QWidget*>(description), static_cast<QWidget*>(engine),
                        static_cast<QWidget*>(buttons)})
    layout->addWidget(line);
  setMinimumWidth(420);
}
