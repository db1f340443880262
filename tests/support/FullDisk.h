#pragma once
// A disk that fills up, for the life of the scope: every write past a
// hundred bytes of a file fails, as it would on a full disk.
#include <sys/resource.h>

#include <csignal>

namespace tamsic::test {

class FullDisk {
 public:
  FullDisk() {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &old_);
    rlimit small = old_;
    small.rlim_cur = 100;
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &old_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit old_{};
};

}  // namespace tamsic::test
