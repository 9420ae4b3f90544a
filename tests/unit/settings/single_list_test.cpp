// cSingleList: text in and out, the combo box, and the other moves.
#include "settings/single_list.h"

#include <gtest/gtest.h>

#include "platform/form_model.h"
#include "settings_fixture.h"
#include "sim/fake_object.h"

namespace qvx {
namespace {

using testing::Items;
using testing::SettingsFixture;
using testing::Strings;

cSingleList Unsorted(const Strings& items) {
  cSingleList list;
  for (const std::string& item : items) list.dicList.Add(item, item);
  return list;
}

// A combo box with Text, Clear, AddItem, ListCount, List(i) and ListIndex.
struct Combo {
  explicit Combo(std::string text = "") {
    object = std::make_shared<sim::FakeObject>("CommandBarComboBox");
    object->Property("Text", Variant(text)).Property("ListIndex", Variant(int32_t{-1}));
    object->Method("Clear", 0, 0, [this](sim::Args&) { return rows.clear(), Variant(); });
    object->Method("AddItem", 1, 2,
                   [this](sim::Args& a) { return rows.push_back(a[0].ToText()), Variant(); });
    object->Method("ListCount", 0, 0,
                   [this](sim::Args&) { return Variant(static_cast<int32_t>(rows.size())); });
    object->Method("List", 1, 1, [this](sim::Args& a) { return Variant(rows.at(a[0].ToLong())); });
  }
  std::shared_ptr<sim::FakeObject> object;
  Strings rows;
};

TEST(SingleList, TextInAndOut) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "beta\r\nAlpha\r\n\r\nBETA\r\n  \r\n10\r\n9", "\r\n");
  EXPECT_EQ(Items(list), (Strings{"  ", "10", "9", "Alpha", "beta"}));
  // Only blanks are trimmed from the whole: the line break after the blank entry stays.
  EXPECT_EQ(list.ToString(f.s, "\r\n", false), "\r\n10\r\n9\r\nAlpha\r\nbeta");
  list.FromString(f.s, "", ",");
  EXPECT_EQ(list.dicList.Count(), 0u);
  EXPECT_EQ(Unsorted({"  lead", " mid ", "tail  "}).ToString(f.s, ";", false), "lead; mid ;tail");
  cSingleList unsorted = Unsorted({"b", "C", "a"});
  EXPECT_EQ(unsorted.ToString(f.s, ",", true), "a,b,C");
  EXPECT_EQ(Items(unsorted), (Strings{"a", "b", "C"}));  // the list itself reordered
  cSingleList one = Unsorted({" only "});
  EXPECT_EQ(one.ToString(f.s, ",", true), "only");
  EXPECT_EQ(one.RandomItem(f.s), " only ");
  EXPECT_EQ(cSingleList().ToStringTab(f.s), "\t ");
  EXPECT_EQ(Unsorted({"a", "", "b"}).ToStringTab(f.s), "a\tb\t\t ");
}

TEST(SingleList, LookUpByItemAndIndex) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, " Alpha |Beta|Gamma", "|");
  // getItemIndex against the walk it replaced: ListOrder.FromStringAndGetItemIndexMatchTheOldWay.
  EXPECT_EQ(list.GetItem(f.s, 0), "Alpha");
  EXPECT_EQ(list.GetItem(f.s, 3), "");
  EXPECT_EQ(list.GetItem(f.s, -1), "");
  EXPECT_TRUE(f.Reports().empty());
}

// A bar's combo box whose text cannot be written gets its row chosen instead.
TEST(SingleList, PopulateComboListChoosesTheRowWhereTheTextIsReadOnly) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "b\n  \na", "\n");
  Combo readOnly;
  sim::Fault fault;
  fault.number = static_cast<int32_t>(0x80004005);
  fault.kind = InvokeKind::Put;
  readOnly.object->FailMember("Text", fault);
  std::string value = "b";
  list.PopulateComboList(f.s, readOnly.object->AsObject(), value, false);
  EXPECT_EQ(readOnly.rows, (Strings{"a", "b"}));  // the blank entry skipped
  EXPECT_EQ(readOnly.object->Value("ListIndex").ToLong(), 1);
  EXPECT_FALSE(f.s.err.pending());
  EXPECT_TRUE(f.Reports().empty());
}

