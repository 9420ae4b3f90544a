// The 28 prepared view documents, read back from the add-in's resources as
// the host reads them: each document's kind, name and filter, its fixed
// lead of columns, and the column dictionary against every column.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "core/text.h"
#include "platform/posix/embedded_resources.h"
#include "sim/documents/view_document.h"
#include "views/view_xml.h"

namespace qvx::testing {
namespace {

constexpr std::string_view kUser =
    "http://schemas.microsoft.com/mapi/string/{00020329-0000-0000-C000-000000000046}/";

using Names = std::vector<std::string>;

struct DocumentRow {
  std::string_view type;
  std::string_view resource;
  std::string_view kind;
  std::string_view viewname;
  std::string_view filter;  // user properties without their namespace and quotes; "-": none
};

constexpr std::string_view A = "VIEWS_APPOINTMENT";
constexpr std::string_view T = "VIEWS_TASK";

// The view's name and filter decide which items a user sees under which
// name; the odd ones ("Report ID", "Items Without", the empty filter) are
// what users have always been shown. The task documents are the
// appointment ones but for the differences listed after them.
const std::vector<DocumentRow>& Rows() {
  static const std::vector<DocumentRow> rows = [] {
    std::vector<DocumentRow> rows = {
        {A, "REPORTED_ID", "table", "Reported ID", "-"},
        {A, "REPORTED_STATE", "table", "Reported State", "-"},
        {A, "PROJECT_AND_ACTIVITY", "table", "Project and Activity", "-"},
        {A, "PROJECT", "table", "Project", "-"},
        {A, "ACTIVITY", "table", "Activity", "-"},
        {A, "REPORTED_DATE_(FILTERED)", "table", "Reported Date (Filtered)",
         "NOT(Reported%20Date IS NULL)"},
        {A, "DUE_DATE", "table", "Due Date", "-"},
        {A, "ITEMS_WITHOUT_PROJECT_(FILTERED)", "table", "Items without Project (Filtered)",
         "ProjectValue IS NULL"},
        {A, "ITEMS_WITHOUT_ACTIVITY_(FILTERED)", "table", "Items without Activity (Filtered)",
         "ActivityValue IS NULL"},
        {A, "ITEMS_WITHOUT_PROJECT_AND_ACTIVITY_(FILTERED)", "table",
         "Items Without Project and Activity (Filtered)",
         "(ProjectValue IS NULL AND ActivityValue IS NULL)"},
        {A, "REPORTED_ITEMS_(FILTERED)", "table", "Reported Items (Filtered)", "Reported = 1"},
        {A, "UNREPORTED_ITEMS_(FILTERED)", "table", "Unreported Items (Filtered)",
         "ReportedID IS NULL"},
        {A, "CALENDAR_VIEW_OF_REPORTED_ITEMS_(FILTERED)", "calendar",
         "Calendar view of Reported Items (Filtered)", "Reported = 1"},
        {A, "CALENDAR_VIEW_OF_UNREPORTED_ITEMS_(FILTERED)", "calendar",
         "Calendar view of Unreported Items (Filtered)", "ReportedID IS NULL"},
    };
    const DocumentRow task[] = {
        {T, "REPORTED_ID", "", "Report ID", "-"},
        {T, "DUE_DATE", "", "Due Date", ""},
        {T, "REPORTED_ITEMS_(FILTERED)", "", "Reported Items (Filtered)",
         "NOT(ReportedID IS NULL)"},
        {T, "CALENDAR_VIEW_OF_REPORTED_ITEMS_(FILTERED)", "",
         "Calendar view of Reported Items (Filtered)", "NOT(ReportedID IS NULL)"},
    };
    for (size_t n = 0, appointments = rows.size(); n < appointments; ++n) {
      DocumentRow row = rows[n];
      row.type = T;
      for (const DocumentRow& differs : task) {
        if (differs.resource != row.resource) continue;
        row.viewname = differs.viewname;
        row.filter = differs.filter;
      }
      rows.push_back(row);
    }
    return rows;
  }();
  return rows;
}

constexpr std::string_view kTaskProp =
    "http://schemas.microsoft.com/mapi/id/{00062003-0000-0000-C000-000000000046}/";

struct ColumnDefinition {
  std::string prop;  // a user property by its name alone
  std::string type;  // "" : none
  std::string editable;
  bool user = false;
};

const std::map<std::string, ColumnDefinition>& Dictionary() {
  static const std::map<std::string, ColumnDefinition> columns = {
      {"Icon", {"http://schemas.microsoft.com/mapi/proptag/0x0fff0102", "", "0"}},
      {"Attachment", {"urn:schemas:httpmail:hasattachment", "boolean", "0"}},
      {"Priority", {"urn:schemas:httpmail:importance", "i4", "1"}},
      {"ID", {"ReportedID", "string", "0", true}},
      {"Subject", {"urn:schemas:httpmail:subject", "string", "1"}},
      {"Project", {"ProjectValue", "string", "0", true}},
      {"Activity", {"ActivityValue", "string", "0", true}},
      {"Location", {"urn:schemas:calendar:location", "string", "1"}},
      {"Start", {"urn:schemas:calendar:dtstart", "datetime", "1"}},
      {"End", {"urn:schemas:calendar:dtend", "datetime", "1"}},
      {"Reported Date", {"ReportedDate", "datetime", "0", true}},
      {"Reported By", {"ReportedBy", "string", "0", true}},
      {"Recurrence",
       {"http://schemas.microsoft.com/mapi/id/{00062002-0000-0000-C000-000000000046}/82310003",
        "i4", "1"}},
      {"Categories", {"urn:schemas-microsoft-com:office:office#Keywords", "", "1"}},
      {"Due By", {"urn:schemas:calendar:replytime", "datetime", "0"}},
      {"Status", {std::string(kTaskProp) + "81010003", "i4", "1"}},
      {"Due Date", {std::string(kTaskProp) + "81050040", "datetime", "1"}},
      {"% Complete", {std::string(kTaskProp) + "81020005", "float", "1"}},
      {"Flag Status", {"http://schemas.microsoft.com/mapi/proptag/0x10900003", "i4", "1"}},
  };
  return columns;
}

std::string Unqualified(std::string_view text) {
  return Replace(Replace(text, kUser, ""), "\"", "");
}

std::string Document(const DocumentRow& row) {
  platform::EmbeddedResources resources(platform::ProductResources());
  return platform::LoadResData(resources, row.type, row.resource);
}

std::string Name(const ::testing::TestParamInfo<DocumentRow>& info) {
  std::string name = std::string(info.param.type) + "_" + std::string(info.param.resource);
  std::erase_if(name, [](char c) { return c == '(' || c == ')'; });
  return name;
}

class ViewDocument : public ::testing::TestWithParam<DocumentRow> {};

TEST_P(ViewDocument, IsEightBitCrLfTextOfItsRowAndColumnsOfTheDictionary) {
  const DocumentRow& row = GetParam();
  const std::string xml = Document(row);
  EXPECT_EQ(xml.rfind("<?xml version=\"1.0\"?>\r\n", 0), 0u);
  EXPECT_EQ(xml.find("\n"), xml.find("\r\n") + 1) << "CRLF line ends";
  EXPECT_EQ(Replace(xml, "\r\n", "").find('\n'), std::string::npos);
  EXPECT_NE(xml.find("\r\n\t<viewname>"), std::string::npos) << "tab indentation";
  for (const unsigned char c : xml) EXPECT_LT(c, 0x80);
  const bool strayTail = row.type == T && row.resource == "PROJECT";
  EXPECT_EQ(xml.substr(xml.rfind("</view>")), strayTail ? "</view>\r\niew>\r\n" : "</view>\r\n");

  const auto doc = sim::ParseViewDocument(xml);
  ASSERT_TRUE(doc) << "well-formed, with a view root";
  EXPECT_EQ(doc->Attribute("type") ? *doc->Attribute("type") : "", row.kind);
  EXPECT_EQ(doc->ChildText("viewname"), row.viewname);
  EXPECT_EQ(doc->ChildText("viewstyle"),
            "table-layout:fixed;width:100%;font-family:Segoe UI;font-style:normal;"
            "font-weight:normal;font-size:8pt;color:Black;font-charset:0");
  EXPECT_FALSE(doc->ChildText("viewtime").empty());
  const sim::ViewElement* filter = doc->Child("filter");
  EXPECT_EQ(filter ? Unqualified(filter->text) : "-", row.filter);
  if (row.kind == "calendar") {
    EXPECT_TRUE(doc->Children("column").empty());
    EXPECT_EQ(doc->ChildText("calendarstyle"), "font-size:16pt");
    EXPECT_EQ(doc->ChildText("mode"), row.type == A ? "4" : "2");
    EXPECT_EQ(doc->ChildText("taskfilter"), row.type == A ? "1" : "0");
    EXPECT_EQ(doc->Child("embeddedview") != nullptr, row.type == A);
    EXPECT_EQ(doc->ChildText("startfield"),
              row.type == A ? "urn:schemas:calendar:dtstart" : std::string(kTaskProp) + "81040040");
    return;
  }
  Names columns;
  for (const sim::ViewElement* column : doc->Children("column")) {
    columns.push_back(column->Child("name") ? column->ChildText("name")
                                            : column->ChildText("heading"));
  }
  const Names lead = row.type == A ? Names{"HREF", "Icon", "Attachment"}
                                   : Names{"HREF", "Icon", "Priority", "Attachment"};
  ASSERT_GT(columns.size(), lead.size());
  EXPECT_EQ(Names(columns.begin(), columns.begin() + lead.size()), lead);
  EXPECT_EQ(doc->ChildText("groupbydefault"), "2");
  const bool noPreviewPane = row.type == T && row.resource == "DUE_DATE";
  EXPECT_EQ(doc->Child("previewpane") == nullptr, noPreviewPane);
  // Every column as the dictionary defines it, but for the exceptions that
  // stay: a blank activity column, and columns left editable.
  for (const sim::ViewElement* column : doc->Children("column")) {
    const std::string heading = column->ChildText("heading");
    if (column->Child("name")) {
      EXPECT_EQ(column->ChildText("prop"), "DAV:href");
      EXPECT_EQ(column->ChildText("checkbox"), "1");
      continue;
    }
    SCOPED_TRACE(heading);
    const auto found = Dictionary().find(heading);
    ASSERT_NE(found, Dictionary().end());
    ColumnDefinition def = found->second;
    if (row.type == A && row.resource == "REPORTED_DATE_(FILTERED)" && heading == "Activity") {
      def.prop = "TaskValue";
    }
    const bool leftEditable = (row.type == A && row.resource == "DUE_DATE" &&
                               (heading == "ID" || heading == "Project" || heading == "Activity" ||
                                heading == "Reported Date")) ||
                              (row.type == T && row.resource == "REPORTED_ITEMS_(FILTERED)" &&
                               heading == "Reported Date");
    if (leftEditable) def.editable = "1";
    EXPECT_EQ(column->ChildText("prop"), (def.user ? std::string(kUser) : "") + def.prop);
    EXPECT_EQ(column->ChildText("userheading"), def.user ? heading : "");
    EXPECT_EQ(column->ChildText("type"), def.type);
    EXPECT_EQ(column->ChildText("editable"), def.editable);
    EXPECT_FALSE(column->ChildText("width").empty());
    const bool narrow = column->ChildText("width") == "18";
    EXPECT_EQ(column->ChildText("style"),
              narrow ? "padding-left:3px;;text-align:center" : "padding-left:3px;;text-align:left");
  }
}

INSTANTIATE_TEST_SUITE_P(All, ViewDocument, ::testing::ValuesIn(Rows()), Name);

}  // namespace
}  // namespace qvx::testing
