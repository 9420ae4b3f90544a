// Command bar positions: the value names, the orders, and failures skipped one by one.
#include "settings/local_settings.h"

#include <gtest/gtest.h>

#include "settings_fixture.h"
#include "sim/fake_object.h"

namespace qvx {
namespace {

using testing::kQvxKey;
using testing::Listing;
using testing::SettingsFixture;

std::shared_ptr<sim::FakeObject> MakeBar(int32_t top, int32_t left, int32_t position, int32_t row) {
  auto bar = std::make_shared<sim::FakeObject>("CommandBar");
  bar->Property("Top", Variant(top))
      .Property("Left", Variant(left))
      .Property("Position", Variant(position))
      .Property("RowIndex", Variant(row));
  return bar;
}

// Records the order of property reads and writes.
class RecordingBar final : public HostObject {
 public:
  std::vector<std::string> calls;
  Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>&) override {
    calls.push_back(std::string(kind == InvokeKind::Put ? "put " : "get ") + std::string(name));
    return Variant(int32_t{5});
  }
  std::string TypeName() const override { return "CommandBar"; }
  std::vector<Variant> Enumerate() override { return {}; }
  Subscription Subscribe(std::string_view, EventHandler) override { return {}; }
};

TEST(ToolbarPosition, SavesTheFourValuesOfEachBarSkippingAFailingOne) {
  for (const int16_t selector : {0, 1}) {
    SettingsFixture f;
    auto bar = MakeBar(120, -7, 1, 3);
    if (selector == 1) bar->FailMember("Left", 0x80004005, "Unspecified error");
    modLocalSettings::SaveToolbarPosition(f.s, selector, bar->AsObject());
    EXPECT_EQ(Listing(f.registry),
              selector == 0 ? "MainTBTop=120\nMainTBLeft=-7\nMainTBPosition=1\nMainTBRowIndex=3\n"
                            : "CustomTBTop=120\nCustomTBPosition=1\nCustomTBRowIndex=3\n");
    EXPECT_FALSE(f.s.err.pending());
  }
}

TEST(ToolbarPosition, SavingAndLoadingOrdersDiffer) {
  SettingsFixture f;
  auto bar = std::make_shared<RecordingBar>();
  modLocalSettings::SaveToolbarPosition(f.s, 0, Object(bar));
  modLocalSettings::LoadToolbarPosition(f.s, 0, Object(bar));
  const std::vector<std::string> expected = {"get Top",      "get Left",     "get Position",
                                             "get RowIndex", "put Position", "put RowIndex",
                                             "put Top",      "put Left"};
  EXPECT_EQ(bar->calls, expected);
}

TEST(ToolbarPosition, NonNumericLeftLeavesItAndTheRestApply) {
  SettingsFixture f;
  ASSERT_TRUE(f.registry.SetString(kQvxKey, "MainTBTop", "11"));
  ASSERT_TRUE(f.registry.SetString(kQvxKey, "MainTBLeft", "left of centre"));
  ASSERT_TRUE(f.registry.SetString(kQvxKey, "MainTBPosition", "2"));
  // "MainTBRowIndex" absent: reads as "", which fails to convert too.
  auto bar = MakeBar(1, 99, 1, 6);
  modLocalSettings::LoadToolbarPosition(f.s, 0, bar->AsObject());
  EXPECT_EQ(bar->Value("Top").ToLong(), 11);
  EXPECT_EQ(bar->Value("Left").ToLong(), 99);
  EXPECT_EQ(bar->Value("Position").ToLong(), 2);
  EXPECT_EQ(bar->Value("RowIndex").ToLong(), 6);
  EXPECT_FALSE(f.s.err.pending());
  EXPECT_TRUE(f.Reports().empty());
}

TEST(ToolbarPosition, OtherSelectorsOrNoBarDoNothing) {
  SettingsFixture f;
  ASSERT_TRUE(f.registry.SetString(kQvxKey, "MainTBTop", "50"));
  auto bar = MakeBar(1, 2, 3, 4);
  modLocalSettings::SaveToolbarPosition(f.s, 2, bar->AsObject());
  modLocalSettings::SaveToolbarPosition(f.s, 0, Object());
  modLocalSettings::LoadToolbarPosition(f.s, 2, bar->AsObject());
  modLocalSettings::LoadToolbarPosition(f.s, 0, Object());
  EXPECT_EQ(bar->Value("Top").ToLong(), 1);
  EXPECT_EQ(f.registry.ListValues(kQvxKey).size(), 1u);
  EXPECT_FALSE(f.s.err.pending());
  EXPECT_TRUE(f.Reports().empty());
}

}  // namespace
}  // namespace qvx
