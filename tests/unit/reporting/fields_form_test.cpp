// frmFields on the form model: the activities offered, and saves that meet
// refusals, vanished items and messages.
#include "reporting/fields_form.h"

#include <algorithm>

#include "companion/listener_form.h"
#include "settings/single_list.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class FieldsForm : public TaggingTest {
 protected:
  FieldsForm() {
    Set("DBChoice", "1");
    Set("CustomField9Active", "-1");
  }
  const platform::FormControl& At(std::string_view name) { return form->At(name); }
  void Open(const Object& target) {
    form = std::make_unique<frmFields>(s());
    form->LoadFields(target);
  }
  void Click(std::string_view control) { form->Raise(control, "Click"); }
  void Choose(std::string_view control, std::string_view row) {
    const auto& list = At(control).list;
    const auto it = std::find(list.begin(), list.end(), row);
    ASSERT_NE(it, list.end()) << row;
    form->RowChosen(control, static_cast<int>(it - list.begin()));
  }
  std::unique_ptr<frmFields> form;
};

// What the dialog shows and writes, the keys fields 9 and 10 refuse and a
// reported item within a selection are fields_dialog.qvx's.
TEST_F(FieldsForm, AProjectTypedInWithoutActivitiesOffersNoneAndAPasteIsNotFiltered) {
  Connect();
  Open(Appointment("Planning")->AsObject());
  Choose("cboProject", "Alpha");
  EXPECT_EQ(At("cboTask").list, (std::vector<std::string>{"Design", "Review"}));
  form->Control("cboProject").Put("Text", Variant("Omega"));
  form->Raise("cboProject", "Click");
  EXPECT_TRUE(At("cboTask").list.empty());
  form->TextEdited("txtField9", "12.5 EUR");
  EXPECT_EQ(At("txtField9").text, "12.5 EUR");
  EXPECT_TRUE(Reports().empty());
}

TEST_F(FieldsForm, AFailedSaveIsToldAndTheNextItemIsStillWritten) {
  Connect();
  auto a = Appointment("Refuses");
  auto b = Appointment("Accepts");
  Select({a, b});
  Open(explorer->AsObject().Get("Selection").ToObject());
  a->FailMember("Save", -2147024891, "Access denied.");
  Choose("cboProject", "Alpha");
  Click("cmdSave");
  ASSERT_EQ(world.ui().MessageBoxes().size(), 1u);
  EXPECT_EQ(world.ui().MessageBoxes()[0].text,
            "There seems to be permission issue in saving the item & 'Refuses'!\r\n"
            "Please review permission and try again!");
  EXPECT_EQ(world.ui().MessageBoxes()[0].title, "Quorvix Client Addin");
  EXPECT_EQ(world.ui().MessageBoxes()[0].style, platform::msgbox::kCritical);
  EXPECT_EQ(Prop(*b, "ProjectValue"), "Alpha");
  EXPECT_TRUE(form->Unloaded());
}

// Between two items of a selection the save lets messages through: the
// companion may have the settings read again, and an item may go meanwhile.
TEST_F(FieldsForm, WhatHappensWhileTheSaveLetsMessagesThroughIsTakenInStride) {
  Connect();
  LoadListenToLocal(s());
  auto a = Appointment("A");
  auto b = Appointment("B");
  Select({a, b});
  Open(explorer->AsObject().Get("Selection").ToObject());
  Choose("cboProject", "Beta");
  form->TextEdited("txtField9", "5");
  host().Pending().Post([&] {
    Set("MyProjectsTasks", "Other,1,,:");
    WindowProc(s(), WM_MYMESSAGE(s(), Channel::Client), 0);
    b->Delete();
  });
  Click("cmdSave");
  EXPECT_TRUE(form->Unloaded());
  EXPECT_EQ(Prop(*a, "ProjectValue"), "Beta") << "the box's text, whatever the lists now hold";
  EXPECT_EQ(Prop(*a, "Field9Value"), "5");
  EXPECT_EQ(Prop(*b, "ProjectValue"), "(none)");
  EXPECT_EQ(Prop(*b, "Field9Value"), "(none)") << "nothing of the gone item is written";
  EXPECT_EQ(settings().Projects->dicList.Count(), 1u);
}

// On a selection it opens as fields_dialog.qvx shows.
TEST_F(FieldsForm, ShowStaticFieldsOpensNotAtAllOnAnEmptySelection) {
  Connect();
  Select({});
  ShowStaticFields(s());
  EXPECT_TRUE(world.ui().Forms().empty());
  EXPECT_TRUE(Reports().empty());
}

}  // namespace
}  // namespace qvx::testing
