// The form model through its interface: controls reached late-bound by name,
// the events a change in code raises, and failures as the controls fail.
#include "platform/form_model.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "core/variant.h"

namespace qvx::platform {
namespace {

using Strings = std::vector<std::string>;

std::vector<FormControl> AllKinds() {
  FormControl rows = MakeControl("lstRows", kind::kList, "");
  rows.list = {"a", "b", "c"};
  return {
      MakeControl("lblName", kind::kLabel, "Name"), MakeControl("txtName", kind::kTextBox, ""),
      MakeControl("cboProject", kind::kCombo, ""),  std::move(rows),
      MakeControl("chkAll", kind::kCheck, "All"),   MakeControl("cmdSave", kind::kButton, "&Save"),
      MakeControl("fraBox", kind::kFrame, "Box"),   MakeControl("Image2", kind::kImage, "")};
}

// Logs the events of every control as "name.Event".
struct LoggedForm {
  FormModel form{"Test", 3000, AllKinds()};
  Strings log;
  LoggedForm() {
    for (const FormControl& c : form.Controls()) {
      for (const char* event : {"Change", "Click"}) {
        const std::string name = c.name;
        form.On(name, event,
                [this, name, event](EventArgs&) { log.push_back(name + "." + event); });
      }
    }
  }
  Object operator[](std::string_view name) { return form.Control(name); }
};

int32_t FailureOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const Failure& f) {
    return f.number();
  }
  return 0;
}

TEST(FormControlObject, EachKindAnswersItsOwnMembersOnly) {
  const struct {
    const char* control;
    const char* member;
    bool answers;
  } rows[] = {
      {"lblName", "Caption", true},      {"lblName", "Text", false},
      {"txtName", "Caption", false},     {"txtName", "MaxLength", true},
      {"cboProject", "ListCount", true}, {"cboProject", "Selected", false},
      {"lstRows", "Selected", true},     {"chkAll", "Value", true},
      {"cmdSave", "Default", true},      {"cmdSave", "Value", false},
      {"fraBox", "Caption", true},       {"Image2", "ControlTipText", true},
      {"Image2", "Caption", false},      {"cboProject", "controltiptext", true},
  };
  LoggedForm f;
  for (const auto& row : rows) {
    const int32_t failure = FailureOf([&] {
      const Object control = f[row.control];
      const std::string member = row.member;
      if (member == "Selected") {
        control.Get(member, {Variant(int32_t{0})});
      } else {
        control.Get(member);
      }
    });
    EXPECT_EQ(failure, row.answers ? 0 : err::kNoSuchMember) << row.control << "." << row.member;
  }
  EXPECT_EQ(f["cboProject"].TypeName(), "ComboBox");
  EXPECT_EQ(f["Image2"].TypeName(), "Image");
  EXPECT_EQ(FailureOf([&] { f.form.Control("cboNone"); }), err::kNoSuchMember);
}

TEST(FormControlObject, ComboRowsAndTheEventsACodeChangeRaises) {
  LoggedForm f;
  const Object combo = f["cboProject"];
  combo.Call("AddItem", {Variant("Beta")});
  combo.Call("AddItem", {Variant("Alpha"), Variant(int32_t{0})});
  combo.Call("AddItem", {Variant("Gamma"), Variant::Missing()});
  EXPECT_EQ(combo.Get("ListCount").ToLong(), 3);
  EXPECT_EQ(combo.Get("List", {Variant(int32_t{0})}).ToText(), "Alpha");
  EXPECT_TRUE(f.log.empty());  // filling raises nothing

  combo.Put("Text", Variant("Beta"));  // a row: Change and Click
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), 1);
  combo.Put("Text", Variant("typed"));  // free text: Change only
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), -1);
  combo.Put("ListIndex", Variant(int32_t{2}));
  EXPECT_EQ(combo.Get("Value").ToText(), "Gamma");
  combo.Put("Text", Variant("Gamma"));  // no change: nothing
  EXPECT_EQ(f.log, (Strings{"cboProject.Change", "cboProject.Click", "cboProject.Change",
                            "cboProject.Change", "cboProject.Click"}));

  combo.Call("RemoveItem", {Variant(int32_t{0})});
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), 1);  // the chosen row moved up
  combo.Call("Clear");
  EXPECT_EQ(combo.Get("ListCount").ToLong(), 0);
  EXPECT_EQ(combo.Get("Text").ToText(), "");  // Clear empties the text as well
}

TEST(FormControlObject, BadRowsAndValuesFailAsTheControlsDo) {
  LoggedForm f;
  const Object combo = f["cboProject"];
  combo.Call("AddItem", {Variant("Alpha")});
  const struct {
    const char* what;
    std::function<void()> act;
    int32_t number;
  } rows[] = {
      {"List past the end", [&] { combo.Get("List", {Variant(int32_t{1})}); }, 381},
      {"List(-1)", [&] { combo.Get("List", {Variant(int32_t{-1})}); }, 381},
      {"ListIndex past the end", [&] { combo.Put("ListIndex", Variant(int32_t{1})); }, 380},
      {"AddItem without text", [&] { combo.Call("AddItem"); }, 450},
      {"a list box's Text off its rows", [&] { f["lstRows"].Put("Text", Variant("z")); }, 380},
      {"an unknown Style", [&] { combo.Put("Style", Variant(int32_t{1})); }, 380},
      {"a read-only member", [&] { combo.Put("ListCount", Variant(int32_t{3})); }, 438},
  };
  for (const auto& row : rows) EXPECT_EQ(FailureOf(row.act), row.number) << row.what;

  combo.Put("Style", Variant(kStyleDropDownList));
  EXPECT_EQ(FailureOf([&] { combo.Put("Text", Variant("Beta")); }), 380);
  combo.Put("Text", Variant("Alpha"));
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), 0);
}

// A KeyPress handler that swallows keys is proven by fields_dialog.qvx, the
// close box (QueryClose, which no form of the add-in answers) by
// about_box.qvx. No form of the add-in has a list box (the one reader of a
// list's selection has no caller) or a check box, whose events the scripted
// user's tick meets.
TEST(FormEvents, SubscribedThroughTheObjectForAsLongAsKept) {
  FormModel form("Test", 3000, AllKinds());
  int clicks = 0;
  Subscription kept = form.Control("cmdSave").Subscribe("Click", [&](EventArgs&) { ++clicks; });
  form.Raise("cmdSave", "Click");
  kept.Reset();
  form.Raise("cmdSave", "Click");
  EXPECT_EQ(clicks, 1);
}

TEST(FormEvents, AControlOutlivingItsFormFailsWith91) {
  Object orphan;
  {
    FormModel form("Test", 3000, AllKinds());
    orphan = form.Control("txtName");
    orphan.Put("Text", Variant("x"));
  }
  EXPECT_EQ(FailureOf([&] { orphan.Get("Text"); }), err::kObjectNotSet);
}

}  // namespace
}  // namespace qvx::platform
