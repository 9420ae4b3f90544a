// The catalogue text as it may come from the registry: stray separators,
// other line ends, odd colours, invalid UTF-8, huge names and very many lines.
#include <gtest/gtest.h>

#include "catalogue_fixture.h"

namespace qvx {
namespace {

using testing::Activities;
using testing::CatalogueFixture;
using testing::Strings;

TEST(CatalogueInput, OddTextsAreReadWithoutAReport) {
  const struct {
    const char* what;
    std::string text, written;
    size_t projectNames;  // nameless projects are no project names
  } rows[] = {
      // ",," is a nameless activity; after a second ":" nothing counts.
      {"stray separators",
       ",,,,,:;;;,,;\r\nB,1,,:x,:y;z,\r\nC,2,,::", ",0,,:,\r\nB,1,,:x,\r\nC,2,,:", 2},
      {"other line ends do not split lines", "A,1,,:\nB,2,,:\rC", "A,1,,:\nB,", 1},
      // A colour that is no sixteen-bit number: the one before is carried.
      {"colours", "A,12,,:\r\nB,99999,,:\r\nC,1e9,,:\r\nD,-32768,,:\r\nE, 4 ,,:",
       "A,12,,:\r\nB,12,,:\r\nC,12,,:\r\nD,-32768,,:\r\nE,4,,:", 5},
      {"invalid UTF-8 kept byte for byte", "\xFF\xFE x,1,,:\xC3,;ok\x80,\r\nfine\xE2\x82,2,,:",
       "\xFF\xFE x,1,,:\xC3,;ok\x80,\r\nfine\xE2\x82,2,,:", 2},
      // Every invalid byte reads as the replacement character when names are
      // compared, so the second and third are dropped.
      {"invalid bytes compare alike",
       "x\x80,1,,:\r\nX\xFF,2,,:\r\nx\xEF\xBF\xBD,3,,:", "x\x80,1,,:", 1},
      {"NUL bytes", std::string("A\0B,1,,:c\0,", 11), std::string("A\0B,1,,:c\0,", 11), 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    CatalogueFixture f;
    f.catalogue.FromString(f.s, row.text);
    EXPECT_EQ(f.catalogue.ToString(f.s), row.written);
    EXPECT_EQ(f.catalogue.GetProjectsList(f.s)->dicList.Count(), row.projectNames);
    EXPECT_TRUE(f.Reports().empty());
    EXPECT_FALSE(f.s.err.pending());
  }
}

TEST(CatalogueInput, HugeNamesRoundTrip) {
  CatalogueFixture f;
  const std::string name(1 << 20, 'n'), a(1 << 19, 'a'), b(1 << 19, 'b');
  const std::string text = name + ",0,,:" + a + "_COLON_" + b + ",";
  f.catalogue.FromString(f.s, text);
  EXPECT_EQ(f.Projects(), (Strings{name}));
  EXPECT_EQ(Activities(f.Project(name)), (Strings{a + ":" + b}));
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
  EXPECT_TRUE(f.Reports().empty());
  EXPECT_EQ(f.catalogue.GetProjectsList(f.s)->dicList.Count(), 1000u);
}

}  // namespace
}  // namespace qvx
