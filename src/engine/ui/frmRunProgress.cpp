#include "engine/ui/frmRunProgress.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "app/ui/Program.h"
#include "engine/EstimateText.h"
#include "engine/RunList.h"
#include "model/MemoryWords.h"

namespace {

constexpr int kTitle = 8213;
constexpr int kScenario = 8214;
constexpr int kOf = 8215;
constexpr int kIterations = 8216;
constexpr int kElapsed = 8217;
constexpr int kLeft = 8218;
constexpr int kCancel = 8219;
constexpr int kCancelling = 8220;
constexpr int kEstimating = 8224;
constexpr int kExpected = 8225;
constexpr int kExpectedPeak = 8226;
constexpr int kExpectedEnd = 8227;

QString Clock(double seconds) {
  const long whole = static_cast<long>(seconds + 0.5);
  return QStringLiteral("%1:%2:%3")
      .arg(whole / 3600)
      .arg(whole / 60 % 60, 2, 10, QLatin1Char('0'))
      .arg(whole % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

frmRunProgress::frmRunProgress(Program& program, tamsic::Engine& engine, tamsic::basSimulation::RunRequest request,
                               std::vector<Scenario> scenarios, QWidget* parent)
    : QDialog(parent),
      program_(program),
      engine_(engine),
      request_(std::move(request)),
      scenarios_(std::move(scenarios)) {
  setObjectName("frmRunProgress");
  setWindowTitle(text(kTitle));
  setModal(true);
  // A title and nothing else: the run ends by itself or by Cancel.
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  lblEstimate_ = new QLabel(this);
  lblEstimate_->setObjectName("lblEstimate");
  lblEstimate_->setWordWrap(true);
  lblScenario_ = new QLabel(this);
  lblScenario_->setObjectName("lblScenario");
  prgRun_ = new QProgressBar(this);
  prgRun_->setObjectName("prgRun");
  prgRun_->setRange(0, 0);
  lblIterations_ = new QLabel(this);
  lblIterations_->setObjectName("lblIterations");
  lblTime_ = new QLabel(this);
  lblTime_->setObjectName("lblTime");
  auto* buttons = new QDialogButtonBox(this);
  cmdCancel_ = buttons->addButton(text(kCancel), QDialogButtonBox::RejectRole);
  cmdCancel_->setObjectName("cmdCancel");
  connect(buttons, &QDialogButtonBox::rejected, this, &frmRunProgress::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lblEstimate_);
  layout->addWidget(lblScenario_);
  layout->addWidget(prgRun_);
  layout->addWidget(lblIterations_);
  layout->addWidget(lblTime_);
  layout->addWidget(buttons);
  setMinimumWidth(420);
  timer_ = new QTimer(this);
  timer_->setInterval(200);
  connect(timer_, &QTimer::timeout, this, &frmRunProgress::showProgress);
}

frmRunProgress::~frmRunProgress() {
  if (worker_.joinable()) worker_.join();
}

tamsic::basSimulation::CallResult frmRunProgress::run() {
  clock_.start();
  showProgress();
  worker_ = std::thread([this] {
    result_ = estimateThenRun();
    QMetaObject::invokeMethod(this, [this] {
      finished_ = true;
      accept();
    }, Qt::QueuedConnection);
  });
  timer_->start();
  exec();
  timer_->stop();
  worker_.join();
  return std::move(result_);
}

// On the worker thread. An estimate that fails (a library without it, an
// input at fault) leaves the run to say what is wrong; a refused scenario
// ends the call with the refusal as its reply.
tamsic::basSimulation::CallResult frmRunProgress::estimateThenRun() {
  const tamsic::EstimateResult asked = tamsic::AskEstimate(engine_, request_);
  const std::optional<tamsic::RunEstimate> estimate = asked.estimate;
  QMetaObject::invokeMethod(this, [this, estimate] { showEstimate(estimate); }, Qt::QueuedConnection);
  estimating_ = false;
  if (cancelRequested_) return {std::string("Error: the run was cancelled before it started"), {}};
  if (estimate && !estimate->refused().empty()) {
    std::string refusal = "Error: the memory available cannot hold the run: ";
    const std::vector<std::string> lines = tamsic::Refusals(*estimate);
    for (std::size_t n = 0; n < lines.size(); ++n) refusal += (n == 0 ? "" : "; ") + lines[n];
    return {refusal, {}};
  }
  return tamsic::basSimulation::CallEngine(engine_, request_);
}

void frmRunProgress::showEstimate(const std::optional<tamsic::RunEstimate>& estimate) {
  if (!estimate) {
    lblEstimate_->hide();
    return;
  }
  lblEstimate_->setText(text(kExpected) + Clock(estimate->seconds) + text(kExpectedPeak) +
                        QString::fromStdString(tamsic::MemoryAmount(estimate->peakBytes)) + text(kExpectedEnd));
}

void frmRunProgress::reject() {
  if (finished_) {
    QDialog::reject();
    return;
  }
  // The dialog closes when the engine has stopped and the call returned.
  cancelRequested_ = true;
  if (engine_.cancel() || estimating_) {
    cmdCancel_->setEnabled(false);
    cmdCancel_->setText(text(kCancelling));
  }
}

void frmRunProgress::showProgress() {
  const double seconds = static_cast<double>(clock_.elapsed()) / 1000.0;
  // The pilot's own progress would read as the run's.
  if (estimating_) {
    lblScenario_->setText(text(kEstimating));
    lblTime_->setText(text(kElapsed) + Clock(seconds));
    return;
  }
  std::optional<tamsic::RunProgress> progress;
  try {
    if (const auto reply = engine_.progress()) progress = tamsic::ParseProgress(*reply);
  } catch (const std::exception&) {
    // The call itself will report the missing library when it fails.
  }
  QString left;
  if (progress) {
    prgRun_->setRange(0, static_cast<int>(progress->total));
    prgRun_->setValue(static_cast<int>(progress->done));
    lblScenario_->setText(text(kScenario) + scenarioAt(progress->done));
    lblIterations_->setText(QString::number(progress->done) + text(kOf) + QString::number(progress->total) +
                            text(kIterations));
    if (const auto seconds_left = tamsic::SecondsLeft(*progress, seconds)) left = Clock(*seconds_left);
  } else {
    lblScenario_->setText(text(kScenario) + scenarioAt(0));
  }
  lblTime_->setText(text(kElapsed) + Clock(seconds) + (left.isEmpty() ? QString() : "    " + text(kLeft) + left));
}

// The engine counts the iterations of the whole run; scenarios run in list order.
QString frmRunProgress::scenarioAt(long done) const {
  long before = 0;
  for (const Scenario& scenario : scenarios_) {
    before += scenario.iterations;
    if (done < before) return scenario.name;
  }
  return scenarios_.empty() ? QString() : scenarios_.back().name;
}

QString frmRunProgress::text(int number) const { return QString::fromStdString(program_.strings.text(number)); }
