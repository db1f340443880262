#pragma once
// The engine call of a run on a thread of its own, under a modal dialog that
// shows the estimate of the run's time and peak memory (from a short pilot
// made first), the scenario in hand, the iterations done of all, the time so
// far and the time left, and offers Cancel. A run the memory cannot hold is
// not started: the refusal is the call's reply. The windows behind keep painting; the
// user cannot touch the project until the call returns.
#include <QDialog>
#include <QElapsedTimer>
#include <atomic>
#include <thread>
#include <vector>

#include "engine/Engine.h"
#include "engine/RunEstimate.h"
#include "engine/basSimulation.h"

struct Program;
class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

class frmRunProgress : public QDialog {
  Q_OBJECT
 public:
  // Each scenario of the run with its number of iterations, in run order.
  struct Scenario {
    QString name;
    long iterations = 0;
  };

  frmRunProgress(Program& program, tamsic::Engine& engine, tamsic::basSimulation::RunRequest request,
                 std::vector<Scenario> scenarios, QWidget* parent = nullptr);
  ~frmRunProgress() override;

  // Makes the call and shows the dialog until it returns.
  tamsic::basSimulation::CallResult run();

  // While the call runs, closing the dialog asks the engine to stop.
  void reject() override;

 private:
  tamsic::basSimulation::CallResult estimateThenRun();
  void showEstimate(const std::optional<tamsic::RunEstimate>& estimate);
  void showProgress();
  QString scenarioAt(long done) const;
  QString text(int number) const;

  Program& program_;
  tamsic::Engine& engine_;
  tamsic::basSimulation::RunRequest request_;
  std::vector<Scenario> scenarios_;
  tamsic::basSimulation::CallResult result_;
  std::thread worker_;
  bool finished_ = false;
  std::atomic<bool> estimating_{true};
  std::atomic<bool> cancelRequested_{false};
  QElapsedTimer clock_;
  QTimer* timer_ = nullptr;
  QLabel* lblEstimate_ = nullptr;
  QLabel* lblScenario_ = nullptr;
  QLabel* lblIterations_ = nullptr;
  QLabel* lblTime_ = nullptr;
  QProgressBar* prgRun_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
};
