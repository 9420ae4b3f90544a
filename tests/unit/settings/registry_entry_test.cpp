// The settings store: key layout, absent values, and the failures it raises.
#include "settings/registry_entry.h"

#include <gtest/gtest.h>

#include <optional>

#include "settings_fixture.h"
#include "unit/sim/sim_test_util.h"

namespace qvx {
namespace {

using modRegistryEntry::GetRegistrySetting;
using modRegistryEntry::SaveRegistrySetting;
using sim::testing::FailureOf;
using testing::kQvxKey;
using testing::SettingsFixture;

// The file registry, with any call told to answer a given result instead,
// or a query told to raise a failure of that number.
class FaultyRegistry final : public testing::ForwardingRegistry {
 public:
  using ForwardingRegistry::ForwardingRegistry;
  std::optional<long> create, set, open, query, raiseOnQuery;
  int closes = 0;

  long CreateKey(platform::Hive h, std::u16string_view k, Key& key) override {
    return create ? *create : ForwardingRegistry::CreateKey(h, k, key);
  }
  long SetStringValue(Key key, std::u16string_view n, std::u16string_view d) override {
    return set ? *set : ForwardingRegistry::SetStringValue(key, n, d);
  }
  long OpenKey(platform::Hive h, std::u16string_view k, uint32_t a, Key& key) override {
    return open ? *open : ForwardingRegistry::OpenKey(h, k, a, key);
  }
  long QueryValueW(Key key, std::u16string_view n, std::u16string& b) override {
    if (raiseOnQuery) throw Failure::Runtime(static_cast<int32_t>(*raiseOnQuery));
    return query ? *query : ForwardingRegistry::QueryValueW(key, n, b);
  }
  long CloseKey(Key key) override {
    ++closes;
    return ForwardingRegistry::CloseKey(key);
  }
};

TEST(RegistryEntry, KeyLayoutTextRoundTripAndDefaults) {
  SettingsFixture f;
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Anything", "fallback"), "fallback");
  EXPECT_FALSE(std::filesystem::exists(f.registry.path()));  // nothing created
  const std::string text = "Zürich\r\n東京\r\n\xF0\x9F\x98\x80 emoji|x";
  SaveRegistrySetting(f.s, "QVX", "", "CustomField1List", text);
  SaveRegistrySetting(f.s, "  QVX ", " Sub ", "Name", "in section");
  SaveRegistrySetting(f.s, "QVX", "   ", " Padded ", "no section");  // key tested trimmed only
  SaveRegistrySetting(f.s, "QVX", "", "Blank", "");
  EXPECT_EQ(f.registry.ReadString("Software\\Zenbrook\\QVX\\Sub", "Name"), "in section");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, " Padded "), "no section");
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "CustomField1List", ""), text);
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "Sub", "Name", ""), "in section");
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Blank", "not this"), "");
  EXPECT_EQ(f.registry.OpenHandles(), 0u);
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Missing", "dflt"), "dflt");
  EXPECT_EQ(f.registry.OpenHandles(), 1u);  // the key is left open on this path only
  EXPECT_TRUE(f.Reports().empty());
}

TEST(RegistryEntry, NonStringValueRaisesWithItsType) {
  SettingsFixture f;
  ASSERT_TRUE(f.registry.SetDword(kQvxKey, "Flag", 1));
  const Failure e = FailureOf([&] { GetRegistrySetting(f.s, "QVX", "", "Flag", ""); });
  EXPECT_EQ(e.number(), static_cast<int32_t>(0x800407D4));
  EXPECT_EQ(e.description(), "Registry data not a string");
  ASSERT_TRUE(f.registry.SetBinary(kQvxKey, "Blob", std::string("\x01\x02", 2)));
  EXPECT_EQ(FailureOf([&] { GetRegistrySetting(f.s, "QVX", "", "Blob", ""); }).number(),
            static_cast<int32_t>(0x800407D3));
  EXPECT_TRUE(f.Reports().empty());         // raised to the caller, never reported here
  EXPECT_EQ(f.registry.OpenHandles(), 0u);  // the key was closed on the way out
}

TEST(RegistryEntry, BlankNamesRaiseOnReadAndWrite) {
  for (const auto& names : {std::pair{"   ", "Key"}, {"QVX", "  "}}) {
    const char *app = names.first, *key = names.second;
    SettingsFixture f;
    const std::string description = app[0] == ' ' ? "AppName" : "Key";
    for (const Failure& e : {FailureOf([&] { SaveRegistrySetting(f.s, app, "", key, "v"); }),
                             FailureOf([&] { GetRegistrySetting(f.s, app, "", key, "d"); })}) {
      EXPECT_EQ(e.number(), static_cast<int32_t>(app[0] == ' ' ? 0x800403E8 : 0x800403EA));
      EXPECT_EQ(e.description(), description + " may not be empty");
    }
    EXPECT_FALSE(std::filesystem::exists(f.registry.path()));
  }
}

TEST(RegistryEntry, PlatformFailures) {
  struct Row {
    const char* name;
    std::optional<long> FaultyRegistry::*call;
    long result;
    bool write;
    uint32_t number;  // 0: no failure, the default is read
    const char* description;
  };
  const Row rows[] = {
      {"create", &FaultyRegistry::create, 5, true, 0x800407D5,
       "Could not open/create registry section"},
      {"set", &FaultyRegistry::set, 1013, true, 0x80040BC5, "Could not set key value"},
      {"open", &FaultyRegistry::open, 5, false, 0x800407D5, "Could not open registry section"},
      {"open other", &FaultyRegistry::open, 1010, false, 0x80040BC2,
       "Could not open registry section"},
      {"second query", &FaultyRegistry::query, platform::kErrorMoreData, false, 0, ""},
      // A failing platform read reaches the caller, the key closed.
      {"raising query", &FaultyRegistry::raiseOnQuery, err::kOutOfMemory, false,
       static_cast<uint32_t>(err::kOutOfMemory), "Out of memory"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    SettingsFixture base;
    FaultyRegistry faulty(base.registry);
    SettingsFixture f(&faulty);
    ASSERT_TRUE(base.registry.SetString(kQvxKey, "Key", "stored"));
    faulty.*(row.call) = row.result;
    const auto call = [&] {
      if (row.write) {
        SaveRegistrySetting(f.s, "QVX", "", "Key", "v");
      } else {
        EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Key", "dflt"), "dflt");
      }
    };
    if (row.number == 0) {
      call();
      EXPECT_EQ(faulty.closes, 1);
      continue;
    }
    const Failure e = FailureOf(call);
    EXPECT_EQ(e.number(), static_cast<int32_t>(row.number));
    EXPECT_EQ(e.description(), row.description);
    EXPECT_EQ(base.registry.ReadString(kQvxKey, "Key"), "stored");
    EXPECT_EQ(base.registry.OpenHandles(), 0u);  // a failed write still closes the key
  }
}

}  // namespace
}  // namespace qvx
