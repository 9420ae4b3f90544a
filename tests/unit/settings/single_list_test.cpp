// cSingleList: text in and out, the combo box, and the other moves.
#include "settings/single_list.h"

#include <gtest/gtest.h>

#include "settings_fixture.h"
#include "sim/fake_object.h"

namespace qvx {
namespace {

using testing::SettingsFixture;

std::vector<std::string> Items(const cSingleList& list) {
  std::vector<std::string> items;
  for (const auto& entry : list.dicList) items.push_back(entry.value);
  return items;
}

using Strings = std::vector<std::string>;

// A combo box with Text, Clear, AddItem, ListCount, List(i) and ListIndex.
struct Combo {
  explicit Combo(std::string text = "") {
    object = std::make_shared<sim::FakeObject>("CommandBarComboBox");
    object->Property("Text", Variant(text)).Property("ListIndex", Variant(int32_t{-1}));
    object->Method("Clear", 0, 0, [this](sim::Args&) {
      rows.clear();
      return Variant();
    });
    object->Method("AddItem", 1, 2, [this](sim::Args& a) {
      rows.push_back(a[0].ToText());
      return Variant();
    });
    object->Method("ListCount", 0, 0,
                   [this](sim::Args&) { return Variant(static_cast<int32_t>(rows.size())); });
    object->Method("List", 1, 1, [this](sim::Args& a) {
      const int32_t i = a[0].ToLong();
      if (i < 0 || i >= static_cast<int32_t>(rows.size())) throw Failure::Runtime(5);
      return Variant(rows[static_cast<size_t>(i)]);
    });
  }
  std::shared_ptr<sim::FakeObject> object;
  Strings rows;
};

TEST(SingleList, FromStringSortsAndDropsDuplicatesAndEmptyParts) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "beta\r\nAlpha\r\n\r\nBETA\r\n  \r\n10\r\n9", "\r\n");
  EXPECT_EQ(Items(list), (Strings{"  ", "10", "9", "Alpha", "beta"}));
  // Only blanks are trimmed from the whole: the line break after the blank entry stays.
  EXPECT_EQ(list.ToString(f.s, "\r\n", false), "\r\n10\r\n9\r\nAlpha\r\nbeta");
}

TEST(SingleList, FromStringOfEmptyTextEmptiesTheList) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "x,y", ",");
  list.FromString(f.s, "", ",");
  EXPECT_EQ(list.dicList.Count(), 0u);
  EXPECT_EQ(list.ToString(f.s, ",", true), "");
}

TEST(SingleList, ToStringTrimsOnlyTheWholeResult) {
  SettingsFixture f;
  cSingleList list;
  list.dicList.Add("  lead", "  lead");
  list.dicList.Add(" mid ", " mid ");
  list.dicList.Add("tail  ", "tail  ");
  EXPECT_EQ(list.ToString(f.s, ";", false), "lead; mid ;tail");
}

TEST(SingleList, SortedToStringReordersTheListItself) {
  SettingsFixture f;
  cSingleList list;
  for (const char* item : {"b", "C", "a"}) list.dicList.Add(item, item);
  EXPECT_EQ(list.ToString(f.s, ",", false), "b,C,a");
  EXPECT_EQ(list.ToString(f.s, ",", true), "a,b,C");
  EXPECT_EQ(Items(list), (Strings{"a", "b", "C"}));
}

TEST(SingleList, OneEntryStaysAsItIs) {
  SettingsFixture f;
  cSingleList list;
  list.dicList.Add(" only ", " only ");
  EXPECT_EQ(list.ToString(f.s, ",", true), "only");
  EXPECT_EQ(list.RandomItem(f.s), " only ");
}

TEST(SingleList, GetItemIndexIsExactThoughKeysIgnoreCase) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "Alpha|Beta|Gamma", "|");
  EXPECT_EQ(list.getItemIndex(f.s, "Beta"), 1);
  EXPECT_TRUE(list.dicList.Exists("ALPHA"));
  EXPECT_EQ(list.getItemIndex(f.s, "ALPHA"), 3);
  EXPECT_EQ(list.getItemIndex(f.s, ""), 3);
}

TEST(SingleList, GetItemTrimsAndIsEmptyOutsideTheList) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, " a |b", "|");
  EXPECT_EQ(list.GetItem(f.s, 0), "a");
  EXPECT_EQ(list.GetItem(f.s, 1), "b");
  EXPECT_EQ(list.GetItem(f.s, 2), "");
  EXPECT_EQ(list.GetItem(f.s, -1), "");
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(SingleList, ToStringTabSkipsEmptyItemsAndAddsTabBlank) {
  SettingsFixture f;
  cSingleList list;
  EXPECT_EQ(list.ToStringTab(f.s), "\t ");
  list.dicList.Add("a", "a");
  list.dicList.Add("", "");
  list.dicList.Add("b", "b");
  EXPECT_EQ(list.ToStringTab(f.s), "a\tb\t\t ");
}

