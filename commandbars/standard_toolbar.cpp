// cStandardTB: its life on the window — building the bar, taking it down,
// the window's and the host's end — and the inspector pool by name.
#include "commandbars/standard_toolbar.h"

#include "commandbars/bar_controls.h"
#include "commandbars/views_toolbar.h"
#include "core/host_constants.h"
#include "settings/local_settings.h"
#include "settings/my_settings.h"
#include "settings/settings_lists.h"
#include "settings/single_list.h"
#include "state/addin_state.h"
#include "support/endpoints.h"
#include "support/outlook_session.h"

namespace qvx {
namespace {

constexpr std::string_view kBarName = "Quorvix";
constexpr int16_t kPositionSelector = 0;

}  // namespace

cStandardTB::cStandardTB(AddinState& s)
    : oueCurrExplorer(*this, s),
      oueCurrInspector(*this, s),
      ouaMonitorApp(*this, s),
      ouiItems(*this, s),
      s_(s),
      cboProject(*this, s),
      cboTask(*this, s),
      cmdReport(*this, s),
      cmdWithdrawReport(*this, s),
      cboStaticFields(*this, s) {
  using Args = EventArgs;
  cboProject.On("Change", "ProjectToolbar.Project.Change",
                [](cStandardTB& self, Line&, Args&) { self.cboProject_Change(); });
  cboTask.On("Change", "ProjectToolbar.Task.Change",
             [](cStandardTB& self, Line&, Args&) { self.cboTask_Change(); });
  cmdReport.On("Click", "ProjectToolbar.cmdReport.Click",
               [](cStandardTB& self, Line&, Args&) { self.cmdReport_Click(); });
  cmdWithdrawReport.On("Click", "ProjectToolbar.cmdWithdrawReport.Click",
                       [](cStandardTB& self, Line&, Args&) { self.cmdWithdrawReport_Click(); });
  cboStaticFields.On("Click", "ProjectToolbar.cboStaticFields.Click",
                     [](cStandardTB& self, Line&, Args&) { self.cboStaticFields_Click(); });
  ouiItems.On("ItemChange", "ProjectToolbar.ouiItems.ItemChange",
              [](cStandardTB& self, Line&, Args& args) {
                self.ouiItems_ItemChange(args.empty() ? Object{} : args[0].ToObject());
              });
  oueCurrExplorer.On("Close", "ProjectToolbar.Explorer.Close",
                     [](cStandardTB& self, Line&, Args&) { self.oueCurrExplorer_Close(); });
  oueCurrInspector.On("Close", "ProjectToolbar.Inspector.Close",
                      [](cStandardTB& self, Line&, Args&) { self.oueCurrInspector_Close(); });
  ouaMonitorApp.On("Quit", "ProjectToolbar.App.Quit",
                   [](cStandardTB& self, Line&, Args&) { self.ouaMonitorApp_Quit(); });
}

cStandardTB::~cStandardTB() {
  subRemoveButtons();
}

StandardToolbarPool* cStandardTB::InspectorPool() {
  if (!oueCurrInspector) return nullptr;
  return &s_.ribbon.Inspector(strPoolKey).standard;
}

void cStandardTB::SetVariableValue(std::string_view Name, const Variant& Value) noexcept {
  WritePooledValue(s_, "StandardToolbar.SetVariableValue", Name, Value,
                   [this] { return InspectorPool(); });
}

Variant cStandardTB::GetRibbonValueFromPool(std::string_view Name) noexcept {
  return ReadPooledValue(s_, "StandardToolbar.GetRibbonValueFromPool", Name,
                         [this] { return InspectorPool(); });
}

void cStandardTB::subAddButtons() noexcept {
  AddinState& s = s_;
  // Until the bar is really built, a failure only ends the building.
  Object window;
  blnExplorerHost = false;
  if (oueCurrExplorer) {
    window = oueCurrExplorer.object();
    blnExplorerHost = true;
  } else if (oueCurrInspector) {
    window = oueCurrInspector.object();
  }
  blnFieldsShown = true;
  if (blnExplorerHost) {
    IgnoreFailure(s.err, [&] {
      const bool show = s.main.Settings().showProjectTaskToolbar != 0;
      blnFieldsShown = show;
      s.ribbon.explorer.COMMON_CONTROLS_VISIBLE = show;
    });
  } else if (window && strPoolKey.empty()) {
    IgnoreFailure(
        s.err, [&] { strPoolKey = window.Get("CurrentItem").ToObject().Get("EntryID").ToText(); });
  }
  Object bars;
  if (!window || !IgnoreFailure(s.err, [&] { bars = window.Get("CommandBars").ToObject(); }) ||
      s.err.pending()) {
    return;
  }
  Trapped(s, "ProjectToolbar.AddButtons", [&](Line& line) {
    line = 10;
    objExplorerToolbar = bars.Call("Add", {Variant(kBarName), Variant(host::msoBarTop),
                                           Variant(false), Variant(true)})
                             .ToObject();
    line = 20;
    modLocalSettings::LoadToolbarPosition(s, kPositionSelector, objExplorerToolbar);
    objExplorerToolbar.Put("Visible", Variant(true));
    line = 30;
    AddControls(line, objExplorerToolbar.Get("Controls").ToObject());
    if (blnExplorerHost) {
      objViews = std::make_shared<cViews>(s);
      objViews->oueCurrExplorer = window;
      objViews->subAddButtons(objExplorerToolbar);
    }
    line = 90;
    if (GetVersion(s) >= 14) objExplorerToolbar.Put("Visible", Variant(false));
  });
}

void cStandardTB::AddControls(Line& line, const Object& controls) {
  AddinState& s = s_;
  const cMySettings& settings = s.main.Settings();
  line = 40;
  cmdTitle = AddTemporaryControl(controls, host::msoControlButton);
  cmdTitle.Put("Style", Variant(host::msoButtonCaption));
  cmdTitle.Put("Caption", Variant(kBarName));
  cmdTitle.Put("TooltipText", Variant(kProductWebSite));
  cmdTitle.Put("BuiltInFace", Variant(true));
  cmdTitle.Put("State", Variant(host::msoButtonUp));
  cmdTitle.Put("Enabled", Variant(false));
  cmdTitle.Put("HyperlinkType", Variant(host::msoCommandBarButtonHyperlinkOpen));

  const auto addCombo = [&](EventField<cStandardTB>& field, const std::string& caption,
                            const std::string& tooltip) {
    const Object combo = AddTemporaryControl(controls, host::msoControlComboBox);
    field.Set(combo);
    combo.Put("Style", Variant(host::msoComboLabel));
    combo.Put("Caption", Variant(caption));
    combo.Put("TooltipText", Variant(tooltip));
    combo.Put("Width", Variant(int32_t{200}));
    combo.Put("Enabled", Variant(true));
    combo.Put("BeginGroup", Variant(true));
    combo.Put("Visible", Variant(blnFieldsShown));
    combo.Put("DropDownWidth", Variant(int32_t{400}));
    combo.Put("DropDownLines", Variant(int32_t{20}));
  };
  line = 50;
  addCombo(cboProject, settings.ProjectTitle, "Specify a " + settings.ProjectTitle);
  std::string none;
  ProjectList(s).PopulateComboList(s, cboProject.object(), none, true);
  shown_.projectEnabled = true;
  line = 60;
  addCombo(cboTask, settings.ActivityTitle,
           "Specify a " + settings.ActivityTitle + " for the selected " + settings.ProjectTitle);
  shown_.activityEnabled = true;

  const auto addButton = [&](const std::string& caption, const std::string& tooltip,
                             int32_t faceId) {
    const Object button = AddTemporaryControl(controls, host::msoControlButton);
    button.Put("Style", Variant(host::msoButtonIconAndCaption));
    button.Put("Caption", Variant(caption));
    button.Put("TooltipText", Variant(tooltip));
    button.Put("Enabled", Variant(true));
    button.Put("FaceId", Variant(faceId));
    button.Put("BeginGroup", Variant(true));
    return button;
  };
  line = 70;
  cmdReport.Set(addButton("Publish", "Report selected items to the database", 9941));
  shown_.reportCaption = "Publish";
  shown_.reportVisible = true;
  shown_.reportEnabled = true;
  cmdWithdrawReport.Set(addButton(
      "Withdraw Report",
      "Withdraw the corresponding reported data of the selecte items from the database", 478));
  cmdWithdrawReport.object().Put("Visible", Variant(false));
  shown_.withdrawCaption = "Withdraw Report";
  shown_.withdrawVisible = false;
  line = 80;
  cboStaticFields.Set(addButton("All Fields...", "Display other fields available", 502));
}

void cStandardTB::subRemoveButtons() noexcept {
  AddinState& s = s_;
  ErrorState& err = s.err;
  if (objExplorerToolbar) {
    modLocalSettings::SaveToolbarPosition(s, kPositionSelector, objExplorerToolbar);
  }
  if (oueCurrExplorer) {
    s.ribbon.explorer.SELECTED_PROJECT_VALUE.clear();
    s.ribbon.explorer.SELECTED_ACTIVITY_VALUE.clear();
  }
  IgnoreFailure(err, [&] {
    if (StandardToolbarPool* pool = InspectorPool()) {
      pool->SELECTED_INSPECTOR_PROJECT_VALUE.clear();
      pool->SELECTED_INSPECTOR_ACTIVITY_VALUE.clear();
    }
  });
  DeleteControl(err, cmdTitle);
  DeleteControl(err, cboProject);
  DeleteControl(err, cboTask);
  DeleteControl(err, cmdWithdrawReport);
  DeleteControl(err, cboStaticFields);
  DeleteControl(err, cmdReport);
  if (objViews) {
    objViews->RemoveButtons();
    objViews.reset();
  }
  DeleteControl(err, objExplorerToolbar);
  SweepBars(err, oueCurrExplorer.object(), kBarName);
  SweepBars(err, oueCurrInspector.object(), kBarName);
  ouiItems.Release();
  oueCurrExplorer.Release();
  oueCurrInspector.Release();
  ouaMonitorApp.Release();
}

void cStandardTB::oueCurrExplorer_Close() {
  subRemoveButtons();
  s_.upward().subShutDownOutlook();
}

// The inspectors' client forgets this bar when the same Close reaches it.
void cStandardTB::oueCurrInspector_Close() {
  ForgetInspectorBar(s_, oueCurrInspector.object(), false);
  subRemoveButtons();
}

void cStandardTB::ouaMonitorApp_Quit() {
  subRemoveButtons();
  s_.upward().subKillObjects();
}

}  // namespace qvx
