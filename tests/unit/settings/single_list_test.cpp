// cSingleList: text in and out, the items by index, and the combo box.
#include "settings/single_list.h"

#include <gtest/gtest.h>

#include "platform/form_model.h"
#include "settings_fixture.h"

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

TEST(SingleList, TextInAndOut) {
  SettingsFixture f;
  cSingleList list;
  list.FromString(f.s, "beta\r\nAlpha\r\n\r\nBETA\r\n  \r\n10\r\n9", "\r\n");
  EXPECT_EQ(Items(list), (Strings{"  ", "10", "9", "Alpha", "beta"}));
  // Only blanks are trimmed from the whole: the line break after the blank entry stays.
  EXPECT_EQ(list.ToString(f.s, "\r\n", false), "\r\n10\r\n9\r\nAlpha\r\nbeta");
  EXPECT_EQ(Unsorted({"  lead", " mid ", "tail  "}).ToString(f.s, ";", false), "lead; mid ;tail");
  list.FromString(f.s, " Alpha |Beta", "|");
  EXPECT_EQ(list.GetItem(f.s, 0), "Alpha");
  EXPECT_EQ(list.GetItem(f.s, 2), "");
  EXPECT_EQ(list.GetItem(f.s, -1), "");
  list.FromString(f.s, "", ",");
  EXPECT_EQ(list.dicList.Count(), 0u);
  EXPECT_TRUE(f.Reports().empty());
}

// A form's combo box, through its late-bound face: blank entries skipped, a
// blank row last when asked, a text typed by hand kept, and where the text is
// read-only (a drop-down list) the row chosen instead.
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
    list.FromString(f.s, "b\n  \na", "\n");
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

TEST(SingleList, AComboFillWithoutAControlIsReported) {
  SettingsFixture f;
  std::string value;
  cSingleList().PopulateComboList(f.s, Object(), value, false);
  EXPECT_TRUE(f.ReportedOnce("SingleList.PopulateComboList"));
}

}  // namespace
}  // namespace qvx
