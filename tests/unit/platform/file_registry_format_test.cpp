// The registry file's keys: each path brings its ancestors, once each, in the
// order a reader first meets them, whatever the separators look like.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/posix/file_registry_format.h"

namespace qvx::platform::regfile {
namespace {

std::vector<std::string> KeyPaths(const Contents& contents) {
  std::vector<std::string> paths;
  for (const auto& key : contents.keys) paths.push_back(key.key);
  return paths;
}

TEST(RegistryFileKeys, APathBringsEachAncestorOnceAndFirst) {
  struct Case {
    std::vector<std::string> added;
    std::vector<std::string> keys;
  };
  const Case cases[] = {
      {{"a\\b\\c"}, {"a", "a\\b", "a\\b\\c"}},
      {{"a\\b\\c", "A\\B"}, {"a", "a\\b", "a\\b\\c"}},  // case-blind
      {{"a\\b", "a\\x\\y"}, {"a", "a\\b", "a\\x", "a\\x\\y"}},
      {{"\\a"}, {"\\a"}},  // no empty key before a leading separator
      {{"a\\"}, {"a", "a\\"}},
      {{"a\\\\b"}, {"a", "a\\", "a\\\\b"}},
  };
  for (const Case& c : cases) {
    Contents contents;
    for (const std::string& path : c.added) contents.AddKey(path);
    EXPECT_EQ(KeyPaths(contents), c.keys) << c.added.front();
  }
}

// A path hundreds of separators deep, as a damaged or hostile file may hold:
// it reads, writes and reads back to the same keys.
TEST(RegistryFileKeys, ADeepPathRoundTrips) {
  std::string path = "Ä";
  for (int i = 0; i < 600; ++i) path += i % 3 == 0 ? "\\x" : "\\";
  Contents contents;
  contents.Set(path, "v", Value{});
  const std::string text = Serialize(contents);
  Contents reread;
  ASSERT_EQ(Parse(text, reread), Verdict::Valid);
  EXPECT_EQ(KeyPaths(reread), KeyPaths(contents));
  EXPECT_EQ(reread.keys.Count(), 601u);
  EXPECT_NE(reread.Find(path, "V"), nullptr);
}

}  // namespace
}  // namespace qvx::platform::regfile
