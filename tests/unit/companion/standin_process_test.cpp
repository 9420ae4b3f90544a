// Runs the built stand-ins as the add-in's launcher would: one argument,
// no shell, and checks their journal lines, exit codes and error lines.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "apps/QuorvixClient/post_message.h"
#include "apps/QuorvixClient/standin_main.h"
#include "companion/command_lines.h"
#include "companion/message_names.h"
#include "platform/posix/socket_message_windows.h"

extern char** environ;

namespace qvx::standin {
namespace {

namespace fs = std::filesystem;

std::string StandInFolder() {
#ifdef QVX_STANDIN_FOLDER
  return QVX_STANDIN_FOLDER;
#else
  return "";
#endif
}

std::string ReadFile(const fs::path& path) {
  std::ifstream in(path);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

struct ProcessResult {
  int exitCode = -1;
  std::string stderrText;
  std::string stdoutText;
};

class StandInProcess : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = StandInFolder();
    ASSERT_FALSE(folder_.empty()) << "the tests are built without the stand-ins' folder";
    ASSERT_TRUE(fs::exists(fs::path(folder_) / "QuorvixClient.exe"));
    dir_ = fs::temp_directory_path() /
           ("qvx-standin-" + std::to_string(getpid()) + "-" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    journal_ = dir_ / "sub" / "journal.txt";  // its folder does not exist yet
  }
  void TearDown() override { fs::remove_all(dir_); }

  // Starts the program with these arguments and the journal in the test's folder.
  pid_t Start(const std::string& program, const std::vector<std::string>& args, int tag,
              const std::vector<std::string>& extraEnv = {}) {
    const std::string path = folder_ + "/" + program + ".exe";
    std::vector<std::string> argv{path};
    argv.insert(argv.end(), args.begin(), args.end());
    std::vector<char*> cargv;
    for (std::string& a : argv) cargv.push_back(a.data());
    cargv.push_back(nullptr);

    std::vector<std::string> env{"QVX_COMPANION_JOURNAL=" + journal_.string()};
    env.insert(env.end(), extraEnv.begin(), extraEnv.end());
    for (char** e = environ; *e != nullptr; ++e) {
      if (std::string_view(*e).rfind("QVX_COMPANION_JOURNAL=", 0) != 0) env.emplace_back(*e);
    }
    std::vector<char*> cenv;
    for (std::string& e : env) cenv.push_back(e.data());
    cenv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const std::string out = (dir_ / ("out" + std::to_string(tag))).string();
    const std::string err = (dir_ / ("err" + std::to_string(tag))).string();
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid = 0;
    const int rc = posix_spawn(&pid, path.c_str(), &actions, nullptr, cargv.data(), cenv.data());
    posix_spawn_file_actions_destroy(&actions);
    return rc == 0 ? pid : -1;
  }

  ProcessResult Wait(pid_t pid, int tag) {
    ProcessResult run;
    int status = 0;
    if (pid > 0 && waitpid(pid, &status, 0) == pid && WIFEXITED(status)) {
      run.exitCode = WEXITSTATUS(status);
    }
    run.stdoutText = ReadFile(dir_ / ("out" + std::to_string(tag)));
    run.stderrText = ReadFile(dir_ / ("err" + std::to_string(tag)));
    return run;
  }

  ProcessResult RunOnce(const std::string& program, const std::vector<std::string>& args,
                        const std::vector<std::string>& extraEnv = {}) {
    return Wait(Start(program, args, 0, extraEnv), 0);
  }

  std::vector<std::string> JournalLines() {
    std::vector<std::string> lines;
    std::ifstream in(journal_);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }

  std::string folder_;
  fs::path dir_;
  fs::path journal_;
};

TEST_F(StandInProcess, ClientAcceptsTheContractAndJournalsEachCall) {
  struct Row {
    std::string argument;
    const char* kind;
  };
  const Row rows[] = {
      {"6", "section"},
      {"28", "section"},
      {companion::ReportCommand(
           "S", {companion::ReportEntry("E1", ""), companion::ReportEntry("E2", "")}),
       "report"},
      {companion::ReportCommand("S", {companion::ReportEntry("E", "3/7/2010 9:30:00 AM")}),
       "report"},
      {companion::AutomaticReportCommand("S", "E"), "report"},
      {companion::WithdrawCommand("S", "E", ""), "withdraw"},
  };
  for (const Row& row : rows) {
    const ProcessResult run = RunOnce("QuorvixClient", {row.argument});
    EXPECT_EQ(run.exitCode, kExitAccepted) << row.argument;
    EXPECT_EQ(run.stderrText, "") << row.argument;
  }
  const std::vector<std::string> lines = JournalLines();
  ASSERT_EQ(lines.size(), std::size(rows));
  for (size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i], std::string("QuorvixClient\t") + rows[i].kind + "\t" + rows[i].argument);
  }
}

TEST_F(StandInProcess, ClientRejectsAnythingElseWithOneErrorLine) {
  const std::vector<std::vector<std::string>> calls{{"7"}, {"1|S|E;"}, {"0|S|"}, {}, {"6", "14"}};
  for (const auto& args : calls) {
    const ProcessResult run = RunOnce("QuorvixClient", args);
    EXPECT_EQ(run.exitCode, kExitRejected);
    ASSERT_FALSE(run.stderrText.empty());
    EXPECT_EQ(run.stderrText.rfind("QuorvixClient: ", 0), 0u) << run.stderrText;
    EXPECT_EQ(run.stderrText.find('\n'), run.stderrText.size() - 1) << run.stderrText;
  }
  const std::vector<std::string> lines = JournalLines();
  ASSERT_EQ(lines.size(), calls.size());
  EXPECT_EQ(lines[0], "QuorvixClient\trejected\t7");
  EXPECT_EQ(lines[4], "QuorvixClient\trejected\t6 14");
}

