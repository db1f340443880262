// The team of an MPI job, and JoinTeam of an engine built with TAMSIC_MPI.
// Every MPI call of the engine is in this file, and all are made by the
// thread that joined (MPI_THREAD_FUNNELED): the threads that run iterations
// hand their letters to it.
#include <mpi.h>

#include <climits>
#include <list>
#include <string>

#include "sim/SimError.h"
#include "sim/Team.h"

namespace tamsic::sim {

namespace {

int Length(const std::string& bytes) {
  if (bytes.size() > static_cast<std::size_t>(INT_MAX))
    throw SimError("a record of " + std::to_string(bytes.size() >> 20) + " MB is too large to send to another process");
  return static_cast<int>(bytes.size());
}

class MpiTeam final : public Team {
 public:
  MpiTeam() {
    int provided = 0;
    MPI_Init_thread(nullptr, nullptr, MPI_THREAD_FUNNELED, &provided);
    // A communicator of its own keeps the engine's letters apart from any other use of MPI in the process.
    MPI_Comm_dup(MPI_COMM_WORLD, &comm_);
    MPI_Comm_rank(comm_, &rank_);
    MPI_Comm_size(comm_, &size_);
    threaded_ = provided >= MPI_THREAD_FUNNELED;
  }
  ~MpiTeam() override {
    for (Sending& sending : sending_) MPI_Wait(&sending.request, MPI_STATUS_IGNORE);
    MPI_Comm_free(&comm_);
    MPI_Finalize();
  }
  MpiTeam(const MpiTeam&) = delete;
  MpiTeam& operator=(const MpiTeam&) = delete;

  int rank() const override { return rank_; }
  int size() const override { return size_; }
  bool threaded() const { return threaded_; }

  std::vector<std::string> gather(const std::string& mine) override {
    int length = Length(mine);
    std::vector<int> lengths(rank_ == 0 ? static_cast<std::size_t>(size_) : 0);
    MPI_Gather(&length, 1, MPI_INT, lengths.data(), 1, MPI_INT, 0, comm_);
    std::vector<int> offsets(lengths.size());
    long long total = 0;
    for (std::size_t r = 0; r < lengths.size(); ++r) {
      offsets[r] = static_cast<int>(total);
      total += lengths[r];
    }
    std::string all(static_cast<std::size_t>(total), '\0');
    MPI_Gatherv(mine.data(), length, MPI_CHAR, all.data(), lengths.data(), offsets.data(), MPI_CHAR, 0, comm_);
    std::vector<std::string> texts;
    for (std::size_t r = 0; r < lengths.size(); ++r)
      texts.push_back(all.substr(static_cast<std::size_t>(offsets[r]), static_cast<std::size_t>(lengths[r])));
    return texts;
  }

  void broadcast(std::string& text) override {
    int length = rank_ == 0 ? Length(text) : 0;
    MPI_Bcast(&length, 1, MPI_INT, 0, comm_);
    text.resize(static_cast<std::size_t>(length));
    MPI_Bcast(text.data(), length, MPI_CHAR, 0, comm_);
  }

  void post(int to, int tag, std::string body) override {
    const int length = Length(body);
    // A list, since MPI holds on to the bytes of a short text kept inside its string object.
    Sending& sending = sending_.emplace_back(Sending{MPI_REQUEST_NULL, std::move(body)});
    MPI_Isend(sending.body.data(), length, MPI_BYTE, to, tag, comm_, &sending.request);
  }

  std::optional<Letter> collect(int tag) override {
    int arrived = 0;
    MPI_Status status;
    MPI_Iprobe(MPI_ANY_SOURCE, tag == kAnyTag ? MPI_ANY_TAG : tag, comm_, &arrived, &status);
    if (!arrived) return std::nullopt;
    int count = 0;
    MPI_Get_count(&status, MPI_BYTE, &count);
    Letter letter{status.MPI_SOURCE, status.MPI_TAG, std::string(static_cast<std::size_t>(count), '\0')};
    MPI_Recv(letter.body.data(), count, MPI_BYTE, letter.from, letter.tag, comm_, MPI_STATUS_IGNORE);
    return letter;
  }

  std::size_t pending() override {
    std::size_t bytes = 0;
    for (auto sending = sending_.begin(); sending != sending_.end();) {
      int gone = 0;
      MPI_Test(&sending->request, &gone, MPI_STATUS_IGNORE);
      if (gone) {
        sending = sending_.erase(sending);
      } else {
        bytes += sending->body.size();
        ++sending;
      }
    }
    return bytes;
  }

 private:
  struct Sending {
    MPI_Request request;
    std::string body;
  };

  MPI_Comm comm_ = MPI_COMM_NULL;
  int rank_ = 0;
  int size_ = 1;
  bool threaded_ = false;
  std::list<Sending> sending_;
};

}  // namespace

std::unique_ptr<Team> JoinTeam() {
  const Launch launch = LaunchedTogether();
  if (launch.size == 1) return std::make_unique<SoloTeam>();
  auto team = std::make_unique<MpiTeam>();
  if (!team->threaded())
    throw SimError("the MPI library does not allow a process to run threads besides the one that calls MPI");
  if (launch.size > 1 && team->size() != launch.size)
    throw SimError("the launcher started " + std::to_string(launch.size) + " processes, but MPI sees " +
                   std::to_string(team->size()) + ": the launcher belongs to another MPI than the one Tamsic was " +
                   "built with");
  return team;
}

}  // namespace tamsic::sim