TEST(SingleList, PopulateComboListFillsAndSelects) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "b\n  \na", "\n");
  Combo combo;
  std::string value = "b";
  list.PopulateComboList(f.s, combo.object->AsObject(), value, true);
  EXPECT_EQ(combo.rows, (Strings{"a", "b", ""}));  // blank entry skipped, blank row last
  EXPECT_EQ(combo.object->Value("Text").ToText(), "b");
  EXPECT_EQ(value, "b");
}

TEST(SingleList, PopulateComboListKeepsTheShownText) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "a\nb", "\n");
  Combo combo("typed by hand");
  std::string value = "a";
  list.PopulateComboList(f.s, combo.object->AsObject(), value, false);
  EXPECT_EQ(value, "typed by hand");
  EXPECT_EQ(combo.object->Value("Text").ToText(), "typed by hand");
  EXPECT_EQ(combo.rows, (Strings{"a", "b"}));
}

TEST(SingleList, PopulateComboListSelectsTheRowWhenTextIsReadOnly) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "a\nb\nc", "\n");
  Combo combo;
  sim::Fault fault;
  fault.number = static_cast<int32_t>(0x80004005);
  fault.description = "read-only";
  fault.kind = InvokeKind::Put;  // the text can be read, not written
  combo.object->FailMember("Text", fault);
  std::string value = "c";
  list.PopulateComboList(f.s, combo.object->AsObject(), value, false);
  EXPECT_EQ(combo.object->Value("ListIndex").ToLong(), 2);
  EXPECT_FALSE(f.s.err.pending());
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(SingleList, FromArrayKeepsOrderAndSkipsBlanks) {
  SettingsFixture f;
  cSingleList list;
  list.FromArray(f.s,
                 {Variant("z"), Variant("  "), Variant(int16_t{5}), Variant("Z"), Variant(" y ")});
  EXPECT_EQ(Items(list), (Strings{"z", "5", " y "}));
}

TEST(SingleList, ToArrayPutsNonEmptyItemsInRowZero) {
  SettingsFixture f;
  cSingleList list;
  list.dicList.Add("a", "a");
  list.dicList.Add("", "");
  list.dicList.Add("b", "b");
  const auto table = list.ToArray(f.s);
  ASSERT_EQ(table.size(), 1u);
  EXPECT_EQ(table[0], (Strings{"a", "b", ""}));
}

TEST(SingleList, ToArrayOfAnEmptyListReports) {
  SettingsFixture f;
  cSingleList list;
  EXPECT_TRUE(list.ToArray(f.s).empty());
  ASSERT_EQ(f.ui.reports.size(), 1u);
  EXPECT_EQ(testing::ReportLine(f.ui.reports[0], 1), "In Function: SingleList.GetArray");
  EXPECT_EQ(testing::ReportLine(f.ui.reports[0], 3), "Exception Number: 9");
}

TEST(SingleList, FromComboOrListTakesSelectedRowsOnly) {
  SettingsFixture f;
  Combo box;
  box.rows = {"one", "two", "three", "TWO"};
  const std::vector<bool> selected = {false, true, true, true};
  box.object->Method("Selected", 1, 1, [&](sim::Args& a) {
    return Variant(static_cast<bool>(selected[static_cast<size_t>(a[0].ToLong())]));
  });
  cSingleList list;
  list.FromComboOrList(f.s, box.object->AsObject());
  EXPECT_EQ(Items(list), (Strings{"two", "three"}));
}

TEST(SingleList, FromListViewWithAndWithoutTags) {
  SettingsFixture f;
  std::vector<Variant> rows;
  std::vector<std::shared_ptr<sim::FakeObject>> keep;
  for (const char* text : {"x", "y"}) {
    auto row = std::make_shared<sim::FakeObject>("ListItem");
    row->Property("Text", Variant(text)).Property("Tag", Variant("#1"));
    keep.push_back(row);
  }
  auto items = std::make_shared<sim::FakeObject>("ListItems");
  items->Property("Count", Variant(int32_t{2}));
  items->Method("Item", 1, 1, [&](sim::Args& a) {
    return keep[static_cast<size_t>(a[0].ToLong() - 1)]->AsVariant();
  });
  auto view = std::make_shared<sim::FakeObject>("ListView");
  view->Property("ListItems", items->AsVariant());
  cSingleList list;
  list.dicList.Add("old", "old");
  list.FromListView(f.s, view->AsObject(), false);
  EXPECT_EQ(Items(list), (Strings{"x", "y"}));
  list.FromListView(f.s, view->AsObject(), true);
  EXPECT_EQ(Items(list), (Strings{"x", "y", "x#1", "y#1"}));
}

