// The host's reading of customUI markup: what it accepts, and what it
// rejects whole.
#include "sim/ribbon/ribbon_markup.h"

#include <gtest/gtest.h>

#include <string>

namespace qvx::sim {
namespace {

const std::string k2006 = "xmlns=\"http://schemas.microsoft.com/office/2006/01/customui\"";
const std::string k2009 = "xmlns=\"http://schemas.microsoft.com/office/2009/07/customui\"";

TEST(RibbonMarkup, WellFormedDocumentsOfBothSchemasGiveTheirTree) {
  const std::string text = "<customUI " + k2009 + " onLoad=\"OnLoad\"><ribbon><tabs>" +
                           "<tab idMso=\"TabCalendar\"><group id=\"g1\" label=\"A &amp; B\">" +
                           "<button id=\"b1\"/></group></tab></tabs></ribbon>" +
                           "<backstage/><contextMenus/></customUI>";
  const auto doc = ParseRibbonMarkup(text, "customUI");
  ASSERT_TRUE(doc.has_value());
  EXPECT_EQ(*doc->Attribute("onLoad"), "OnLoad");
  const MarkupElement& tab = doc->Child("ribbon")->Child("tabs")->children.at(0);
  EXPECT_EQ(tab.Key(), "TabCalendar");
  EXPECT_EQ(*tab.children.at(0).Attribute("label"), "A & B");
  EXPECT_EQ(tab.children.at(0).children.at(0).name, "button");
  EXPECT_EQ(tab.children.at(0).Attribute("Label"), nullptr);  // names are case-sensitive

  EXPECT_TRUE(ParseRibbonMarkup("<customUI " + k2006 + "><ribbon/></customUI>", "customUI"));
  EXPECT_TRUE(ParseRibbonMarkup("<menu " + k2009 + "><button id=\"x\"/></menu>", "menu"));
}

TEST(RibbonMarkup, WhatTheHostWouldNotLoadGivesNothing) {
  const struct {
    const char* why;
    std::string text;
  } cases[] = {
      {"empty", ""},
      {"unclosed element", "<customUI " + k2009 + "><ribbon></customUI>"},
      {"unquoted attribute", "<customUI " + k2009 + " onLoad=OnLoad/>"},
      {"bare ampersand", "<customUI " + k2009 +
                             "><ribbon><tabs><tab id=\"t\" label=\"A & B\"/>"
                             "</tabs></ribbon></customUI>"},
      {"text after the root", "<customUI " + k2009 + "/>trailing"},
      {"another root", "<menu " + k2009 + "/>"},
      {"no namespace", "<customUI><ribbon/></customUI>"},
      {"unknown namespace", "<customUI xmlns=\"urn:other\"><ribbon/></customUI>"},
      {"element of another namespace",
       "<customUI " + k2009 + " xmlns:o=\"urn:other\"><o:ribbon/></customUI>"},
      {"backstage in a 2006 document", "<customUI " + k2006 + "><backstage/></customUI>"},
      {"an id given twice", "<customUI " + k2009 +
                                "><ribbon><tabs><tab id=\"t\"/><tab id=\"t\"/>"
                                "</tabs></ribbon></customUI>"},
      {"a document type with an entity",
       "<!DOCTYPE customUI [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>"
       "<customUI " +
           k2009 + " onLoad=\"&x;\"/>"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_FALSE(ParseRibbonMarkup(c.text, "customUI").has_value());
  }
}

}  // namespace
}  // namespace qvx::sim
