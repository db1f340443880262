#pragma once
// The letters between the processes of a run (TeamRun.h). Under a
// scenario's tag, 1 + its place in the run, a record ("R") or a fault
// ("F") of one iteration. Under tag 0: "stop" from rank 0 (end your part of
// the run), "cancelled" (this process was asked to stop) and "done" (a
// process's last letter, posted once every other it posted has gone).
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace tamsic::sim::letters {

constexpr int kControl = 0;
// MPI promises tags up to 32767; a run's scenarios far apart never travel together.
inline int ScenarioTag(std::size_t scenario) { return 1 + static_cast<int>(scenario % 32000); }

inline const std::string kStop = "stop";
inline const std::string kCancelled = "cancelled";
inline const std::string kDone = "done";

// The most bytes MPI sends in one letter.
constexpr std::size_t kLongest = 0x7fffffff;

constexpr char kRecord = 'R';
constexpr char kFault = 'F';
constexpr std::size_t kHead = 1 + sizeof(std::int32_t);

inline std::string Write(char kind, int iteration, std::string_view content) {
  std::string body(kHead, kind);
  const std::int32_t number = iteration;
  std::memcpy(body.data() + 1, &number, sizeof number);
  return body.append(content);
}
inline int IterationOf(std::string_view body) {
  std::int32_t number = 0;
  std::memcpy(&number, body.data() + 1, sizeof number);
  return number;
}

}  // namespace tamsic::sim::letters