// A recordset over a vector of rows: EOF, MoveNext, MoveFirst, Fields.Item(1)
// with Value and Name, AddNew, Update, Find and Delete.
struct Recordset {
  explicit Recordset(Strings values) : rows(std::move(values)) {
    field = std::make_shared<sim::FakeObject>("Field");
    field->Property("Name", Variant("Value")).Property("Value", Variant());
    fields = std::make_shared<sim::FakeObject>("Fields");
    fields->Method("Item", 1, 1, [this](sim::Args& a) {
      EXPECT_EQ(a[0].ToLong(), 1);
      return field->AsVariant();
    });
    rs = std::make_shared<sim::FakeObject>("Recordset");
    rs->Property("Fields", fields->AsVariant());
    rs->Method("EOF", 0, 0, [this](sim::Args&) { return Variant(at >= rows.size()); });
    rs->Method("MoveNext", 0, 0, [this](sim::Args&) { return Move(at + 1); });
    rs->Method("MoveFirst", 0, 0, [this](sim::Args&) { return Move(0); });
    rs->Method("AddNew", 0, 0, [this](sim::Args&) {
      rows.push_back("");
      return Move(rows.size() - 1);
    });
    rs->Method("Update", 0, 0, [this](sim::Args&) {
      rows.at(at) = field->Value("Value").ToText();
      return Variant();
    });
    rs->Method("Find", 1, 1, [this](sim::Args& a) {
      finds.push_back(a[0].ToText());
      size_t i = at;
      while (i < rows.size() && "Value = '" + rows[i] + "'" != finds.back()) ++i;
      return Move(i);
    });
    rs->Method("Delete", 1, 1, [this](sim::Args& a) {
      EXPECT_EQ(a[0].ToLong(), 1);
      rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(at));
      return Move(at);
    });
    Move(0);
  }
  Variant Move(size_t to) {
    at = to;
    field->SetValue("Value", at < rows.size() ? Variant(rows[at]) : Variant());
    return Variant();
  }
  Strings rows;
  size_t at = 0;
  Strings finds;
  std::shared_ptr<sim::FakeObject> rs, fields, field;
};

TEST(SingleList, FromRecordsetReadsTheSecondColumnSorted) {
  SettingsFixture f;
  Recordset data({"pear", "Apple", "PEAR", "fig"});
  cSingleList list;
  list.FromRecordset(f.s, data.rs->AsObject());
  EXPECT_EQ(Items(list), (Strings{"Apple", "fig", "pear"}));
  list.FromRecordset(f.s, Object());
  EXPECT_EQ(list.dicList.Count(), 0u);
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(SingleList, ToRSAddsWhatTheRecordsetLacksAndDeletesTheRest) {
  SettingsFixture f;
  Recordset data({"keep", "drop", "it's"});
  cSingleList list;
  list.dicList.Add("KEEP", "KEEP");
  list.dicList.Add("new", "new");
  list.ToRS(f.s, data.rs->AsObject());
  // The quote is not escaped in the search text.
  EXPECT_EQ(data.finds, (Strings{"Value = 'drop'", "Value = 'it's'"}));
  EXPECT_EQ(data.rows, (Strings{"keep", "new"}));
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(SingleList, FailureIsReportedUnderTheOperationsLabel) {
  struct Row {
    const char* label;
    std::function<void(AddinState&, cSingleList&)> call;
  };
  const Row rows[] = {
      {"SingleList.PopulateComboList",
       [](AddinState& s, cSingleList& l) {
         std::string v;
         l.PopulateComboList(s, Object(), v, false);
       }},
      {"SingleList.GetControl", [](AddinState& s, cSingleList& l) { l.FromComboOrList(s, {}); }},
      {"SingleList.FromListView",
       [](AddinState& s, cSingleList& l) { l.FromListView(s, {}, false); }},
      {"SingleList.SetArray",
       [](AddinState& s, cSingleList& l) {
         l.FromArray(s, {Variant("a"), Variant::Null()});
       }},
      {"SingleList.RandomItem", [](AddinState& s, cSingleList& l) { l.RandomItem(s); }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    SettingsFixture f;
    cSingleList list;
    row.call(f.s, list);
    ASSERT_EQ(f.ui.reports.size(), 1u);
    EXPECT_EQ(testing::ReportLine(f.ui.reports[0], 1), std::string("In Function: ") + row.label);
  }
}

TEST(SingleList, FailedReplacementStaysReplacedAndPartlyFilled) {
  SettingsFixture f;
  cSingleList list;
  list.dicList.Add("old", "old");
  list.FromArray(f.s, {Variant("a"), Variant::Null(), Variant("b")});
  EXPECT_EQ(Items(list), (Strings{"a"}));
}

}  // namespace
}  // namespace qvx
