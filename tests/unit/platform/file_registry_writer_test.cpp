// The registry file under a second process that rewrites the settings key
// as fast as it can, as the companion may: the reader sees every value whole
// and never an older one after a newer, and a writer killed in the middle of
// a write leaves a file that still reads.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/posix/file_registry.h"
#include "sim/temp_folder.h"

namespace qvx::platform {
namespace {

constexpr char kKey[] = "Software\\Zenbrook\\QVX";

// A value that carries its generation at both ends and a body whose length
// and letter depend on it, so that any mix of two writes shows.
std::string Generation(long n) {
  const std::string tag = std::to_string(n);
  return tag + ":" + std::string(300 + n % 97, static_cast<char>('a' + n % 26)) + ":" + tag;
}

// The generation of a whole value; nullopt for anything torn or mixed.
std::optional<long> GenerationOf(const std::string& value) {
  const size_t colon = value.find(':');
  if (colon == std::string::npos || colon == 0) return std::nullopt;
  const long n = std::stol(value.substr(0, colon));
  if (value != Generation(n)) return std::nullopt;
  return n;
}

// Writes "Left" and "Right" with rising generations until killed, one byte
// into `progress` after each pair.
[[noreturn]] void WriteForever(const std::string& path, int progress) {
  FileRegistry writer(path);
  for (long n = 1;; ++n) {
    const bool written = writer.SetString(kKey, "Left", Generation(n)) &&
                         writer.SetString(kKey, "Right", Generation(n));
    const char mark = written ? '+' : '!';
    if (write(progress, &mark, 1) != 1) _exit(2);
  }
}

TEST(FileRegistryUnderAWriter, ReadsAreWholeAndFreshAndAKilledWriterLeavesTheFileReadable) {
  sim::TempFolder folder("qvx-writer");
  const std::string path = folder.File("registry.txt");
  FileRegistry reader(path);
  ASSERT_TRUE(reader.SetString(kKey, "Left", Generation(0)));
  ASSERT_TRUE(reader.SetString(kKey, "Right", Generation(0)));

  int pipeEnds[2];
  ASSERT_EQ(pipe(pipeEnds), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    close(pipeEnds[0]);
    WriteForever(path, pipeEnds[1]);
  }
  close(pipeEnds[1]);

  long newestLeft = 0;
  long newestRight = 0;
  for (int round = 0; round < 200; ++round) {
    char mark = 0;
    ASSERT_EQ(read(pipeEnds[0], &mark, 1), 1);
    ASSERT_EQ(mark, '+') << "the writer could not write";
    // The writer goes on writing while these reads run.
    for (const char* name : {"Left", "Right"}) {
      const std::optional<std::string> value = reader.ReadString(kKey, name);
      ASSERT_TRUE(value.has_value()) << name << " in round " << round;
      const std::optional<long> n = GenerationOf(*value);
      ASSERT_TRUE(n.has_value()) << "torn: " << value->substr(0, 40);
      // The mark came after the writer's generation round + 1 was complete.
      ASSERT_GE(*n, round + 1) << name << ": a completed write not seen";
      long& newest = name[0] == 'L' ? newestLeft : newestRight;
      ASSERT_GE(*n, newest) << name << " went back";
      newest = *n;
    }
  }

  // Killed wherever it is, most likely in the middle of a write.
  ASSERT_EQ(kill(child, SIGKILL), 0);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  close(pipeEnds[0]);

  FileRegistry afterwards(path);
  for (const char* name : {"Left", "Right"}) {
    const std::optional<std::string> value = afterwards.ReadString(kKey, name);
    ASSERT_TRUE(value.has_value()) << name << ": the file no longer reads";
    EXPECT_TRUE(GenerationOf(*value).has_value());
  }
  EXPECT_TRUE(afterwards.SetString(kKey, "Left", Generation(1))) << "a stale lock stays behind";
}

}  // namespace
}  // namespace qvx::platform
