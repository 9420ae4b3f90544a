// The catalogue text: the worked example, the exact round trip, and the
// failures of a read (the carry-over and the dates: catalogue_text.qvx).
#include <gtest/gtest.h>

#include <random>

#include "catalogue_fixture.h"
#include "schema/value_codecs.h"

namespace qvx {
namespace {

using testing::Activities;
using testing::CatalogueFixture;
using testing::Strings;

constexpr const char* kExample =
    "Alpha_COMMA_ phase 1,5,2011-3-1,:Design,2011-4-15;Review_COLON_ final,\r\nBeta,0,,:";

TEST(CatalogueText, WorkedExampleReadsAsTheTreeAndWritesBackUnchanged) {
  CatalogueFixture f;
  f.catalogue.FromString(f.s, kExample);
  EXPECT_EQ(f.Projects(), (Strings{"Alpha, phase 1", "Beta"}));
  const cTasksPerProject& alpha = f.Project("alpha, PHASE 1");  // keys ignore case
  EXPECT_EQ(alpha.Project->StartDate, DateSerial(2011, 3, 1));
  EXPECT_EQ(alpha.Project->FinishDate, kEmptyDate);
  EXPECT_EQ(Activities(alpha), (Strings{"Design", "Review: final"}));
  EXPECT_EQ(alpha.dicList.Find("design")->DueDate, DateSerial(2011, 4, 15));
  EXPECT_EQ(f.Project("Beta").Project->StartDate, kEmptyDate);
  EXPECT_EQ(f.catalogue.ToString(f.s), kExample);  // colours, and no activities for Beta
  // An empty text empties the catalogue, with no report.
  f.catalogue.FromString(f.s, "");
  EXPECT_EQ(f.catalogue.ToString(f.s), "");
  EXPECT_TRUE(f.Reports().empty());
}

// Names with separators, the tokens' letters, blanks inside, non-ASCII
// text. A name that holds a token itself ("_COMMA_") cannot come back as it
// was, so such names are drawn again.
std::string RandomName(AddinState& s, std::mt19937& random) {
  static const Strings pieces = {
      "a", "B", "z", "7", " ", ":", ";", ",", "_", "COMMA", "-", "\xC3\xA9", "\xE2\x82\xAC", "'"};
  while (true) {
    std::string name = "n";  // no leading blank: the first activity's would be trimmed
    for (size_t i = random() % 8; i > 0; --i) name += pieces[random() % pieces.size()];
    if (DecodeValue(s, Variant(EncodeValue(s, Variant(name)))) == name) return name;
  }
}

// The empty date, the host's none date (written as nothing, read as empty) or a day.
DateValue RandomDate(std::mt19937& random) {
  const auto kind = random() % 4;
  if (kind < 2) return kind == 0 ? kEmptyDate : kNoneDate;
  return DateSerial(1990 + static_cast<int>(random() % 40), 1 + static_cast<int>(random() % 12),
                    1 + static_cast<int>(random() % 28));
}

// Names, colours and activities in order: what the text must carry exactly.
Strings Tree(const cTasksPerProjectList& catalogue) {
  Strings tree;
  for (const auto& entry : catalogue.dicList) {
    const cProjectClient& client = *entry.value->Project;
    tree.push_back(client.ListName + "#" + std::to_string(client.intColorCode));
    for (const std::string& activity : Activities(*entry.value)) tree.push_back(activity);
  }
  return tree;
}

TEST(CatalogueText, RandomCataloguesRoundTrip) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    CatalogueFixture f;
    for (size_t p = random() % 12; p > 0; --p) {
      auto project = std::make_shared<cTasksPerProject>();
      cProjectClient& client = *project->Project;
      client.ListName = RandomName(f.s, random) + std::to_string(p);
      client.intColorCode = static_cast<int16_t>(static_cast<int>(random() % 200) - 20);
      client.StartDate = RandomDate(random);
      client.FinishDate = RandomDate(random);
      for (size_t t = random() % 6; t > 0; --t) {
        cTasksClient task;
        task.Activity = RandomName(f.s, random) + std::to_string(t);
        task.DueDate = RandomDate(random);
        project->dicList.Add(task.Activity, task);
      }
      f.catalogue.dicList.Add(client.ListName, project);
    }
    const std::string text = f.catalogue.ToString(f.s);
    cTasksPerProjectList read;
    read.FromString(f.s, text);
    EXPECT_EQ(read.ToString(f.s), text);
    EXPECT_EQ(Tree(read), Tree(f.catalogue));
    EXPECT_TRUE(f.Reports().empty());
  }
}

TEST(CatalogueText, FailedReadKeepsWhatWasReadAndReportsOnce) {
  // An empty line inside, with its report's number: catalogue_projects.qvx.
  const std::pair<const char*, Strings> rows[] = {
      {"A,1,,:\r\nB,2,,:\r\n", {"A", "B"}},  // a line break after the last line
      {"A,1,,:\r\nB,2,,\r\nC,3,,:", {"A"}},  // a line without a colon
      {"Lonely", {}},
      {":Design,", {}},  // an empty record
  };
  for (const auto& [text, kept] : rows) {
    CatalogueFixture f;
    f.catalogue.FromString(f.s, "Old,1,,:");
    f.catalogue.FromString(f.s, text);
    EXPECT_EQ(f.Projects(), kept) << text;
    EXPECT_TRUE(f.ReportedOnce("cTasksPerProjectList.FromString"));
  }
}

}  // namespace
}  // namespace qvx
