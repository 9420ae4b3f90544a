// The catalogue text as it may come from the registry: stray separators,
// other line ends, huge names, invalid UTF-8, and very many lines.
#include <gtest/gtest.h>

#include "catalogue_fixture.h"

namespace qvx {
namespace {

using testing::Activities;
using testing::CatalogueFixture;
using testing::Strings;

TEST(CatalogueInput, StraySeparatorsGiveEmptyFieldsNotFailures) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, ",,,,,:;;;,,;\r\nB,1,,:x,:y;z,\r\nC,2,,::");
  EXPECT_EQ(f.Projects(), (Strings{"", "B", "C"}));
  EXPECT_EQ(Activities(f.Project("")), (Strings{""}));    // ",," is a nameless activity
  EXPECT_EQ(Activities(f.Project("B")), (Strings{"x"}));  // after a second ":" nothing counts
  EXPECT_EQ(f.Project("C").dicList.Count(), 0u);
  EXPECT_TRUE(f.ui.reports.empty());
  // A nameless project is no project name.
  EXPECT_EQ(f.catalogue.GetProjectsList(f.s)->dicList.Count(), 2u);
}

TEST(CatalogueInput, OtherLineEndsDoNotSplitLines) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "A,1,,:\nB,2,,:\rC");
  EXPECT_EQ(f.Projects(), (Strings{"A"}));
  EXPECT_EQ(Activities(f.Project("A")), (Strings{"\nB"}));
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(CatalogueInput, ColourThatIsNoSixteenBitNumberIsCarried) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "A,12,,:\r\nB,99999,,:\r\nC,1e9,,:\r\nD,-32768,,:\r\nE, 4 ,,:");
  EXPECT_EQ(f.Project("B").Project->intColorCode, 12);
  EXPECT_EQ(f.Project("C").Project->intColorCode, 12);
  EXPECT_EQ(f.Project("D").Project->intColorCode, -32768);
  EXPECT_EQ(f.Project("E").Project->intColorCode, 4);
  EXPECT_TRUE(f.ui.reports.empty());
  EXPECT_FALSE(f.s.err.pending());
}

TEST(CatalogueInput, DatesOutOfRangeReadAsEmpty) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "A,0,99999-1-1,2011-1-1-7:x,-5-40000-1");
  EXPECT_EQ(f.Project("A").Project->StartDate, kEmptyDate);
  EXPECT_EQ(f.Project("A").Project->FinishDate, testing::Day(2011, 1, 1));  // extra parts ignored
  EXPECT_EQ((*f.Project("A").dicList.Find("x"))->DueDate, kEmptyDate);
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(CatalogueInput, HugeNamesRoundTrip) {
  CatalogueFixture f;
  const std::string name(1 << 20, 'n');
  const std::string activity = std::string(1 << 19, 'a') + ":" + std::string(1 << 19, 'b');
  auto project = std::make_shared<cTasksPerProject>();
  project->Project->ListName = name;
  auto task = std::make_shared<cTasksClient>();
  task->Activity = activity;
  project->dicList.Add(activity, task);
  f.catalogue.dicList.Add(name, project);
  const std::string text = f.catalogue.ToString(f.s);
  cTasksPerProjectList read;
  read.FromString(f.s, text);
  ASSERT_EQ(read.dicList.Count(), 1u);
  EXPECT_EQ(read.dicList.Entries()[0].value->Project->ListName, name);
  EXPECT_EQ(Activities(*read.dicList.Entries()[0].value), (Strings{activity}));
  EXPECT_EQ(read.ToString(f.s), text);
}

TEST(CatalogueInput, InvalidUtf8IsKeptByteForByte) {
  CatalogueFixture f;
  const std::string text = "\xFF\xFE x,1,,:\xC3,;ok\x80,\r\nfine\xE2\x82,2,,:";
  f.catalogue.FromString(f.s, text);
  EXPECT_EQ(f.catalogue.dicList.Count(), 2u);
  EXPECT_EQ(Activities(f.Project("\xFF\xFE x")), (Strings{"\xC3", "ok\x80"}));
  EXPECT_EQ(f.catalogue.ToString(f.s), text);
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(CatalogueInput, InvalidBytesCompareAlikeSoTheSecondIsDropped) {
  CatalogueFixture f;
  // Every invalid byte reads as the replacement character when names are compared.
  f.catalogue.FromString(f.s, "x\x80,1,,:\r\nX\xFF,2,,:\r\nx\xEF\xBF\xBD,3,,:");
  EXPECT_EQ(f.Projects(), (Strings{"x\x80"}));
}

TEST(CatalogueInput, NulBytesAreOrdinaryCharacters) {
  CatalogueFixture f;
  const std::string text("A\0B,1,,:c\0,", 11);
  f.catalogue.FromString(f.s, text);
  EXPECT_EQ(f.Projects(), (Strings{std::string("A\0B", 3)}));
  EXPECT_EQ(f.catalogue.ToString(f.s), text);
}

// A million project lines over a thousand names: every line is parsed, the
// first of each name kept.
TEST(CatalogueInput, AMillionLinesAreRead) {
  CatalogueFixture f;
  std::string text;
  text.reserve(1000000 * 24);
  for (int i = 0; i < 1000000; ++i) {
    if (i > 0) text += "\r\n";
    text += "P" + std::to_string(i % 1000) + "," + std::to_string(i % 7) + ",2011-3-1,:t,";
  }
  f.catalogue.FromString(f.s, text);
  EXPECT_EQ(f.catalogue.dicList.Count(), 1000u);
  EXPECT_EQ(f.Project("P999").Project->intColorCode, 999 % 7);
  EXPECT_TRUE(f.ui.reports.empty());
  EXPECT_EQ(f.catalogue.GetProjectsList(f.s)->dicList.Count(), 1000u);
}

TEST(CatalogueInput, ManyLinesEndingInABreakReportOnce) {
  CatalogueFixture f;
  std::string text;
  for (int i = 0; i < 200000; ++i) text += "P" + std::to_string(i % 100) + ",1,,:\r\n";
  f.catalogue.FromString(f.s, text);
  EXPECT_EQ(f.catalogue.dicList.Count(), 100u);
  ASSERT_EQ(f.ui.reports.size(), 1u);
  EXPECT_EQ(f.ReportedLabel(), "In Function: cTasksPerProjectList.FromString");
}

TEST(CatalogueInput, ManyActivitiesInOneLine) {
  CatalogueFixture f;
  std::string text = "P,1,,:";
  for (int i = 0; i < 200000; ++i) text += "a" + std::to_string(i % 500) + ",2011-1-1;";
  f.catalogue.FromString(f.s, text);
  EXPECT_EQ(f.Project("P").dicList.Count(), 500u);
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(CatalogueInput, AMillionEmptyLinesStopAtTheFirst) {
  CatalogueFixture f;
  std::string text;
  for (int i = 0; i < 1000000; ++i) text += "\r\n";
  f.catalogue.FromString(f.s, text);
  EXPECT_EQ(f.catalogue.dicList.Count(), 0u);
  EXPECT_EQ(f.ui.reports.size(), 1u);
}

}  // namespace
}  // namespace qvx
