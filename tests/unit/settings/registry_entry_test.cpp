// The settings store: key layout, absent values, and the failures it raises.
#include "settings/registry_entry.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "settings_fixture.h"

namespace qvx {
namespace {

using modRegistryEntry::GetRegistrySetting;
using modRegistryEntry::SaveRegistrySetting;
using testing::kQvxKey;
using testing::SettingsFixture;

// The file registry, with any call told to answer a given result instead.
class FaultyRegistry final : public platform::RegistryApi {
 public:
  explicit FaultyRegistry(platform::RegistryApi& inner) : inner_(inner) {}
  std::optional<long> create, set, open, info, query;
  std::optional<uint32_t> type;
  int closes = 0;

  long CreateKey(std::u16string_view k, Key& key) override {
    return create ? *create : inner_.CreateKey(k, key);
  }
  long SetStringValue(Key key, std::u16string_view n, std::u16string_view d) override {
    return set ? *set : inner_.SetStringValue(key, n, d);
  }
  long OpenKey(std::u16string_view k, uint32_t a, Key& key) override {
    return open ? *open : inner_.OpenKey(k, a, key);
  }
  long QueryValueInfoA(Key key, std::string_view n, uint32_t& t, uint32_t& size) override {
    if (info) return *info;
    const long result = inner_.QueryValueInfoA(key, n, t, size);
    if (type) t = *type;
    return result;
  }
  long QueryValueW(Key key, std::u16string_view n, std::u16string& b) override {
    return query ? *query : inner_.QueryValueW(key, n, b);
  }
  long CloseKey(Key key) override {
    ++closes;
    return inner_.CloseKey(key);
  }

 private:
  platform::RegistryApi& inner_;
};

Failure Raised(const std::function<void()>& call) {
  try {
    call();
  } catch (const Failure& f) {
    return f;
  }
  ADD_FAILURE() << "nothing was raised";
  return Failure(0, "", "");
}

TEST(RegistryEntry, WritesUnderTheAppKeyAndReadsBack) {
  SettingsFixture f;
  SaveRegistrySetting(f.s, "QVX", "", "DBChoice", "3");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "DBChoice"), "3");
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "DBChoice", "0"), "3");
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(RegistryEntry, SectionAddsALevelAndBlanksMeanNone) {
  SettingsFixture f;
  SaveRegistrySetting(f.s, "  QVX ", " Sub ", "Name", "in section");
  SaveRegistrySetting(f.s, "QVX", "   ", "Name", "no section");
  EXPECT_EQ(f.registry.ReadString("Software\\Zenbrook\\QVX\\Sub", "Name"), "in section");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "Name"), "no section");
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "Sub", "Name", ""), "in section");
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "  ", "Name", ""), "no section");
}

TEST(RegistryEntry, KeyIsTestedTrimmedButWrittenAsGiven) {
  SettingsFixture f;
  SaveRegistrySetting(f.s, "QVX", "", " Padded ", "x");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, " Padded "), "x");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "Padded"), std::nullopt);
}

TEST(RegistryEntry, AbsentKeyGivesDefaultAndCreatesNothing) {
  SettingsFixture f;
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Anything", "fallback"), "fallback");
  EXPECT_FALSE(std::filesystem::exists(f.registry.path()));
  EXPECT_FALSE(f.registry.KeyExists(kQvxKey));
}

TEST(RegistryEntry, AbsentValueGivesDefaultAndLeavesTheKeyOpen) {
  SettingsFixture f;
  SaveRegistrySetting(f.s, "QVX", "", "Other", "1");
  const size_t before = f.registry.OpenHandles();
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Missing", "dflt"), "dflt");
  EXPECT_EQ(f.registry.OpenHandles(), before + 1);
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Other", "dflt"), "1");
  EXPECT_EQ(f.registry.OpenHandles(), before + 1);
}

TEST(RegistryEntry, EmptyValueReadsEmptyNotDefault) {
  SettingsFixture f;
  SaveRegistrySetting(f.s, "QVX", "", "Blank", "");
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Blank", "not this"), "");
}

TEST(RegistryEntry, TextSurvivesWithLineBreaksAndWideCharacters) {
  SettingsFixture f;
  const std::string text = "Zürich\r\n東京\r\n\xF0\x9F\x98\x80 emoji|x";
  SaveRegistrySetting(f.s, "QVX", "", "CustomField1List", text);
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "CustomField1List", ""), text);
}

TEST(RegistryEntry, NonStringValueRaisesWithItsType) {
  SettingsFixture f;
  ASSERT_TRUE(f.registry.SetDword(kQvxKey, "Flag", 1));
  const Failure e = Raised([&] { GetRegistrySetting(f.s, "QVX", "", "Flag", ""); });
  EXPECT_EQ(e.number(), static_cast<int32_t>(0x800407D4));
  EXPECT_EQ(e.description(), "Registry data not a string");
  ASSERT_TRUE(f.registry.SetBinary(kQvxKey, "Blob", std::string("\x01\x02", 2)));
  EXPECT_EQ(Raised([&] { GetRegistrySetting(f.s, "QVX", "", "Blob", ""); }).number(),
            static_cast<int32_t>(0x800407D3));
  EXPECT_TRUE(f.ui.reports.empty());  // raised to the caller, never reported here
}

