// The about box's registry read: a value of the machine hive, the key opened
// with the about box's access and closed on every way out.
#include "support/about_form.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/posix/file_registry.h"
#include "unit/settings/settings_fixture.h"

namespace qvx {
namespace {

using platform::Hive;
using testing::TempFolder;

constexpr const char* kMsinfo = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";

// The file registry, recording the access asked for; a query can be made to
// raise, as a platform call may.
class WatchedRegistry final : public testing::ForwardingRegistry {
 public:
  using ForwardingRegistry::ForwardingRegistry;
  std::optional<uint32_t> access;
  std::optional<Hive> hive;
  bool raiseOnQuery = false;

  long OpenKeyA(Hive h, std::string_view k, uint32_t a, Key& key) override {
    hive = h;
    access = a;
    return ForwardingRegistry::OpenKeyA(h, k, a, key);
  }
  long QueryValueA(Key key, std::string_view n, uint32_t& t, std::string& b) override {
    if (raiseOnQuery) throw Failure::Runtime(err::kOutOfMemory);
    return ForwardingRegistry::QueryValueA(key, n, t, b);
  }
};

struct AboutKeyValue : ::testing::Test {
  TempFolder folder;
  platform::FileRegistry files{folder.File("user.txt")};
  WatchedRegistry registry{files};
};

TEST_F(AboutKeyValue, ReadsTheMachineHiveAndEachWayOutClosesTheKey) {
  ASSERT_TRUE(files.SetString(kMsinfo, "PATH", "C:\\x.exe", Hive::CurrentUser));  // wrong hive
  ASSERT_TRUE(files.SetString(kMsinfo, "LONG", std::string(1024, 'x'), Hive::LocalMachine));
  ASSERT_TRUE(files.SetString(kMsinfo, "FITS", std::string(1023, 'x'), Hive::LocalMachine));
  ASSERT_TRUE(files.SetDword(kMsinfo, "FLAG", 7, Hive::LocalMachine));
  const struct {
    const char* why;
    const char* key;
    const char* name;
    bool found;
    std::string value;  // what the out value holds afterwards
  } rows[] = {
      {"the longest that fits with its terminator", kMsinfo, "FITS", true, std::string(1023, 'x')},
      {"no key in the machine hive", "SOFTWARE\\Other", "PATH", false, ""},
      {"no such value", kMsinfo, "PATH", false, "before"},
      {"longer than the buffer with its terminator", kMsinfo, "LONG", false, "before"},
      {"a DWORD read as bytes, cut at the first NUL", kMsinfo, "FLAG", true, "\x07"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.why);
    std::string value = "before";
    EXPECT_EQ(fAbout::GetKeyValue(registry, Hive::LocalMachine, row.key, row.name, value),
              row.found);
    EXPECT_EQ(value, row.value);
    EXPECT_EQ(registry.hive, Hive::LocalMachine);
    EXPECT_EQ(registry.access, 0x2003Fu);
    EXPECT_EQ(files.OpenHandles(), 0u);
  }
  registry.raiseOnQuery = true;  // a raising read still closes the key
  std::string value;
  EXPECT_THROW(fAbout::GetKeyValue(registry, Hive::LocalMachine, kMsinfo, "FITS", value), Failure);
  EXPECT_EQ(files.OpenHandles(), 0u);
}

}  // namespace
}  // namespace qvx
