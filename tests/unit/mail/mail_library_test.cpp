#include "support/mail_library.h"

#include <gtest/gtest.h>

#include <map>

#include "core/dates.h"
#include "core/text.h"
#include "platform/posix/native_object.h"
#include "sim/mail_library_standin.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

// An item with user properties, reached late-bound like a host item:
// UserProperties.Find(name) gives the property or Nothing, and a property
// has a Value. Display is counted.
class MailTestItem {
 public:
  MailTestItem() : object_(std::make_shared<platform::NativeObject>("AppointmentItem")) {
    auto properties = std::make_shared<platform::NativeObject>("UserProperties");
    properties->Define("Find", [this](InvokeKind, std::vector<Variant>& args) {
      auto it = properties_.find(FoldCase(platform::RequiredArg(args, 0).ToText()));
      return it == properties_.end() ? Variant(Object()) : Variant(it->second);
    });
    object_->Define("UserProperties", [properties](InvokeKind, std::vector<Variant>&) {
      return Variant(Object(properties));
    });
    object_->Define("Display", [this](InvokeKind, std::vector<Variant>&) {
      ++displays;
      return Variant();
    });
  }

  // Adds or replaces a property; its Value is read only.
  MailTestItem& Set(const std::string& name, Variant value) {
    auto property = std::make_shared<platform::NativeObject>("UserProperty");
    property->Define("Value", [value](InvokeKind, std::vector<Variant>&) { return value; });
    properties_[FoldCase(name)] = Object(property);
    return *this;
  }

  Object AsObject() const { return Object(object_); }
  int displays = 0;

 private:
  std::shared_ptr<platform::NativeObject> object_;
  std::map<std::string, Object> properties_;
};

using sim::MailLibraryOptions;
using sim::MailLibraryStandIn;

// The scenarios cover the library's start-up, shutdown and the refusal's box text.
struct MailLibraryTest : ::testing::Test {
  void SetUp() override {
    item.Set("ReportedID", "1042").Set("Field9Value", "125").Set("ReportedDate", reportedOn);
  }
  Variant Read(std::string_view field, VarType type) {
    return GetFieldValueFromItem(t.s, item.AsObject(), field, type);
  }
  // Installs the library after `set` has shaped its options.
  MailLibraryStandIn& Install(void (*set)(MailLibraryOptions&) = [](MailLibraryOptions&) {}) {
    MailLibraryOptions options;
    set(options);
    library = std::make_unique<MailLibraryStandIn>(options);
    library->Install(t.objects);
    return *library;
  }

  testing::TestAddin t;
  MailTestItem item;
  DateValue reportedOn = ComposeDate({2026, 3, 14, 15, 9, 26});
  std::unique_ptr<MailLibraryStandIn> library;
};

TEST_F(MailLibraryTest, WithoutTheLibraryReadsGoThroughTheHostAndNothingIsSent) {
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(Read("ReportedDate", VarType::Date), Variant(reportedOn));
  EXPECT_EQ(Read("ProjectValue", VarType::String), Variant(""));  // absent property
  // The quirk kept: "ready" with no object held, so the library's calls fail unseen.
  EXPECT_TRUE(InitMapiUtils(t.s));
  EXPECT_TRUE(t.s.support.mapiUtils.IsNothing());
  EXPECT_FALSE(SendEmailDirectly(t.s, item.AsObject()));
  EXPECT_EQ(item.displays, 0);
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_FALSE(t.s.err.pending());
}

