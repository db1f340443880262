#include "app/ui/frmSplash.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "app/ui/Version.h"

namespace {

constexpr int kCloseAfterMs = 3000;

}  // namespace

frmSplash::frmSplash(Program& program, QWidget* parent)
    // A window manager stacks the main frame, shown after the splash, above
    // it unless the splash asks to stay on top.
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
  const auto text = [&](int number) { return QString::fromStdString(program.strings.text(number)); };
  setObjectName("frmSplash");
  setAttribute(Qt::WA_DeleteOnClose);
  setStyleSheet("#frmSplash { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, "
                "stop:0 #2e5d34, stop:1 #8fb37a); } QLabel { color: white; }");
  auto* title = new QLabel(text(9001), this);
  QFont large = title->font();
  large.setPointSize(36);
  large.setBold(true);
  title->setFont(large);
  auto* subtitle = new QLabel(QStringLiteral("<h3>%1</h3>").arg(text(8401).toHtmlEscaped()), this);
  auto* version = new QLabel(text(8402) + " " + kTamsicVersion, this);
  status_ = new QLabel(text(8403), this);
  auto* SSClose = new QPushButton(text(8404), this);
  SSClose->setObjectName("SSClose");
  connect(SSClose, &QPushButton::clicked, this, &QWidget::close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 24);
  layout->addWidget(title);
  layout->addWidget(subtitle);
  layout->addStretch();
  layout->addWidget(version);
  layout->addWidget(status_);
  layout->addWidget(SSClose, 0, Qt::AlignRight);
  setFixedSize(480, 300);
  if (const QScreen* screen = QGuiApplication::primaryScreen())
    move(screen->availableGeometry().center() - rect().center());
}

void frmSplash::loaded() {
  status_->clear();
  QTimer::singleShot(kCloseAfterMs, this, &QWidget::close);
}
