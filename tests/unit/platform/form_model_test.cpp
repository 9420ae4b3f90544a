// The form model through its interface: controls reached late-bound by name,
// events with by-reference arguments, and closing with QueryClose.
#include "platform/form_model.h"

#include <gtest/gtest.h>

#include <memory>

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
      {"lblName", "Caption", true},
      {"lblName", "Text", false},
      {"txtName", "Text", true},
      {"txtName", "Caption", false},
      {"txtName", "MaxLength", true},
      {"txtName", "ListCount", false},
      {"cboProject", "ListCount", true},
      {"cboProject", "Selected", false},
      {"lstRows", "Selected", true},
      {"chkAll", "Value", true},
      {"chkAll", "Text", false},
      {"cmdSave", "Default", true},
      {"cmdSave", "Value", false},
      {"fraBox", "Caption", true},
      {"Image2", "ControlTipText", true},
      {"Image2", "Caption", false},
      {"cboProject", "controltiptext", true},
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

TEST(FormControlObject, ListBoxSelection) {
  LoggedForm f;
  const Object list = f["lstRows"];
  list.Put("Selected", {Variant(int32_t{1})}, Variant(true));
  EXPECT_EQ(list.Get("ListIndex").ToLong(), 1);
  EXPECT_EQ(list.Get("Text").ToText(), "b");
  EXPECT_FALSE(list.Get("Selected", {Variant(int32_t{0})}).ToBoolean());

  list.Put("MultiSelect", Variant(true));
  list.Put("Selected", {Variant(int32_t{0})}, Variant(true));
  list.Put("Selected", {Variant(int32_t{2})}, Variant(true));
  Strings selected;
  for (int32_t i = 0; i < list.Get("ListCount").ToLong(); ++i) {
    if (list.Get("Selected", {Variant(i)}).ToBoolean())
      selected.push_back(list.Get("List", {Variant(i)}).ToText());
  }
  EXPECT_EQ(selected, (Strings{"a", "c"}));
}

TEST(FormControlObject, ACheckBoxTickedInCodeRaisesChangeAndClick) {
  LoggedForm f;
  f["lblName"].Put("Visible", Variant(int16_t{0}));  // a flag given as a number
  f["chkAll"].Put("Value", Variant(true));
  EXPECT_FALSE(f.form.At("lblName").visible);
  EXPECT_TRUE(f.form.At("chkAll").value);
  EXPECT_EQ(f.log, (Strings{"chkAll.Change", "chkAll.Click"}));
}

TEST(FormEvents, AKeyPressHandlerCanSwallowOrChangeTheKey) {
  FormModel form("Test", 3000, AllKinds());
  form.On("txtName", "KeyPress", [](EventArgs& args) {
    const int32_t key = args.at(0).ToLong();
    if (key == 'x') args[0] = Variant(int32_t{0});
    if (key == 'a') args[0] = Variant(int32_t{'A'});
  });
  EXPECT_EQ(form.KeyPress("txtName", 'x'), 0);
  EXPECT_EQ(form.KeyPress("txtName", 'a'), 'A');
  EXPECT_EQ(form.KeyPress("txtName", '7'), '7');
  EXPECT_EQ(form.KeyPress("cboProject", 'x'), 'x');  // other controls' handlers only
}

TEST(FormEvents, QueryCloseCanCancelTheCloseBoxAndUnloadInCode) {
  FormModel form("Test", 3000, AllKinds());
  std::vector<int32_t> modes;
  bool cancel = true;
  form.On(kFormEvents, "QueryClose", [&](EventArgs& args) {
    modes.push_back(args.at(1).ToLong());
    if (cancel) args[0] = Variant(true);
  });
  EXPECT_FALSE(form.QueryClose());
  form.Unload();
  EXPECT_FALSE(form.Unloaded());
  cancel = false;
  EXPECT_TRUE(form.QueryClose());
  EXPECT_TRUE(form.Unloaded());
  EXPECT_TRUE(form.QueryClose());  // once unloaded, no further QueryClose
  EXPECT_EQ(modes, (std::vector<int32_t>{kCloseByControlMenu, kCloseByCode, kCloseByControlMenu}));
}

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