TEST_F(StandInProcess, StatisticsToolTakesOnlyItsForm) {
  const std::string good = companion::StatisticsCommand("Data Source=x", "Jane Doe");
  EXPECT_EQ(RunOnce("QuorvixOLAP", {good}).exitCode, kExitAccepted);
  EXPECT_EQ(RunOnce("QuorvixOLAP", {"6"}).exitCode, kExitRejected);
  const std::vector<std::string> lines = JournalLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "QuorvixOLAP\tstatistics\t" + good);
  EXPECT_EQ(lines[1], "QuorvixOLAP\trejected\t6");
}

TEST_F(StandInProcess, HelpSaysTheseAreTestAidsAndJournalsNothing) {
  for (const char* program : {"QuorvixClient", "QuorvixOLAP"}) {
    const ProcessResult run = RunOnce(program, {"--help"});
    EXPECT_EQ(run.exitCode, kExitAccepted);
    EXPECT_NE(run.stdoutText.find("TEST AND DEMO AID"), std::string::npos) << program;
    EXPECT_NE(run.stdoutText.find("NOT the real"), std::string::npos) << program;
  }
  EXPECT_FALSE(fs::exists(journal_));
}

TEST_F(StandInProcess, AnUnwritableJournalFailsAnAcceptedCall) {
  fs::create_directories(journal_);  // a folder where the file should be
  const ProcessResult run = RunOnce("QuorvixClient", {"6"});
  EXPECT_EQ(run.exitCode, kExitJournalFailed);
  EXPECT_NE(run.stderrText.find(journal_.string()), std::string::npos) << run.stderrText;
}

TEST_F(StandInProcess, ConcurrentCallsKeepTheirLinesWhole) {
  // The add-in starts up to three companions in quick succession.
  constexpr int kRuns = 12;
  const std::string entry(300, 'E');
  std::vector<pid_t> pids;
  for (int i = 0; i < kRuns; ++i) {
    pids.push_back(Start("QuorvixClient",
                         {companion::WithdrawCommand("S" + std::to_string(i), entry, "")}, i));
  }
  for (int i = 0; i < kRuns; ++i) EXPECT_EQ(Wait(pids[static_cast<size_t>(i)], i).exitCode, 0);
  std::vector<std::string> lines = JournalLines();
  ASSERT_EQ(lines.size(), static_cast<size_t>(kRuns));
  std::sort(lines.begin(), lines.end());
  std::vector<std::string> expected;
  for (int i = 0; i < kRuns; ++i) {
    expected.push_back("QuorvixClient\twithdraw\t" +
                       companion::WithdrawCommand("S" + std::to_string(i), entry, ""));
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(lines, expected);
}

TEST_F(StandInProcess, ClientPostsTheChannelMessageWhenAsked) {
  // A window namespace of this test's own, in this process and the child.
  const std::string space = "standin-test-" + std::to_string(getpid());
  ASSERT_EQ(setenv("QVX_WINDOW_NAMESPACE", space.c_str(), 1), 0);
  platform::SocketMessageWindows windows;
  std::vector<std::pair<uint32_t, intptr_t>> received;
  auto listener = windows.CreateListener(companion::kClientWindowCaption,
                                         [&](uint32_t message, intptr_t wParam, intptr_t) {
                                           received.emplace_back(message, wParam);
                                           return true;
                                         });
  ASSERT_NE(listener, nullptr);

  const ProcessResult run = RunOnce("QuorvixClient", {companion::WithdrawCommand("S", "E", "")},
                                    {"QVX_WINDOW_NAMESPACE=" + space, "QVX_CLIENT_POST_MESSAGE=2"});
  EXPECT_EQ(run.exitCode, kExitAccepted) << run.stderrText;
  EXPECT_EQ(windows.DispatchPending(), 1u);
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received[0].first, windows.RegisterMessage(companion::kClientMessageName));
  EXPECT_EQ(received[0].second, companion::kClientItemsChanged);

  // No post for a rejected call, and a bad value is refused.
  EXPECT_EQ(RunOnce("QuorvixClient", {"7"},
                    {"QVX_WINDOW_NAMESPACE=" + space, "QVX_CLIENT_POST_MESSAGE=2"})
                .exitCode,
            kExitRejected);
  EXPECT_EQ(RunOnce("QuorvixClient", {"6"},
                    {"QVX_WINDOW_NAMESPACE=" + space, "QVX_CLIENT_POST_MESSAGE=two"})
                .exitCode,
            kExitNotPosted);
  EXPECT_EQ(windows.DispatchPending(), 0u);
  listener.reset();

  // With no listener window the post fails and says so.
  const ProcessResult lonely = RunOnce(
      "QuorvixClient", {"15"}, {"QVX_WINDOW_NAMESPACE=" + space, "QVX_CLIENT_POST_MESSAGE=0"});
  EXPECT_EQ(lonely.exitCode, kExitNotPosted);
  EXPECT_NE(lonely.stderrText.find(std::string(companion::kClientWindowCaption)),
            std::string::npos);
  unsetenv("QVX_WINDOW_NAMESPACE");
}

}  // namespace
}  // namespace qvx::standin
