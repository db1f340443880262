#pragma once
// The processes that mpirun or srun started together to share one run
// (docs/cluster.md). Each joins the engine's team first and leaves it when
// it is done, also when it stops before the run, so that the others are
// not left waiting for it. Only rank 0 prints.
#include <string>

#include "StderrMessageBox.h"
#include "engine/Engine.h"

namespace tamsic {

class RunTeam {
 public:
  // Joins; from now on the messages of any process but rank 0 are kept from the terminal.
  RunTeam(LibraryEngine& engine, StderrMessageBox& box);
  ~RunTeam();
  RunTeam(const RunTeam&) = delete;
  RunTeam& operator=(const RunTeam&) = delete;

  // Empty when joined, else why the processes cannot work together.
  const std::string& error() const { return error_; }
  // Rank 0 (a process alone too) prints and writes for the team.
  bool leads() const { return rank_ == 0; }
  bool alone() const { return size_ == 1; }
  // Why this process stopped, for the others when it stopped before the run.
  void stoppedBy(const std::string& reason) { reason_ = reason; }

 private:
  LibraryEngine& engine_;
  int rank_ = 0;
  int size_ = 1;
  std::string error_;
  std::string reason_;
};

}  // namespace tamsic
