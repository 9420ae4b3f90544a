#include "commandbars/custom_fields_toolbar.h"

#include "commandbars/bar_controls.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "reporting/tag_selection.h"
#include "settings/local_settings.h"
#include "settings/my_settings.h"
#include "settings/settings_lists.h"
#include "settings/single_list.h"
#include "state/addin_state.h"
#include "support/endpoints.h"
#include "support/mail_library.h"
#include "support/outlook_session.h"

namespace qvx {
namespace {

constexpr std::string_view kBarName = "Quorvix Custom Fields";
constexpr int16_t kPositionSelector = 1;

std::string ItemProperty(int field) {
  return "Field" + std::to_string(field) + "Value";
}

std::string TitleOf(const cMySettings& settings) {
  const std::string_view title = Trim(settings.CustomFieldsTitle);
  return title.empty() ? std::string("Custom Fields") : std::string(title);
}

}  // namespace

cCustomFieldsTB::cCustomFieldsTB(AddinState& s)
    : oueCurrExplorer(*this, s),
      oueCurrInspector(*this, s),
      ouaMonitorApp(*this, s),
      s_(s),
      cboField1(*this, s),
      cboField2(*this, s),
      cboField3(*this, s),
      cboField4(*this, s),
      combos_{&cboField1, &cboField2, &cboField3, &cboField4} {
  for (int field = 1; field <= 4; ++field) {
    Combo(field).On(
        "Change", "CustomFieldsToolbar.cboField" + std::to_string(field) + ".Change",
        [field](cCustomFieldsTB& self, Line&, EventArgs&) { self.cboField_Change(field); });
  }
  oueCurrExplorer.On("Close", "CustomFieldsToolbar.Explorer.Close",
                     [](cCustomFieldsTB& self, Line&, EventArgs&) {
                       self.subRemoveButtons();
                       self.s_.upward().subShutDownOutlook();
                     });
  oueCurrInspector.On("Close", "CustomFieldsToolbar.Inspector.Close",
                      [](cCustomFieldsTB& self, Line&, EventArgs&) {
                        ForgetInspectorBar(self.s_, self.oueCurrInspector.object(), true);
                        self.subRemoveButtons();
                      });
  ouaMonitorApp.On("Quit", "CustomFieldsToolbar.App.Quit",
                   [](cCustomFieldsTB& self, Line&, EventArgs&) {
                     self.subRemoveButtons();
                     self.s_.upward().subKillObjects();
                   });
}

cCustomFieldsTB::~cCustomFieldsTB() {
  subRemoveButtons();
}

CustomFieldsToolbarPool* cCustomFieldsTB::InspectorPool() {
  if (!oueCurrInspector) return nullptr;
  return &s_.ribbon.Inspector(strPoolKey).custom;
}

// The inspector pool's value of `field` whose name is the stem around the
// field's number ("SELECTED_INSPECTOR_CUSTOM_FIELD#_VALUE").
void cCustomFieldsTB::SetInspectorValue(int field, std::string_view stem, const Variant& value) {
  CustomFieldsToolbarPool* pool = InspectorPool();
  if (!pool) return;
  std::string name(stem);
  name.replace(name.find('#'), 1, std::to_string(field));
  pool->SetVariableValue(name, value);
}

void cCustomFieldsTB::SetVariableValue(std::string_view Name, const Variant& Value) noexcept {
  WritePooledValue(s_, "CustomToolbar.SetVariableValue", Name, Value,
                   [this] { return InspectorPool(); });
}

Variant cCustomFieldsTB::GetRibbonValueFromPool(std::string_view Name) noexcept {
  return ReadPooledValue(s_, "CustomToolbar.GetRibbonValueFromPool", Name,
                         [this] { return InspectorPool(); });
}

void cCustomFieldsTB::subAddButtons() noexcept {
  AddinState& s = s_;
  Object window;
  blnExplorerHost = false;
  if (oueCurrExplorer) {
    window = oueCurrExplorer.object();
    blnExplorerHost = true;
  } else if (oueCurrInspector) {
    window = oueCurrInspector.object();
    if (strPoolKey.empty()) {
      IgnoreFailure(s.err, [&] {
        strPoolKey = window.Get("CurrentItem").ToObject().Get("EntryID").ToText();
      });
    }
  }
  if (blnExplorerHost) {
    IgnoreFailure(s.err, [&] {
      s.ribbon.explorer.CUSTOM_FIELDS_VISIBLE = s.main.Settings().showCustomFieldsToolbar != 0;
    });
  }
  Object bars;
  if (!window || !IgnoreFailure(s.err, [&] { bars = window.Get("CommandBars").ToObject(); }) ||
      s.err.pending()) {
    return;
  }
  Trapped(s, "CustomFieldsToolbar.AddButtons", [&](Line& line) {
    const cMySettings& settings = s.main.Settings();
    line = 10;
    objExplorerToolbar = bars.Call("Add", {Variant(kBarName), Variant(host::msoBarTop),
                                           Variant(false), Variant(true)})
                             .ToObject();
    line = 20;
    modLocalSettings::LoadToolbarPosition(s, kPositionSelector, objExplorerToolbar);
    objExplorerToolbar.Put("Visible", Variant(true));
    line = 30;
    const Object controls = objExplorerToolbar.Get("Controls").ToObject();
    cmdTitle = AddTemporaryControl(controls, host::msoControlButton);
    cmdTitle.Put("Style", Variant(host::msoButtonCaption));
    cmdTitle.Put("Caption", Variant(TitleOf(settings)));
    cmdTitle.Put("TooltipText", Variant(kProductWebSite));
    cmdTitle.Put("BuiltInFace", Variant(true));
    cmdTitle.Put("State", Variant(host::msoButtonUp));
    cmdTitle.Put("Enabled", Variant(false));
    cmdTitle.Put("HyperlinkType", Variant(host::msoCommandBarButtonHyperlinkOpen));
    line = 40;
    std::array<bool, 4> visible{};
    for (int field = 1; field <= 4; ++field) {
      const CustomSlot list = CustomSlotOf(settings, field);
      const Object combo = AddTemporaryControl(controls, host::msoControlComboBox);
      Combo(field).Set(combo);
      combo.Put("Style", Variant(host::msoComboLabel));
      combo.Put("Caption", Variant(list.name));
      combo.Put("Visible", Variant(list.active));
      // Whichever window this bar is on: an inspector's bar sets the explorers' flags too.
      visible[field - 1] = list.active;
      s.ribbon.explorer.CustomFieldVisible(field) = list.active;
      combo.Put("TooltipText", Variant("Select a value from the " + list.name + " list"));
      combo.Put("Enabled", Variant(true));
      combo.Put("BeginGroup", Variant(true));
      combo.Put("Width", Variant(int32_t{250}));
      std::string none;
      list.list->PopulateComboList(s, combo, none, true);
    }
    line = 50;
    for (int field = 1; field <= 4; ++field) {
      if (blnExplorerHost) {
        s.ribbon.explorer.CustomFieldVisible(field) = visible[field - 1];
      } else {
        SetInspectorValue(field, "blnCustomField#VisibleInspector", Variant(visible[field - 1]));
      }
    }
    line = 60;
    s.upward().subInvalidateCustomFieldControls();
    line = 70;
    if (GetVersion(s) >= 14) objExplorerToolbar.Put("Visible", Variant(false));
  });
}

void cCustomFieldsTB::ShowFields(const Object& objItem) noexcept {
  AddinState& s = s_;
  Trapped(s, "CustomFieldsToolbar.ShowFields", [&](Line& line) {
    const cMySettings& settings = s.main.Settings();
    line = 10;
    const bool reported =
        !GetFieldValueFromItem(s, objItem, "ReportedID", VarType::String).ToText().empty();
    line = 20;
    for (int field = 1; field <= 4; ++field) {
      if (!CustomSlotOf(settings, field).active) continue;
      const Object& combo = Combo(field).object();
      combo.Put("Enabled", Variant(true));
      bool enabled = true;
      // The pool takes the value as read, even one the list doesn't hold.
      const std::string value =
          GetFieldValueFromItem(s, objItem, ItemProperty(field), VarType::String).ToText();
      combo.Put("Text", Variant(value));
      if (oueCurrExplorer) s.ribbon.explorer.SelectedCustomFieldValue(field) = value;
      SetInspectorValue(field, "SELECTED_INSPECTOR_CUSTOM_FIELD#_VALUE", Variant(value));
      if (settings.DontAllowChangesToReportedItem != 0 && reported) {
        combo.Put("Enabled", Variant(false));
        enabled = false;
      }
      if (oueCurrExplorer) s.ribbon.explorer.CustomFieldEnabled(field) = enabled;
      SetInspectorValue(field, "CUSTOM_FIELD#_INSPECTOR_ENABLED", Variant(enabled));
    }
    line = 30;
    cmdTitle.Put("Visible", Variant(true));
  });
}

void cCustomFieldsTB::EmptyAll() noexcept {
  AddinState& s = s_;
  for (int field = 1; field <= 4; ++field) {
    bool active = false;
    IgnoreFailure(s.err, [&] { active = CustomSlotOf(s.main.Settings(), field).active; });
    if (!active) continue;
    const Object& combo = Combo(field).object();
    IgnoreFailure(s.err, [&] { combo.Put("Enabled", Variant(true)); });
    IgnoreFailure(s.err, [&] { combo.Put("Text", Variant("")); });
    if (oueCurrExplorer) s.ribbon.explorer.SelectedCustomFieldValue(field).clear();
    IgnoreFailure(s.err, [&] {
      SetInspectorValue(field, "SELECTED_INSPECTOR_CUSTOM_FIELD#_VALUE", Variant(""));
    });
  }
}

void cCustomFieldsTB::UpdateToolbar() noexcept {
  AddinState& s = s_;
  ++toolbarUpdates;
  Trapped(s, "CustomFieldsToolbar.UpdateToolbar", [&](Line& line) {
    const cMySettings& settings = s.main.Settings();
    line = 10;
    if (cmdTitle) cmdTitle.Put("Caption", Variant(TitleOf(settings)));
    line = 20;
    // Captions and tooltips stay as built; a disabled combo box keeps its list.
    for (int field = 1; field <= 4; ++field) {
      const Object& combo = Combo(field).object();
      if (!combo) continue;
      const CustomSlot list = CustomSlotOf(settings, field);
      if (list.active) {
        if (combo.Get("Enabled").ToBoolean()) {
          std::string text = combo.Get("Text").ToText();
          list.list->PopulateComboList(s, combo, text, false);
        }
      }
      combo.Put("Visible", Variant(list.active));
      if (blnExplorerHost) {
        s.ribbon.explorer.CustomFieldVisible(field) = list.active;
      } else {
        SetInspectorValue(field, "blnCustomField#VisibleInspector", Variant(list.active));
      }
    }
    line = 30;
    const Object item = ShownItem(s.err, oueCurrExplorer.object(), oueCurrInspector.object());
    if (item) ShowFields(item);
    line = 40;
    if (oueCurrInspector) s.upward().subInvalidateRibbon();
  });
}

void cCustomFieldsTB::cboField_Change(int field) {
  Actions::GetCurrentSelectedItem(s_, ItemProperty(field),
                                  Combo(field).object().Get("Text").ToText(), EntryID);
}

void cCustomFieldsTB::subRemoveButtons() noexcept {
  AddinState& s = s_;
  ErrorState& err = s.err;
  if (objExplorerToolbar) {
    modLocalSettings::SaveToolbarPosition(s, kPositionSelector, objExplorerToolbar);
  }
  for (int field = 1; field <= 4; ++field) {
    IgnoreFailure(err, [&] {
      SetInspectorValue(field, "SELECTED_INSPECTOR_CUSTOM_FIELD#_VALUE", Variant(""));
    });
    if (oueCurrExplorer) s.ribbon.explorer.SelectedCustomFieldValue(field).clear();
  }
  DeleteControl(err, cmdTitle);
  for (int field = 1; field <= 4; ++field) DeleteControl(err, Combo(field));
  DeleteControl(err, objExplorerToolbar);
  SweepBars(err, oueCurrExplorer.object(), kBarName);
  SweepBars(err, oueCurrInspector.object(), kBarName);
  oueCurrExplorer.Release();
  oueCurrInspector.Release();
  ouaMonitorApp.Release();
}

}  // namespace qvx
