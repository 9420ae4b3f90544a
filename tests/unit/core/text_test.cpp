#include "core/text.h"

#include <gtest/gtest.h>

namespace qvx {
namespace {

TEST(Text, TrimSplitAndReplaceKeepTheRuntimeEdgeCases) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");  // blanks only
  EXPECT_TRUE(Split("", "|").empty());
  EXPECT_EQ(Split("a", "").size(), 1u);
  EXPECT_EQ(Split("a||b|", "|"), (std::vector<std::string>{"a", "", "b", ""}));
  EXPECT_EQ(Join(Split("x\r\ny", "\r\n"), "|"), "x|y");
  EXPECT_EQ(Replace("aaa", "a", "aa"), "aaaaaa");  // not recursive
  EXPECT_EQ(Replace("x", "", "y"), "x");
}

TEST(Text, CaseBlindCompareCoversLatinGreekCyrillic) {
  EXPECT_TRUE(EqualsText("Projekt ÄÖÜ", "projekt äöü"));
  EXPECT_TRUE(EqualsText("ΑΒΓ", "αβγ"));
  EXPECT_TRUE(EqualsText("ПРОЕКТ", "проект"));
  EXPECT_FALSE(EqualsText("a", "b"));
  EXPECT_EQ(CompareText("apple", "Banana"), -1);
  EXPECT_EQ(UCase("straße"), "STRAßE");
}

TEST(Text, PositionsAreOneBasedAndCountCharacters) {
  EXPECT_EQ(InStr("Mailbox - Jane", " - "), 8u);
  EXPECT_EQ(InStr("abc", "x"), 0u);
  EXPECT_EQ(InStrText("MAILBOX - jane", "box - J"), 5u);
  EXPECT_EQ(InStr("aXbX", "X", 3), 4u);
  EXPECT_EQ(Mid("héllo", 2, 3), "éll");
  EXPECT_EQ(Left("héllo", 2), "hé");
  EXPECT_EQ(Right("héllo", 4), "éllo");
  EXPECT_EQ(Len("héllo"), 5u);
}

TEST(Text, Utf16RoundTripAndInvalidBytes) {
  const std::string s = "Zeit \xF0\x9F\x95\x92 Ärger";
  EXPECT_EQ(Utf16ToUtf8(Utf8ToUtf16(s)), s);
  EXPECT_EQ(Utf8ToUtf16("\xF0\x9F\x95\x92").size(), 2u);
  EXPECT_EQ(SanitizeUtf8("a\xff"
                         "b"),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(SanitizeUtf8("\xC0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD");  // overlong NUL
  EXPECT_EQ(Utf16ToUtf8(std::u16string(1, u'\xD800')), "\xEF\xBF\xBD");
  // ASCII runs end exactly where a wider character or a lone surrogate starts.
  const std::u16string mixed{u'a', 0x7F, 0x80, u'b', 0, 0xDC00, u'c', 0xD800};
  EXPECT_EQ(Utf16ToUtf8(mixed), std::string("a\x7F\xC2\x80"
                                            "b\0\xEF\xBF\xBD"
                                            "c\xEF\xBF\xBD",
                                            13));
}

}  // namespace
}  // namespace qvx
