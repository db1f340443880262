#pragma once
// A fresh folder per test, removed afterwards, and whole-file reads for
// comparing what was written.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace tamsic::test {

inline std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

class TestFolder {
 public:
  TestFolder()
      : path_(std::filesystem::temp_directory_path() /
              ("tamsic-" + std::to_string(::getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->test_suite_name() + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TestFolder() { std::filesystem::remove_all(path_); }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace tamsic::test
