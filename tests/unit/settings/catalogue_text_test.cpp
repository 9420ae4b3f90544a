// The catalogue text: the worked example, the exact round trip, the
// carry-over of colour and dates, and the failures of a read.
#include <gtest/gtest.h>

#include <random>

#include "catalogue_fixture.h"
#include "reporting/value_codecs.h"

namespace qvx {
namespace {

using testing::Activities;
using testing::CatalogueFixture;
using testing::Day;
using testing::Strings;

constexpr const char* kExample =
    "Alpha_COMMA_ phase 1,5,2011-3-1,:Design,2011-4-15;Review_COLON_ final,\r\nBeta,0,,:";

TEST(CatalogueText, WorkedExampleReadsAsTheTree) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, kExample);
  EXPECT_EQ(f.Projects(), (Strings{"Alpha, phase 1", "Beta"}));

  const cTasksPerProject& alpha = f.Project("alpha, PHASE 1");  // keys ignore case
  EXPECT_EQ(alpha.Project->intColorCode, 5);
  EXPECT_EQ(alpha.Project->StartDate, Day(2011, 3, 1));
  EXPECT_EQ(alpha.Project->FinishDate, kEmptyDate);
  EXPECT_EQ(Activities(alpha), (Strings{"Design", "Review: final"}));
  EXPECT_EQ((*alpha.dicList.Find("design"))->DueDate, Day(2011, 4, 15));
  EXPECT_EQ((*alpha.dicList.Find("Review: final"))->DueDate, kEmptyDate);

  const cTasksPerProject& beta = f.Project("Beta");
  EXPECT_EQ(beta.Project->intColorCode, 0);
  EXPECT_EQ(beta.Project->StartDate, kEmptyDate);
  EXPECT_EQ(beta.dicList.Count(), 0u);
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(CatalogueText, TreeBuiltByHandWritesTheWorkedExample) {
  CatalogueFixture f;
  auto alpha = std::make_shared<cTasksPerProject>();
  alpha->Project->ListName = "Alpha, phase 1";
  alpha->Project->intColorCode = 5;
  alpha->Project->StartDate = Day(2011, 3, 1);
  auto design = std::make_shared<cTasksClient>();
  design->Activity = "Design";
  design->DueDate = Day(2011, 4, 15);
  auto review = std::make_shared<cTasksClient>();
  review->Activity = "Review: final";
  alpha->dicList.Add(design->Activity, design);
  alpha->dicList.Add(review->Activity, review);
  auto beta = std::make_shared<cTasksPerProject>();
  beta->Project->ListName = "Beta";
  f.catalogue.dicList.Add("Alpha, phase 1", alpha);
  f.catalogue.dicList.Add("Beta", beta);

  EXPECT_EQ(alpha->Project->ToString(f.s), "Alpha_COMMA_ phase 1,5,2011-3-1,");
  EXPECT_EQ(review->ToString(f.s), "Review_COLON_ final,");
  EXPECT_EQ(f.catalogue.ToString(f.s), kExample);
}

TEST(CatalogueText, WorkedExampleRoundTripsCharacterForCharacter) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, kExample);
  EXPECT_EQ(f.catalogue.ToString(f.s), kExample);
  cTasksPerProjectList again;
  again.FromString(f.s, f.catalogue.ToString(f.s));
  EXPECT_EQ(again.ToString(f.s), kExample);
}

// Names with separators, the tokens' letters, blanks inside, non-ASCII
// text. A name that holds a token itself ("_COMMA_") cannot come back as it
// was, so such names are drawn again.
std::string RandomName(AddinState& s, std::mt19937& random) {
  static const std::vector<std::string> pieces = {
      "a", "B", "z", "7", " ", ":", ";", ",", "_", "COMMA", "-", "\xC3\xA9", "\xE2\x82\xAC", "'"};
  while (true) {
    std::string name = "n";  // no leading blank: the first activity's would be trimmed
    const size_t length = random() % 8;
    for (size_t i = 0; i < length; ++i) name += pieces[random() % pieces.size()];
    if (DecodeValue(s, Variant(EncodeValue(s, Variant(name)))) == name) return name;
  }
}

DateValue RandomDate(std::mt19937& random) {
  switch (random() % 4) {
    case 0:
      return kEmptyDate;
    case 1:
      return kNoneDate;  // writes as nothing, reads as the empty date
    default:
      return Day(1990 + static_cast<int>(random() % 40), 1 + static_cast<int>(random() % 12),
                 1 + static_cast<int>(random() % 28));
  }
}