TEST_F(MailLibraryTest, ARefusedKeyIsToldOnceAndTheHostTakesOver) {
  MailLibraryStandIn& lib = Install([](MailLibraryOptions& o) { o.refuseKey = true; });
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(Read("Field9Value", VarType::Integer), Variant("125"));
  EXPECT_FALSE(InitMapiUtils(t.s));
  // A mail is shown instead of sent, each time.
  EXPECT_FALSE(SendEmailDirectly(t.s, item.AsObject()));
  EXPECT_FALSE(SendEmailDirectly(t.s, item.AsObject()));
  EXPECT_EQ(item.displays, 2);
  EXPECT_TRUE(lib.record().sent.empty());
  EXPECT_EQ(lib.record().getOneProp, 0);
  EXPECT_EQ(lib.record().utilsCreated, 1);
  EXPECT_EQ(t.ui.MessageBoxes().size(), 1u);
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(MailLibraryTest, WithTheLibraryValuesComeFromTheStoreAndMailIsSent) {
  MailLibraryStandIn& lib = Install([](MailLibraryOptions& o) { o.utcOffsetHours = 2.0; });
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(Read("Field9Value", VarType::String), Variant("125"));
  EXPECT_EQ(lib.record().getOneProp, 2);
  EXPECT_EQ(lib.record().utilsCreated, 1);  // made once, on first need
  // A date read as a date is turned into local time; read as another type it stays UTC.
  const Variant local = Read("ReportedDate", VarType::Date);
  ASSERT_NE(local.As<DateValue>(), nullptr);
  EXPECT_NEAR(local.As<DateValue>()->serial, reportedOn.serial, 1e-9);
  const Variant utc = Read("ReportedDate", VarType::String);
  ASSERT_NE(utc.As<DateValue>(), nullptr);
  EXPECT_NEAR(utc.As<DateValue>()->serial, reportedOn.serial - 2.0 / 24.0, 1e-9);
  EXPECT_EQ(lib.record().gmtToLocal, 1);

  EXPECT_TRUE(SendEmailDirectly(t.s, item.AsObject()));
  ASSERT_EQ(lib.record().sent.size(), 1u);
  EXPECT_TRUE(lib.record().sent[0].Is(item.AsObject()));
  EXPECT_EQ(lib.record().deliverNow, 1);
  EXPECT_EQ(item.displays, 0);
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
}

TEST_F(MailLibraryTest, NullValuesByType) {
  MailLibraryStandIn& lib = Install();
  item.Set("Field1Value", Variant::Null());
  const std::pair<VarType, Variant> rows[] = {
      {VarType::Integer, Variant(int16_t{0})},
      {VarType::String, Variant("")},
      {VarType::Date, Variant::Null()},
  };
  for (const auto& [type, expected] : rows) {
    EXPECT_EQ(Read("Field1Value", type), expected) << static_cast<int>(type);
  }
  EXPECT_EQ(lib.record().gmtToLocal, 0);  // a null date is not converted
}

TEST_F(MailLibraryTest, AnItemWithoutThePropertyFallsBackToTheHost) {
  MailLibraryStandIn& lib = Install();
  EXPECT_EQ(Read("ProjectValue", VarType::String), Variant(""));
  EXPECT_EQ(Read("ProjectValue", VarType::Integer), Variant(int16_t{0}));
  EXPECT_EQ(lib.record().idsFromNames, 2);
  EXPECT_EQ(lib.record().getOneProp, 0);
  EXPECT_FALSE(t.s.err.pending());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(MailLibraryTest, AFailedReadAfterAValidTagIsReported) {
  Install([](MailLibraryOptions& o) { o.failGetOneProp = true; });
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant());
  EXPECT_TRUE(t.Reported("ZNBLib.GetFieldValueFromItem"));
}

TEST_F(MailLibraryTest, AfterCleanupTheNextReadCreatesTheObjectAgain) {
  MailLibraryStandIn& lib = Install();
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  CleanupMapiUtils(t.s);
  CleanupMapiUtils(t.s);  // a second tear-down finds nothing to end
  EXPECT_EQ(lib.record().cleanups, 1);
  EXPECT_TRUE(t.s.support.mapiUtils.IsNothing());
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(lib.record().utilsCreated, 2);
}

}  // namespace
}  // namespace qvx
