// Runs the built stand-ins as the add-in's launcher does (one argument, no
// shell) for what the scenarios never reach: refusals, the statistics tool,
// and companions started side by side. Their exit codes and journal lines are
// what the scenarios rely on.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "apps/QuorvixClient/standin_main.h"
#include "companion/command_lines.h"

extern char** environ;

namespace qvx::standin {
namespace {

namespace fs = std::filesystem;

class StandInProcess : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  // Starts the program with the journal in the test's folder and no output seen.
  static pid_t Start(const std::string& program, std::vector<std::string> argv,
                     const fs::path& journal) {
    const std::string path = std::string(QVX_STANDIN_FOLDER) + "/" + program + ".exe";
    argv.insert(argv.begin(), path);
    std::vector<std::string> env{"QVX_COMPANION_JOURNAL=" + journal.string()};
    for (char** e = environ; *e != nullptr; ++e) {
      if (!std::string_view(*e).starts_with("QVX_COMPANION_JOURNAL=")) env.emplace_back(*e);
    }
    std::vector<char*> cargv, cenv;
    for (std::string& a : argv) cargv.push_back(a.data());
    for (std::string& e : env) cenv.push_back(e.data());
    cargv.push_back(nullptr);
    cenv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int fd : {1, 2})
      posix_spawn_file_actions_addopen(&actions, fd, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    const int rc = posix_spawn(&pid, path.c_str(), &actions, nullptr, cargv.data(), cenv.data());
    posix_spawn_file_actions_destroy(&actions);
    return rc == 0 ? pid : -1;
  }

  // The exit code, or -1 if it did not end normally.
  static int Wait(pid_t pid) {
    int status = 0;
    const bool ended = pid > 0 && waitpid(pid, &status, 0) == pid && WIFEXITED(status);
    return ended ? WEXITSTATUS(status) : -1;
  }

  int Run(const std::string& program, std::vector<std::string> argv) {
    return Wait(Start(program, std::move(argv), journal_));
  }

  std::vector<std::string> JournalLines() {
    std::vector<std::string> lines;
    std::ifstream in(journal_);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }

  fs::path dir_ =
      fs::temp_directory_path() / ("qvx-standin-" + std::to_string(getpid()) + "-" +
                                   ::testing::UnitTest::GetInstance()->current_test_info()->name());
  fs::path journal_ = dir_ / "sub" / "journal.txt";  // its folder does not exist yet
};

TEST_F(StandInProcess, RefusalsAndStatisticsAreJournalled) {
  EXPECT_EQ(Run("QuorvixClient", {"7"}), kExitRejected);
  EXPECT_EQ(Run("QuorvixClient", {}), kExitRejected);
  EXPECT_EQ(Run("QuorvixClient", {"6", "14"}), kExitRejected);
  EXPECT_EQ(Run("QuorvixOLAP", {"6"}), kExitRejected);
  const std::string statistics = companion::StatisticsCommand("Data Source=x", "Jane Doe");
  EXPECT_EQ(Run("QuorvixOLAP", {statistics}), kExitAccepted);
  const std::vector<std::string> expected{
      "QuorvixClient\trejected\t7", "QuorvixClient\trejected\t", "QuorvixClient\trejected\t6 14",
      "QuorvixOLAP\trejected\t6", "QuorvixOLAP\tstatistics\t" + statistics};
  EXPECT_EQ(JournalLines(), expected);
}

TEST_F(StandInProcess, ConcurrentCallsKeepTheirLinesWhole) {
  // The add-in starts up to three companions in quick succession.
  constexpr int kRuns = 12;
  const std::string entry(300, 'E');
  std::vector<std::string> expected;
  std::vector<pid_t> pids;
  for (int i = 0; i < kRuns; ++i) {
    const std::string command = companion::WithdrawCommand("S" + std::to_string(i), entry, "");
    expected.push_back("QuorvixClient\twithdraw\t" + command);
    pids.push_back(Start("QuorvixClient", {command}, journal_));
  }
  for (pid_t pid : pids) EXPECT_EQ(Wait(pid), kExitAccepted);
  std::vector<std::string> lines = JournalLines();
  std::sort(lines.begin(), lines.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(lines, expected);
}

}  // namespace
}  // namespace qvx::standin
