#include "support/mail_library.h"

#include <gtest/gtest.h>

#include "core/dates.h"
#include "platform/user_interface.h"
#include "sim/appointment.h"
#include "sim/mail_library_standin.h"
#include "sim/outlook.h"
#include "sim/user_properties.h"
#include "unit/mail/mail_test_item.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

using sim::MailLibraryOptions;
using sim::MailLibraryStandIn;

constexpr const char* kMissingLibraryBox =
    "A library file is missing!\r\nPlease re-install the application using the setup.exe";

MailLibraryOptions With(void (*set)(MailLibraryOptions&)) {
  MailLibraryOptions options;
  set(options);
  return options;
}

struct MailLibraryTest : ::testing::Test {
  testing::TestAddin t;
  testing::MailTestItem item;
  DateValue reportedOn = ComposeDate({2026, 3, 14, 15, 9, 26});

  void SetUp() override {
    item.Set("ReportedID", "1042").Set("Field9Value", "125").Set("ReportedDate", reportedOn);
  }
  Variant Read(std::string_view field, VarType type) {
    return GetFieldValueFromItem(t.s, item.AsObject(), field, type);
  }
};

TEST(MailLibraryKey, IsOneConstantOfSeventeenLetters) {
  EXPECT_EQ(kMailLibraryAuthKey.size(), 17u);
  for (char c : kMailLibraryAuthKey) EXPECT_TRUE((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'));
}

TEST_F(MailLibraryTest, WithoutTheLibraryEveryReadGoesThroughTheHostSilently) {
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(Read("Field9Value", VarType::Integer), Variant("125"));
  EXPECT_EQ(Read("ReportedDate", VarType::Date), Variant(reportedOn));
  EXPECT_EQ(Read("ProjectValue", VarType::String), Variant(""));  // absent property
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
  EXPECT_TRUE(t.Reports().empty());
  // The quirk kept: "ready" with no object held, so every read tries again.
  EXPECT_TRUE(InitMapiUtils(t.s));
  EXPECT_TRUE(t.s.support.mapiUtils.IsNothing());
  EXPECT_FALSE(t.s.support.mapiUtilsFailed);
}

TEST_F(MailLibraryTest, ARefusedKeyIsToldOnceAndReadsGoThroughTheHost) {
  MailLibraryStandIn library(With([](MailLibraryOptions& o) { o.refuseKey = true; }));
  library.Install(t.objects);
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(Read("Field9Value", VarType::Integer), Variant("125"));
  ASSERT_EQ(t.ui.MessageBoxes().size(), 1u);
  EXPECT_EQ(t.ui.MessageBoxes()[0].text, kMissingLibraryBox);
  EXPECT_EQ(t.ui.MessageBoxes()[0].style, platform::msgbox::kCritical);
  EXPECT_EQ(t.ui.MessageBoxes()[0].title, "Quorvix Client Addin");
  EXPECT_EQ(library.record().getOneProp, 0);
  EXPECT_EQ(library.record().utilsCreated, 1);
  EXPECT_FALSE(InitMapiUtils(t.s));
  EXPECT_EQ(t.ui.MessageBoxes().size(), 1u);
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(MailLibraryTest, AnUnknownKeyIsRefusedLikeAnUnlicensedCopy) {
  MailLibraryStandIn library(
      With([](MailLibraryOptions& o) { o.acceptedKey = "SOMEOTHERLIBRARYK"; }));
  library.Install(t.objects);
  EXPECT_FALSE(InitMapiUtils(t.s));
  EXPECT_EQ(library.record().keysRefused, 1);
  EXPECT_EQ(t.ui.MessageBoxes().size(), 1u);
}

TEST_F(MailLibraryTest, WithTheLibraryValuesComeFromTheStore) {
  MailLibraryStandIn library;
  library.Install(t.objects);
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(library.record().getOneProp, 1);
  EXPECT_EQ(library.record().utilsCreated, 1);
  EXPECT_EQ(Read("Field9Value", VarType::String), Variant("125"));
  EXPECT_EQ(library.record().utilsCreated, 1);  // made once, on first need
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
}

TEST_F(MailLibraryTest, NullValuesByType) {
  MailLibraryStandIn library;
  library.Install(t.objects);
  item.Set("Field1Value", Variant::Null()).Set("Field2Value", Variant());
  struct Row {
    const char* field;
    VarType type;
    Variant expected;
  };
  const Row rows[] = {
      {"Field1Value", VarType::Integer, Variant(int16_t{0})},
      {"Field1Value", VarType::Long, Variant(int16_t{0})},
      {"Field1Value", VarType::Boolean, Variant(int16_t{0})},
      {"Field1Value", VarType::String, Variant("")},
      {"Field1Value", VarType::Date, Variant::Null()},
      {"Field2Value", VarType::String, Variant("")},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Read(row.field, row.type), row.expected)
        << row.field << " type " << static_cast<int>(row.type);
  }
  EXPECT_EQ(library.record().getOneProp, static_cast<int>(std::size(rows)));
  EXPECT_EQ(library.record().gmtToLocal, 0);  // a null date is not converted
}

TEST_F(MailLibraryTest, ADateIsReadInLocalTime) {
  MailLibraryStandIn library(With([](MailLibraryOptions& o) { o.utcOffsetHours = 2.0; }));
  library.Install(t.objects);
  const Variant local = Read("ReportedDate", VarType::Date);
  ASSERT_NE(local.As<DateValue>(), nullptr);
  EXPECT_NEAR(local.As<DateValue>()->serial, reportedOn.serial, 1e-9);
  EXPECT_EQ(library.record().gmtToLocal, 1);
  // Read as another type the store's UTC value comes back unconverted.
  const Variant utc = Read("ReportedDate", VarType::String);
  ASSERT_NE(utc.As<DateValue>(), nullptr);
  EXPECT_NEAR(utc.As<DateValue>()->serial, reportedOn.serial - 2.0 / 24.0, 1e-9);
  EXPECT_EQ(library.record().gmtToLocal, 1);
}

TEST_F(MailLibraryTest, AnItemWithoutThePropertyFallsBackToTheHost) {
  MailLibraryStandIn library;
  library.Install(t.objects);
  EXPECT_EQ(Read("ProjectValue", VarType::String), Variant(""));
  EXPECT_EQ(Read("ProjectValue", VarType::Integer), Variant(int16_t{0}));
  EXPECT_EQ(library.record().idsFromNames, 2);
  EXPECT_EQ(library.record().getOneProp, 0);
  EXPECT_FALSE(t.s.err.pending());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(MailLibraryTest, AFailedReadAfterAValidTagIsReported) {
  MailLibraryStandIn library(With([](MailLibraryOptions& o) { o.failGetOneProp = true; }));
  library.Install(t.objects);
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant());
  EXPECT_TRUE(t.Reported("ZNBLib.GetFieldValueFromItem", 30));
}

TEST_F(MailLibraryTest, AfterCleanupTheNextReadCreatesTheObjectAgain) {
  MailLibraryStandIn library;
  library.Install(t.objects);
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  CleanupMapiUtils(t.s);
  EXPECT_EQ(library.record().cleanups, 1);
  EXPECT_TRUE(t.s.support.mapiUtils.IsNothing());
  CleanupMapiUtils(t.s);  // a second tear-down finds nothing to end
  EXPECT_EQ(library.record().cleanups, 1);
  EXPECT_EQ(Read("ReportedID", VarType::String), Variant("1042"));
  EXPECT_EQ(library.record().utilsCreated, 2);
  EXPECT_FALSE(t.s.support.mapiUtils.IsNothing());
}

TEST_F(MailLibraryTest, SendDirectlyThroughTheLibrary) {
  MailLibraryStandIn library;
  library.Install(t.objects);
  EXPECT_TRUE(SendEmailDirectly(t.s, item.AsObject()));
  ASSERT_EQ(library.record().sent.size(), 1u);
  EXPECT_TRUE(library.record().sent[0].Is(item.AsObject()));
  EXPECT_EQ(library.record().deliverNow, 1);
  EXPECT_EQ(item.displays, 0);
  EXPECT_FALSE(t.s.err.pending());
}

TEST_F(MailLibraryTest, SendWithARefusedKeyShowsTheMailInstead) {
  MailLibraryStandIn library(With([](MailLibraryOptions& o) { o.refuseKey = true; }));
  library.Install(t.objects);
  EXPECT_FALSE(SendEmailDirectly(t.s, item.AsObject()));
  EXPECT_TRUE(library.record().sent.empty());
  EXPECT_EQ(item.displays, 1);
  EXPECT_EQ(t.ui.MessageBoxes().size(), 1u);
  EXPECT_FALSE(SendEmailDirectly(t.s, item.AsObject()));
  EXPECT_EQ(item.displays, 2);
  EXPECT_EQ(t.ui.MessageBoxes().size(), 1u);
}

TEST_F(MailLibraryTest, SendWithoutTheLibraryNeitherSendsNorShows) {
  // InitMapiUtils answers True with nothing held: the library's calls fail unseen.
  EXPECT_FALSE(SendEmailDirectly(t.s, item.AsObject()));
  EXPECT_EQ(item.displays, 0);
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_FALSE(t.s.err.pending());
}

TEST(MailLibraryOnSimulatedItems, ReadsTheCompanionsPropertiesOfASimulatedAppointment) {
  testing::TestAddin t;
  MailLibraryStandIn library(With([](MailLibraryOptions& o) { o.utcOffsetHours = -5.0; }));
  library.Install(t.objects);
  sim::Outlook world;
  auto meeting = world.AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  const DateValue reportedOn = ComposeDate({2026, 3, 4, 10, 0, 0});
  world.ChangeUserProperty(*meeting, "ReportedID", sim::kOlText, Variant("77"));
  world.ChangeUserProperty(*meeting, "ReportedDate", sim::kOlDateTime, Variant(reportedOn));
  const Object item = meeting->AsObject();

  EXPECT_EQ(GetFieldValueFromItem(t.s, item, "ReportedID", VarType::String), Variant("77"));
  const Variant date = GetFieldValueFromItem(t.s, item, "ReportedDate", VarType::Date);
  ASSERT_NE(date.As<DateValue>(), nullptr);
  EXPECT_NEAR(date.As<DateValue>()->serial, reportedOn.serial, 1e-9);
  EXPECT_EQ(GetFieldValueFromItem(t.s, item, "ProjectValue", VarType::String), Variant(""));
  EXPECT_EQ(library.record().getOneProp, 2);
  EXPECT_EQ(library.record().idsFromNames, 3);
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
}

}  // namespace
}  // namespace qvx
