#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include "engine/WorkFile.h"

namespace tamsic {
namespace {

class WorkFileFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    application = std::filesystem::temp_directory_path() /
                  ("tamsic-workfile-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::remove_all(application);
    std::filesystem::create_directories(application);
  }
  void TearDown() override { std::filesystem::remove_all(application); }
  std::filesystem::path application;
};

TEST_F(WorkFileFolder, FreshFilesInTheApplicationsTempFolderOrElseTheUsers) {
  const auto first = CreateWorkFile(application);
  const auto second = CreateWorkFile(application);
  EXPECT_EQ(first.parent_path(), application / "Temp");
  EXPECT_NE(first, second);
  EXPECT_TRUE(std::filesystem::is_regular_file(first));
  EXPECT_EQ(std::filesystem::file_size(second), 0u);

  // A folder that cannot be made (here: its parent is a file) sends the work
  // file to the user's own temporary folder.
  std::ofstream(application / "plain-file") << "x";
  const auto file = CreateWorkFile(application / "plain-file");
  EXPECT_EQ(file.parent_path(), UserTempFolder());
  EXPECT_TRUE(std::filesystem::is_regular_file(file));
  const auto permissions = std::filesystem::status(UserTempFolder()).permissions();
  EXPECT_EQ(permissions & std::filesystem::perms::all, std::filesystem::perms::owner_all);
  std::filesystem::remove(file);
}

// A failed run's copy stays for a week; files the program did not make stay for good.
TEST_F(WorkFileFolder, WorkFilesOlderThanAWeekGo) {
  using std::chrono::hours;
  const auto now = std::filesystem::file_time_type::clock::now();
  const auto aged = [&](const std::filesystem::path& file, hours age) {
    std::ofstream(file) << "x";
    std::filesystem::last_write_time(file, now - age);
    return file;
  };
  const hours week{24 * 7};
  const auto stale = aged(CreateWorkFile(application), week + hours(1));
  const auto recent = aged(CreateWorkFile(application), week - hours(1));
  const auto usersOwn = aged(application / "Temp" / "tpjnotes.txt", week * 4);
  const auto similar = aged(application / "Temp" / "tpj12345", week * 4);

  EXPECT_EQ(RemoveOldWorkFiles(application, week), 1);
  EXPECT_FALSE(std::filesystem::exists(stale));
  EXPECT_TRUE(std::filesystem::exists(recent));
  EXPECT_TRUE(std::filesystem::exists(usersOwn));
  EXPECT_TRUE(std::filesystem::exists(similar));
  EXPECT_EQ(RemoveOldWorkFiles(application / "missing", week), 0);
}

}  // namespace
}  // namespace tamsic
