#include "apps/qvx-sim/script.h"

#include <gtest/gtest.h>

namespace qvx::scenario {
namespace {

TEST(ScenarioScript, SplitsWordsQuotesAndComments) {
  Script script;
  const auto error = ParseScript(
      "# setup\n"
      "registry set DBChoice \"0\"  # inline\n"
      "\n"
      "expect msgbox \"A library file is missing!\\nPlease re-install\" title \"Q\"\r\n",
      "t.qvx", script);
  ASSERT_FALSE(error.has_value());
  ASSERT_EQ(script.statements.size(), 2u);
  EXPECT_EQ(script.statements[0].lineNumber, 2);
  EXPECT_EQ(script.statements[0].words,
            (std::vector<std::string>{"registry", "set", "DBChoice", "0"}));
  EXPECT_EQ(script.statements[1].lineNumber, 4);
  EXPECT_EQ(script.statements[1].words[2], "A library file is missing!\nPlease re-install");
  EXPECT_EQ(script.statements[1].text.back(), '"');
}

TEST(ScenarioScript, HexEscapesGiveAnyByteAndBackslashesStayOutsideQuotes) {
  std::vector<std::string> words;
  std::string error;
  ASSERT_TRUE(SplitWords("set \"a\\x00\\xFFb\\x7e\" C:\\Data\\x.mdb \"\"", words, error)) << error;
  ASSERT_EQ(words.size(), 4u);
  EXPECT_EQ(words[3], "");  // an empty quoted word counts
  EXPECT_EQ(words[1], std::string("a\0\xFF"
                                  "b~",
                                  5));
  EXPECT_EQ(words[2], "C:\\Data\\x.mdb");
}

TEST(ScenarioScript, MalformedLinesNameTheirLine) {
  struct Row {
    const char* text;
    int line;
  };
  const Row rows[] = {{"a\nb \"open", 2}, {"x\ny\nz \"bad\\q\"", 3},         {"\"glued\"word", 1},
                      {"wo\"rd", 1},      {"ok\n\"trailing backslash\\", 2}, {"\"\\x4\"", 1},
                      {"\"\\xg0\"", 1}};
  for (const Row& row : rows) {
    Script script;
    const auto error = ParseScript(row.text, "t", script);
    ASSERT_TRUE(error.has_value()) << row.text;
    EXPECT_EQ(error->lineNumber, row.line) << row.text;
    EXPECT_FALSE(error->message.empty());
  }
}

}  // namespace
}  // namespace qvx::scenario
