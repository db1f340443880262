#pragma once
// The processes that share one run. A process started alone is a team of
// one. When a launcher (mpirun, srun) starts several, they form one team
// through MPI: each runs a share of the iterations and rank 0 folds the
// records and writes every file (TeamRun.h). Only MpiTeam.cpp, compiled when
// the engine is built with TAMSIC_MPI, knows MPI; the rest of the engine
// sees this interface.
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tamsic::sim {

// A message between two processes of a team: what it is about (the tag)
// and its bytes.
struct Letter {
  int from = 0;
  int tag = 0;
  std::string body;
};

class Team {
 public:
  static constexpr int kAnyTag = -1;

  virtual ~Team() = default;
  virtual int rank() const = 0;
  virtual int size() const = 0;

  // Collective: every process's text in rank order on rank 0, nothing elsewhere.
  virtual std::vector<std::string> gather(const std::string& mine) = 0;
  // Collective: rank 0's text to every process.
  virtual void broadcast(std::string& text) = 0;
  // Sends without waiting; the team keeps the bytes until they have gone.
  virtual void post(int to, int tag, std::string body) = 0;
  // A letter with the tag (any tag: kAnyTag) that has come, if any; never waits.
  virtual std::optional<Letter> collect(int tag) = 0;
  // Moves posted letters along and answers the bytes of those not gone yet.
  virtual std::size_t pending() = 0;
};

// A team of one: the process runs everything itself.
class SoloTeam final : public Team {
 public:
  int rank() const override { return 0; }
  int size() const override { return 1; }
  std::vector<std::string> gather(const std::string& mine) override { return {mine}; }
  void broadcast(std::string&) override {}
  void post(int, int, std::string) override;
  std::optional<Letter> collect(int) override { return std::nullopt; }
  std::size_t pending() override { return 0; }
};

// How many processes a launcher started together with this one, and this
// one's place among them, from the variables that launchers set; {0, 1}
// when none did. A size of 0 means a launcher did but did not say how many.
struct Launch {
  int rank = 0;
  int size = 1;
};
Launch LaunchedTogether();

// The team this process belongs to: all the processes of an MPI job that
// started more than one, else this one alone. Throws SimError when several
// were started but cannot work together (the engine was built without MPI,
// or the launcher belongs to another MPI than the engine's).
std::unique_ptr<Team> JoinTeam();

}  // namespace tamsic::sim