// A form's combo box, through its late-bound face: a blank row last when
// asked, a text typed by hand kept.
TEST(SingleList, PopulateComboListFillsAFormsComboBox) {
  const struct {
    int style;
    std::string shown, value, text;  // text: afterwards
    int listIndex;
  } rows[] = {
      {platform::kStyleDropDownCombo, "", "b", "b", 1},
      {platform::kStyleDropDownCombo, "", "free", "free", -1},
      {platform::kStyleDropDownCombo, "typed", "b", "typed", -1},
      {platform::kStyleDropDownList, "", "b", "b", 1},
      {platform::kStyleDropDownList, "", "free", "", -1},  // no such row: nothing chosen
  };
  for (const auto& row : rows) {
    SettingsFixture f;
    cSingleList list;
    list.FromString(f.s, "b\na", "\n");
    platform::FormControl box = platform::MakeControl("cboProject", platform::kind::kCombo, "");
    box.style = row.style;
    box.text = row.shown;
    platform::FormModel form("All Project Fields", 3000, {box});
    int clicks = 0;
    form.On("cboProject", "Click", [&](EventArgs&) { ++clicks; });
    std::string value = row.value;
    list.PopulateComboList(f.s, form.Control("cboProject"), value, true);
    const platform::FormControl& shown = form.At("cboProject");
    EXPECT_EQ(shown.list, (Strings{"a", "b", ""})) << row.value;
    EXPECT_EQ(shown.text, row.text) << row.value;
    EXPECT_EQ(shown.listIndex, row.listIndex) << row.value;
    EXPECT_EQ(value, row.shown.empty() ? row.value : row.shown);  // the shown text wins
    EXPECT_EQ(clicks, row.listIndex >= 0 ? 1 : 0) << row.value;   // choosing a row clicks
    EXPECT_FALSE(f.s.err.pending());
    EXPECT_TRUE(f.ui.MessageBoxes().empty());
  }
}

TEST(SingleList, Arrays) {
  SettingsFixture f;
  cSingleList list = Unsorted({"old"});
  list.FromArray(f.s,
                 {Variant("z"), Variant("  "), Variant(int16_t{5}), Variant("Z"), Variant(" y ")});
  EXPECT_EQ(Items(list), (Strings{"z", "5", " y "}));  // in order, blanks skipped
  EXPECT_EQ(Unsorted({"a", "", "b"}).ToArray(f.s), (std::vector<Strings>{{"a", "b", ""}}));
  EXPECT_TRUE(f.Reports().empty());
  // A failure part way leaves the list replaced and partly filled.
  list.FromArray(f.s, {Variant("a"), Variant::Null(), Variant("b")});
  EXPECT_EQ(Items(list), (Strings{"a"}));
  SettingsFixture g;  // a process reports its first failure only
  EXPECT_TRUE(cSingleList().ToArray(g.s).empty());
  ASSERT_TRUE(g.ReportedOnce("SingleList.GetArray"));
  EXPECT_EQ(testing::ReportLine(g.Reports()[0], 3), "Exception Number: 9");
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
       [](AddinState& s, cSingleList& l) { l.FromArray(s, {Variant::Null()}); }},
      {"SingleList.RandomItem", [](AddinState& s, cSingleList& l) { l.RandomItem(s); }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    SettingsFixture f;
    cSingleList list;
    row.call(f.s, list);
    EXPECT_TRUE(f.ReportedOnce(row.label));
  }
}

}  // namespace
}  // namespace qvx