TEST(CatalogueText, RandomCataloguesRoundTrip) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    CatalogueFixture f;
    const size_t projects = random() % 12;
    for (size_t p = 0; p < projects; ++p) {
      auto project = std::make_shared<cTasksPerProject>();
      project->Project->ListName = RandomName(f.s, random) + std::to_string(p);
      project->Project->intColorCode = static_cast<int16_t>(static_cast<int>(random() % 200) - 20);
      project->Project->StartDate = RandomDate(random);
      project->Project->FinishDate = RandomDate(random);
      const size_t tasks = random() % 6;
      for (size_t t = 0; t < tasks; ++t) {
        auto task = std::make_shared<cTasksClient>();
        task->Activity = RandomName(f.s, random) + std::to_string(t);
        task->DueDate = RandomDate(random);
        project->dicList.Add(task->Activity, task);
      }
      f.catalogue.dicList.Add(project->Project->ListName, project);
    }
    const std::string text = f.catalogue.ToString(f.s);
    cTasksPerProjectList read;
    read.FromString(f.s, text);
    EXPECT_EQ(read.ToString(f.s), text);
    ASSERT_EQ(read.dicList.Count(), f.catalogue.dicList.Count());
    for (size_t p = 0; p < read.dicList.Count(); ++p) {
      const cTasksPerProject& a = *f.catalogue.dicList.Entries()[p].value;
      const cTasksPerProject& b = *read.dicList.Entries()[p].value;
      EXPECT_EQ(b.Project->ListName, a.Project->ListName);
      EXPECT_EQ(b.Project->intColorCode, a.Project->intColorCode);
      EXPECT_EQ(Activities(b), Activities(a));
    }
    EXPECT_TRUE(f.ui.reports.empty());
  }
}

TEST(CatalogueText, EmptyTextGivesAnEmptyCatalogueWithNoReport) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, kExample);
  f.catalogue.FromString(f.s, "");
  EXPECT_EQ(f.catalogue.dicList.Count(), 0u);
  EXPECT_EQ(f.catalogue.ToString(f.s), "");
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(CatalogueText, ProjectWithoutActivitiesKeepsItsColon) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "Solo,3,2020-1-2,2020-12-31:");
  EXPECT_EQ(f.Project("Solo").dicList.Count(), 0u);
  EXPECT_EQ(f.Project("Solo").Project->FinishDate, Day(2020, 12, 31));
  EXPECT_EQ(f.catalogue.ToString(f.s), "Solo,3,2020-1-2,2020-12-31:");
}

TEST(CatalogueText, MissingColourAndDatesCarryOverFromTheLineBefore) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s,
                         "First:\r\n"                  // nothing read yet: 0 and empty
                         "A,5,2011-3-1,2011-4-1:\r\n"  // sets all three
                         "B,7:\r\n"                    // dates carried
                         "C:\r\n"                      // colour and dates carried
                         "D,x,2011-3,:\r\n"            // colour carried; bad dates are empty
                         "E,,,2012-1-1:");             // blank colour carried
  const auto project = [&](const char* name) { return *f.Project(name).Project; };
  EXPECT_EQ(project("First").intColorCode, 0);
  EXPECT_EQ(project("First").StartDate, kEmptyDate);
  EXPECT_EQ(project("B").intColorCode, 7);
  EXPECT_EQ(project("B").StartDate, Day(2011, 3, 1));
  EXPECT_EQ(project("B").FinishDate, Day(2011, 4, 1));
  EXPECT_EQ(project("C").intColorCode, 7);
  EXPECT_EQ(project("C").FinishDate, Day(2011, 4, 1));
  EXPECT_EQ(project("D").intColorCode, 7);
  EXPECT_EQ(project("D").StartDate, kEmptyDate);  // "2011-3": the empty date, no report
  EXPECT_EQ(project("D").FinishDate, kEmptyDate);
  EXPECT_EQ(project("E").intColorCode, 7);
  EXPECT_EQ(project("E").FinishDate, Day(2012, 1, 1));
  EXPECT_TRUE(f.ui.reports.empty());
  // Written again, the carried values are spelled out.
  cTasksPerProjectList again;
  again.FromString(f.s, f.catalogue.ToString(f.s));
  EXPECT_EQ(again.ToString(f.s), f.catalogue.ToString(f.s));
  EXPECT_EQ((*again.dicList.Find("C"))->Project->ToString(f.s), "C,7,2011-3-1,2011-4-1");
}

