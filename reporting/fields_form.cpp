#include "reporting/fields_form.h"

#include <array>
#include <string>

#include "core/text.h"
#include "reporting/current_selection.h"
#include "reporting/fields_form_layout.h"
#include "reporting/key_filter.h"
#include "reporting/tag_item.h"
#include "settings/my_settings.h"
#include "settings/settings_lists.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project.h"
#include "settings/tasks_per_project_list.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/mail_library.h"

namespace qvx {
namespace {

// The box of field N: a combo box for the lists, a text box for the others.
std::string BoxOf(int n) {
  return (n <= 4 ? "cboField" : "txtField") + std::to_string(n);
}

std::string FieldProperty(int n) {
  return "Field" + std::to_string(n) + "Value";
}

std::string ReadTrimmed(AddinState& s, const Object& item, std::string_view property) {
  return std::string(Trim(GetFieldValueFromItem(s, item, property, VarType::String).ToText()));
}

void Disable(const Object& control) {
  control.Put("Enabled", Variant(false));
}

}  // namespace

frmFields::frmFields(AddinState& s)
    : FormModel("All Project Fields", kFieldsFormHeight, FieldsFormLayout()), s_(s) {
  SetWidth(kFieldsFormWidth);
  On("cboProject", "Click", [this](EventArgs&) { cboProject_Click(); });
  On("cmdSave", "Click", [this](EventArgs&) { cmdSave_Click(); });
  On("cmdCancel", "Click", [this](EventArgs&) { Unload(); });
  for (const char* box : {"txtField9", "txtField10"}) {
    On(box, "KeyPress", [](EventArgs& args) {
      int16_t key = static_cast<int16_t>(args.at(0).ToLong());
      KeepDigitsOnly(key);
      args[0] = Variant(static_cast<int32_t>(key));
    });
  }
}

void frmFields::LoadFields(const Object& objSelection) noexcept {
  Trapped(s_, "frmFields.LoadFields", [&](Line& line) {
    AddinState& s = s_;
    line = 10;
    ReportedItemState = false;
    objCurrentSelection = objSelection;
    MultipleSelection = objSelection.TypeName() == "Selection";
    line = 20;
    const cMySettings& settings = s.main.Settings();
    Control("lblProject").Put("Caption", Variant(settings.ProjectTitle));
    Control("lblTask").Put("Caption", Variant(settings.ActivityTitle));
    for (int n = 1; n <= 10; ++n) {
      Control("lblField" + std::to_string(n))
          .Put("Caption", Variant(CustomSlotOf(settings, n).name));
    }
    line = 30;
    std::string project;
    if (!MultipleSelection) {
      const std::string reportedId = ReadTrimmed(s, objSelection, "ReportedID");
      ReportedItemState = !reportedId.empty();
      Control("txtReportedID")
          .Put("Text", Variant(ReportedItemState ? reportedId : std::string("Not Reported Yet!")));
      project = ReadTrimmed(s, objSelection, "ProjectValue");
    }
    line = 40;
    settings.Projects->PopulateComboList(s, Control("cboProject"), project, true);
    line = 50;
    if (!MultipleSelection && !project.empty()) {
      Quietly(s.err, [&] {
        if (auto* activities = settings.MyProjectsTasks->dicList.Find(project)) {
          std::string activity = ReadTrimmed(s, objSelection, "ActivityValue");
          (*activities)->PopulateComboList(s, Control("cboTask"), activity, true);
        }
      });
    }
    line = 60;
    for (int n = 1; n <= 4; ++n) {
      const CustomSlot slot = CustomSlotOf(settings, n);
      std::string value =
          MultipleSelection ? std::string() : ReadTrimmed(s, objSelection, FieldProperty(n));
      slot.list->PopulateComboList(s, Control(BoxOf(n)), value, true);
      if (!slot.active) {
        Disable(Control("lblField" + std::to_string(n)));
        Disable(Control(BoxOf(n)));
      }
    }
    line = 70;
    for (int n = 5; n <= 10; ++n) {
      if (!MultipleSelection) {
        Control(BoxOf(n)).Put(
            "Text",
            Variant(GetFieldValueFromItem(s, objSelection, FieldProperty(n), VarType::String)
                        .ToText()));
      }
      if (!CustomSlotOf(settings, n).active) {
        Disable(Control("lblField" + std::to_string(n)));
        Disable(Control(BoxOf(n)));
      }
    }
    line = 80;
    if (MultipleSelection) {
      Control("txtReportedID").Put("Visible", Variant(false));
      Control("lblReportedID").Put("Visible", Variant(false));
    } else if (settings.DontAllowChangesToReportedItem != 0 && ReportedItemState) {
      Disable(Control("cboProject"));
      Disable(Control("cboTask"));
      for (int n = 1; n <= 10; ++n) Disable(Control(BoxOf(n)));
      Disable(Control("cmdSave"));
      Control("cmdCancel").Put("Caption", Variant("E&xit"));
    }
  });
}

void frmFields::cboProject_Click() noexcept {
  Trapped(s_, "frmFields.cboProject.Click", [&](Line& line) {
    AddinState& s = s_;
    line = 10;
    const Object task = Control("cboTask");
    task.Call("Clear");
    line = 20;
    const std::string project = Control("cboProject").Get("Text").ToText();
    if (project.empty()) return;
    if (auto* activities = s.main.Settings().MyProjectsTasks->dicList.Find(project)) {
      line = 30;
      std::string shown = task.Get("Text").ToText();
      (*activities)->PopulateComboList(s, task, shown, false);
    }
  });
}

void frmFields::cmdSave_Click() noexcept {
  Trapped(s_, "frmFields.cmdSave.Click", [&](Line& line) {
    AddinState& s = s_;
    line = 10;
    if (s.main.Settings().DontAllowChangesToReportedItem != 0 && ReportedItemState) return;
    line = 20;
    if (objCurrentSelection) {
      if (MultipleSelection) {
        if (objCurrentSelection.Get("Count").ToLong() > 1) {
          line = 30;
          for (const Variant& item : objCurrentSelection.Enumerate()) {
            s.system().DoEvents();
            TagValuesToFieldsSingleItem(item.ToObject());
          }
        }
      } else {
        line = 40;
        TagValuesToFieldsSingleItem(objCurrentSelection);
      }
    }
    line = 50;
    Unload();
  });
}

void frmFields::TagValuesToFieldsSingleItem(const Object& objItem) noexcept {
  Trapped(s_, "frmFields.TagValuesToFieldsSingleItem", [&](Line& line) {
    AddinState& s = s_;
    line = 10;
    if (s.main.Settings().DontAllowChangesToReportedItem != 0 &&
        !ReadTrimmed(s, objItem, "ReportedID").empty()) {
      return;
    }
    line = 20;
    const auto text = [&](const std::string& control) {
      return Control(control).Get("Text").ToText();
    };
    Actions::TagProjectToItem(s, objItem, "ProjectValue", text("cboProject"), true);
    Actions::TagProjectToItem(s, objItem, "ActivityValue", text("cboTask"), true);
    for (int n = 1; n <= 10; ++n) {
      Actions::TagProjectToItem(s, objItem, FieldProperty(n), text(BoxOf(n)), false);
    }
    line = 30;
    const bool saved = IgnoreFailure(s.err, [&] { objItem.Call("Save"); });
    s.err.Clear();
    line = 40;
    if (!saved) {
      s.ui().MessageBox("There seems to be permission issue in saving the item & '" +
                            objItem.Get("Subject").ToText() + "'!\r\n" +
                            "Please review permission and try again!",
                        platform::msgbox::kCritical, kMessageTitle);
      return;
    }
    line = 50;
    if (!MultipleSelection) s.upward().UpdateAllDisplayedToolbars();
  });
}

void ShowStaticFields(AddinState& s) noexcept {
  Trapped(s, "Main.ShowStaticFields", [&](Line& line) {
    line = 10;
    const Object selection = Main::GetCurrentSelectedItem(s, true);
    if (!selection) return;
    line = 20;
    frmFields form(s);
    form.LoadFields(selection);
    line = 30;
    s.ui().ShowModal(form);
  });
}

}  // namespace qvx