TEST(RegistryEntry, BlankNamesRaiseOnReadAndWrite) {
  struct Row {
    const char* app;
    const char* key;
    uint32_t number;
    const char* description;
  };
  const Row rows[] = {
      {"", "Key", 0x800403E8, "AppName may not be empty"},
      {"   ", "Key", 0x800403E8, "AppName may not be empty"},
      {"QVX", "", 0x800403EA, "Key may not be empty"},
      {"QVX", "  ", 0x800403EA, "Key may not be empty"},
      {" ", " ", 0x800403E8, "AppName may not be empty"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string("app '") + row.app + "' key '" + row.key + "'");
    SettingsFixture f;
    const Failure w = Raised([&] { SaveRegistrySetting(f.s, row.app, "", row.key, "v"); });
    EXPECT_EQ(w.number(), static_cast<int32_t>(row.number));
    EXPECT_EQ(w.description(), row.description);
    const Failure r = Raised([&] { GetRegistrySetting(f.s, row.app, "", row.key, "d"); });
    EXPECT_EQ(r.number(), static_cast<int32_t>(row.number));
    EXPECT_EQ(r.description(), row.description);
    EXPECT_FALSE(std::filesystem::exists(f.registry.path()));
  }
}

TEST(RegistryEntry, PlatformFailuresRaiseWithTheResultAdded) {
  struct Row {
    const char* name;
    std::optional<long> FaultyRegistry::*call;
    long result;
    bool write;
    uint32_t number;
    const char* description;
  };
  const Row rows[] = {
      {"create", &FaultyRegistry::create, 5, true, 0x800407D5,
       "Could not open/create registry section"},
      {"set", &FaultyRegistry::set, 1013, true, 0x80040BC5, "Could not set key value"},
      {"open", &FaultyRegistry::open, 5, false, 0x800407D5, "Could not open registry section"},
      {"open other", &FaultyRegistry::open, 1010, false, 0x80040BC2,
       "Could not open registry section"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    SettingsFixture base;
    FaultyRegistry faulty(base.registry);
    SettingsFixture f(&faulty);
    ASSERT_TRUE(base.registry.SetString(kQvxKey, "Key", "stored"));
    faulty.*(row.call) = row.result;
    const Failure e = Raised([&] {
      if (row.write) {
        SaveRegistrySetting(f.s, "QVX", "", "Key", "v");
      } else {
        GetRegistrySetting(f.s, "QVX", "", "Key", "d");
      }
    });
    EXPECT_EQ(e.number(), static_cast<int32_t>(row.number));
    EXPECT_EQ(e.description(), row.description);
    EXPECT_EQ(base.registry.ReadString(kQvxKey, "Key"), "stored");
  }
}

TEST(RegistryEntry, FailedWriteStillClosesTheKey) {
  SettingsFixture base;
  FaultyRegistry faulty(base.registry);
  SettingsFixture f(&faulty);
  faulty.set = 5;
  EXPECT_THROW(SaveRegistrySetting(f.s, "QVX", "", "Key", "v"), Failure);
  EXPECT_EQ(faulty.closes, 1);
  EXPECT_EQ(base.registry.OpenHandles(), 0u);
}

TEST(RegistryEntry, FailedSecondQueryGivesDefault) {
  SettingsFixture base;
  FaultyRegistry faulty(base.registry);
  SettingsFixture f(&faulty);
  ASSERT_TRUE(base.registry.SetString(kQvxKey, "Key", "stored"));
  faulty.query = platform::kErrorMoreData;
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Key", "dflt"), "dflt");
  EXPECT_EQ(faulty.closes, 1);
}

TEST(RegistryEntry, SizeCountsATerminatorSoTheTextIsOneShorter) {
  SettingsFixture base;
  FaultyRegistry faulty(base.registry);
  SettingsFixture f(&faulty);
  ASSERT_TRUE(base.registry.SetString(kQvxKey, "Key", "abc"));
  uint32_t type = 0, size = 0;
  platform::RegistryApi::Key key = 0;
  ASSERT_EQ(base.registry.OpenKey(u"Software\\Zenbrook\\QVX", platform::kKeyRead, key), 0);
  ASSERT_EQ(base.registry.QueryValueInfoA(key, "Key", type, size), 0);
  base.registry.CloseKey(key);
  EXPECT_EQ(type, platform::kRegSz);
  EXPECT_EQ(size, 4u);
  EXPECT_EQ(GetRegistrySetting(f.s, "QVX", "", "Key", ""), "abc");
}

}  // namespace
}  // namespace qvx
