#include "support/mail_library.h"

#include <gtest/gtest.h>

#include "core/dates.h"
#include "core/host_constants.h"
#include "sim/appointment.h"
#include "sim/mail_library_standin.h"
#include "sim/outlook.h"
#include "sim/user_properties.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

using sim::MailLibraryOptions;
using sim::MailLibraryStandIn;

// The scenarios cover the library's start-up, shutdown and the refusal's box text.
struct MailLibraryTest : ::testing::Test {
  void SetUp() override {
    Set("ReportedID", Variant("1042"));
    Set("Field9Value", Variant("125"));
    Set("ReportedDate", Variant(reportedOn));
  }
  // A combination property: the host keeps the value as given.
  void Set(std::string_view name, Variant value) {
    item->UserProperties().Set(name, host::olCombination, std::move(value));
  }
  int Displays() const { return item->CallCount("Display"); }
  Variant Read(std::string_view field, VarType type) {
    return GetFieldValueFromItem(t.s, item->AsObject(), field, type);
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
  sim::Outlook host;
  std::shared_ptr<sim::SimAppointment> item =
      host.AddAppointment("Report", DateSerial(2026, 3, 14), DateSerial(2026, 3, 14));
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
  EXPECT_FALSE(SendEmailDirectly(t.s, item->AsObject()));
  EXPECT_EQ(Displays(), 0);
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
  EXPECT_FALSE(SendEmailDirectly(t.s, item->AsObject()));
  EXPECT_FALSE(SendEmailDirectly(t.s, item->AsObject()));
  EXPECT_EQ(Displays(), 2);
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

  EXPECT_TRUE(SendEmailDirectly(t.s, item->AsObject()));
  ASSERT_EQ(lib.record().sent.size(), 1u);
  EXPECT_TRUE(lib.record().sent[0].Is(item->AsObject()));
  EXPECT_EQ(lib.record().deliverNow, 1);
  EXPECT_EQ(Displays(), 0);
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
  // After a clean-up (a second finds nothing to end) the next read makes the object again.
  CleanupMapiUtils(t.s);
  CleanupMapiUtils(t.s);
  EXPECT_EQ(lib.record().cleanups, 1);
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(lib.record().utilsCreated, 2);
}

// An item without the property is read through the host; a null value is
// its type's empty value.
TEST_F(MailLibraryTest, AbsentAndNullValuesByType) {
  MailLibraryStandIn& lib = Install();
  EXPECT_EQ(Read("ProjectValue", VarType::String), Variant(""));
  EXPECT_EQ(Read("ProjectValue", VarType::Integer), Variant(int16_t{0}));
  EXPECT_EQ(lib.record().idsFromNames, 2);
  EXPECT_EQ(lib.record().getOneProp, 0);
  Set("Field1Value", Variant::Null());
  const std::pair<VarType, Variant> rows[] = {
      {VarType::Integer, Variant(int16_t{0})},
      {VarType::String, Variant("")},
      {VarType::Date, Variant::Null()},
  };
  for (const auto& [type, expected] : rows) {
    EXPECT_EQ(Read("Field1Value", type), expected) << static_cast<int>(type);
  }
  EXPECT_EQ(lib.record().gmtToLocal, 0);  // a null date is not converted
  EXPECT_FALSE(t.s.err.pending());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(MailLibraryTest, AFailedReadAfterAValidTagIsReported) {
  Install([](MailLibraryOptions& o) { o.failGetOneProp = true; });
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant());
  EXPECT_TRUE(t.Reported("ZNBLib.GetFieldValueFromItem"));
}

}  // namespace
}  // namespace qvx