TEST(CatalogueText, CarryOverDoesNotOutliveOneRead) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "A,9,2011-3-1,:");
  f.catalogue.FromString(f.s, "B:");
  EXPECT_EQ(f.Project("B").Project->intColorCode, 0);
  EXPECT_EQ(f.Project("B").Project->StartDate, kEmptyDate);
}

struct FailedRead {
  const char* what;
  const char* text;
  Strings kept;
  const char* atLine;
};

TEST(CatalogueText, FailedReadKeepsWhatWasReadAndReportsOnce) {
  const FailedRead rows[] = {
      {"empty line inside", "A,1,,:\r\n\r\nB,2,,:", {"A"}, "At Line: 20"},
      {"line break after the last line", "A,1,,:\r\nB,2,,:\r\n", {"A", "B"}, "At Line: 20"},
      {"line without a colon", "A,1,,:\r\nB,2,,\r\nC,3,,:", {"A"}, "At Line: 50"},
      {"name only", "Lonely", {}, "At Line: 50"},
      {"empty record", ":Design,", {}, "At Line: 30"},
      {"just a line break", "\r\n", {}, "At Line: 20"},
  };
  for (const FailedRead& row : rows) {
    SCOPED_TRACE(row.what);
    CatalogueFixture f;
    f.catalogue.FromString(f.s, "Old,1,,:");
    f.catalogue.FromString(f.s, row.text);
    EXPECT_EQ(f.Projects(), row.kept);
    ASSERT_EQ(f.ui.reports.size(), 1u);
    EXPECT_EQ(f.ReportedLabel(), "In Function: cTasksPerProjectList.FromString");
    EXPECT_EQ(testing::ReportLine(f.ui.reports.front(), 0), row.atLine);
    EXPECT_EQ(testing::ReportLine(f.ui.reports.front(), 3), "Exception Number: 9");
  }
}

TEST(CatalogueText, SecondProjectOfANameIsDropped) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "Alpha,1,,:a,\r\nALPHA,2,,:b,\r\nBeta,3,,:");
  EXPECT_EQ(f.Projects(), (Strings{"Alpha", "Beta"}));
  EXPECT_EQ(f.Project("alpha").Project->intColorCode, 1);
  EXPECT_EQ(Activities(f.Project("alpha")), (Strings{"a"}));
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(CatalogueText, LiteralTokensInANameReadAsSeparators) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "Cost_COMMA_ Time_SCOLON_ x_COLON_ y,1,,:Step_COMMA_ 1,");
  EXPECT_EQ(f.Projects(), (Strings{"Cost, Time; x: y"}));
  EXPECT_EQ(Activities(f.Project("Cost, Time; x: y")), (Strings{"Step, 1"}));
}

TEST(CatalogueText, HostNoneDateWritesAsNothingAndReadsBackEmpty) {
  CatalogueFixture f;
  auto project = std::make_shared<cTasksPerProject>();
  project->Project->ListName = "P";
  project->Project->StartDate = kNoneDate;
  project->Project->FinishDate = Day(2011, 1, 1);
  f.catalogue.dicList.Add("P", project);
  EXPECT_EQ(f.catalogue.ToString(f.s), "P,0,,2011-1-1:");
  cTasksPerProjectList read;
  read.FromString(f.s, f.catalogue.ToString(f.s));
  EXPECT_EQ((*read.dicList.Find("P"))->Project->StartDate, kEmptyDate);
}

TEST(CatalogueText, DateRollsOverAndShortDateIsEmpty) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, "P,0,2011-13-1,2011-3:A,2011-2-30;B,4501-1-1;C,2011-3");
  const cTasksPerProject& p = f.Project("P");
  EXPECT_EQ(p.Project->StartDate, Day(2012, 1, 1));
  EXPECT_EQ(p.Project->FinishDate, kEmptyDate);
  EXPECT_EQ((*p.dicList.Find("A"))->DueDate, Day(2011, 3, 2));
  EXPECT_EQ((*p.dicList.Find("B"))->DueDate, kNoneDate);  // read as it stands
  EXPECT_EQ((*p.dicList.Find("C"))->DueDate, kEmptyDate);
  EXPECT_EQ(f.catalogue.ToString(f.s), "P,0,2012-1-1,:A,2011-3-2;B,;C,");
  EXPECT_TRUE(f.ui.reports.empty());
}

}  // namespace
}  // namespace qvx
