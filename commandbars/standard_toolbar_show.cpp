// cStandardTB: what the bar shows of an item, and the copies of it that the
// ribbon reads.
#include "commandbars/bar_controls.h"
#include "commandbars/standard_toolbar.h"
#include "commandbars/views_toolbar.h"
#include "core/text.h"
#include "settings/my_settings.h"
#include "settings/settings_lists.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project.h"
#include "state/addin_state.h"
#include "support/mail_library.h"

namespace qvx {
namespace {

std::string ItemText(AddinState& s, const Object& item, std::string_view field) {
  return GetFieldValueFromItem(s, item, field, VarType::String).ToText();
}

}  // namespace

void cStandardTB::CopyButtonsToPools() {
  if (oueCurrExplorer) {
    ExplorerRibbonValues& x = s_.ribbon.explorer;
    x.WITHDRAW_BUTTON_CAPTION = shown_.withdrawCaption;
    x.REPORT_BUTTON_CAPTION = shown_.reportCaption;
    x.REPORT_BUTTON_VISIBLE = shown_.reportVisible;
    x.WITHDRAW_BUTTON_VISIBLE = shown_.withdrawVisible;
    x.PROJECT_ENABLED = shown_.projectEnabled;
    x.ACTIVITY_ENABLED = shown_.activityEnabled;
  }
  if (StandardToolbarPool* pool = InspectorPool()) {
    pool->WITHDRAW_BUTTON_INSPECTOR_CAPTION = shown_.withdrawCaption;
    pool->REPORT_BUTTON_INSPECTOR_CAPTION = shown_.reportCaption;
    pool->REPORT_BUTTON_INSPECTOR_VISIBLE = shown_.reportVisible;
    pool->WITHDRAW_BUTTON_INSPECTOR_VISIBLE = shown_.withdrawVisible;
    pool->PROJECT_INSPECTOR_ENABLED = shown_.projectEnabled;
    pool->ACTIVITY_INSPECTOR_ENABLED = shown_.activityEnabled;
  }
}

void cStandardTB::ShowFields(const Object& objItem) noexcept {
  AddinState& s = s_;
  if (s.tagging.blnTaggingInProgress) return;
  Trapped(s, "ProjectToolbar.ShowFields", [&](Line& line) {
    const cMySettings& settings = s.main.Settings();
    line = 10;
    cmdReport.object().Put("Caption", Variant("Publish"));
    shown_.reportCaption = "Publish";
    cmdWithdrawReport.object().Put("Visible", Variant(false));
    shown_.withdrawVisible = false;
    cmdReport.object().Put("Visible", Variant(true));
    shown_.reportVisible = true;
    line = 20;
    const auto enableCombos = [&](bool enabled) {
      cboProject.object().Put("Enabled", Variant(enabled));
      shown_.projectEnabled = enabled;
      cboTask.object().Put("Enabled", Variant(enabled));
      shown_.activityEnabled = enabled;
    };
    if (blnFieldsShown) enableCombos(true);
    line = 30;
    const std::string reportedId = ItemText(s, objItem, "ReportedID");
    const bool reported = !reportedId.empty();
    if (reported) {
      shown_.reportCaption = "Update #" + reportedId;
      cmdReport.object().Put("Caption", Variant(shown_.reportCaption));
      if (settings.AllowUpdateToReportedData == 0) {
        cmdReport.object().Put("Visible", Variant(false));
        shown_.reportVisible = false;
      }
    }
    line = 40;
    if (blnFieldsShown) {
      const std::string project = ItemText(s, objItem, "ProjectValue");
      cboProject.object().Put("Text", Variant(project));
      cboTask.object().Put("Text", Variant(""));
      const std::string_view trimmed = Trim(project);
      if (ProjectList(s).dicList.Exists(trimmed)) {
        Quietly(s.err, [&] {
          if (const auto activities = ProjectActivities(s, trimmed)) {
            std::string none;
            activities->PopulateComboList(s, cboTask.object(), none, false);
          }
        });
      }
      line = 50;
      cmdTitle.Put("Visible", Variant(true));
      const std::string activity = ItemText(s, objItem, "ActivityValue");
      cboTask.object().Put("Text", Variant(activity));
      if (StandardToolbarPool* pool = InspectorPool()) {
        pool->SELECTED_INSPECTOR_PROJECT_VALUE = project;
        pool->SELECTED_INSPECTOR_ACTIVITY_VALUE = activity;
      }
      if (oueCurrExplorer) {
        s.ribbon.explorer.SELECTED_PROJECT_VALUE = project;
        s.ribbon.explorer.SELECTED_ACTIVITY_VALUE = activity;
      }
      if (settings.DontAllowChangesToReportedItem != 0 && reported) enableCombos(false);
    }
    line = 60;
    if (reported && settings.AllowWithdrawalOfReportedData != 0) {
      shown_.withdrawCaption = "Withdraw #" + reportedId;
      cmdWithdrawReport.object().Put("Caption", Variant(shown_.withdrawCaption));
      cmdWithdrawReport.object().Put("Visible", Variant(true));
      shown_.withdrawVisible = true;
    }
    line = 70;
    CopyButtonsToPools();
  });
}

void cStandardTB::EmptyAll() noexcept {
  AddinState& s = s_;
  if (!blnFieldsShown) return;
  IgnoreFailure(s.err, [&] {
    cboProject.object().Put("Enabled", Variant(true));
    shown_.projectEnabled = true;
  });
  IgnoreFailure(s.err, [&] {
    cboTask.object().Put("Enabled", Variant(true));
    shown_.activityEnabled = true;
  });
  IgnoreFailure(s.err, [&] { cboProject.object().Put("Text", Variant("")); });
  IgnoreFailure(s.err, [&] { cboTask.object().Put("Text", Variant("")); });
  if (oueCurrExplorer) {
    s.ribbon.explorer.SELECTED_PROJECT_VALUE.clear();
    s.ribbon.explorer.SELECTED_ACTIVITY_VALUE.clear();
  }
  IgnoreFailure(s.err, [&] {
    if (StandardToolbarPool* pool = InspectorPool()) {
      pool->SELECTED_INSPECTOR_PROJECT_VALUE.clear();
      pool->SELECTED_INSPECTOR_ACTIVITY_VALUE.clear();
    }
  });
}

void cStandardTB::DisableWithdrawReportButton() noexcept {
  AddinState& s = s_;
  Trapped(s, "ProjectToolbar.DisableWithdrawReportButton", [&](Line& line) {
    line = 10;
    cmdReport.object().Put("Caption", Variant("Publish"));
    shown_.reportCaption = "Publish";
    cmdReport.object().Put("Enabled", Variant(true));
    shown_.reportEnabled = true;
    cmdWithdrawReport.object().Put("Visible", Variant(false));
    shown_.withdrawVisible = false;
    line = 20;
    // The report value follows the button's Enabled here, not its Visible.
    if (oueCurrExplorer) {
      s.ribbon.explorer.REPORT_BUTTON_VISIBLE = shown_.reportEnabled;
      s.ribbon.explorer.REPORT_BUTTON_CAPTION = shown_.reportCaption;
      s.ribbon.explorer.WITHDRAW_BUTTON_VISIBLE = shown_.withdrawVisible;
    }
    if (StandardToolbarPool* pool = InspectorPool()) {
      pool->REPORT_BUTTON_INSPECTOR_VISIBLE = shown_.reportEnabled;
      pool->REPORT_BUTTON_INSPECTOR_CAPTION = shown_.reportCaption;
      pool->WITHDRAW_BUTTON_INSPECTOR_VISIBLE = shown_.withdrawVisible;
    }
  });
}

void cStandardTB::UpdateToolbar() noexcept {
  AddinState& s = s_;
  ++toolbarUpdates;
  Trapped(s, "ProjectToolbar.UpdateToolbar", [&](Line& line) {
    const cMySettings& settings = s.main.Settings();
    line = 10;
    if (settings.showProjectTaskToolbar != 0) {
      blnFieldsShown = true;
      s.ribbon.explorer.COMMON_CONTROLS_VISIBLE = true;
      const Object& project = cboProject.object();
      const Object& task = cboTask.object();
      project.Put("Caption", Variant(settings.ProjectTitle));
      task.Put("Caption", Variant(settings.ActivityTitle));
      project.Put("Visible", Variant(true));
      task.Put("Visible", Variant(true));
      project.Put("Enabled", Variant(true));
      task.Put("Enabled", Variant(true));
      shown_.projectEnabled = shown_.activityEnabled = true;
      line = 20;
      std::string projectText = project.Get("Text").ToText();
      ProjectList(s).PopulateComboList(s, project, projectText, false);
      if (ProjectList(s).dicList.Exists(Trim(projectText))) {
        Quietly(s.err, [&] {
          if (const auto activities = ProjectActivities(s, Trim(projectText))) {
            std::string taskText = task.Get("Text").ToText();
            activities->PopulateComboList(s, task, taskText, false);
          }
        });
      }
      line = 30;
      const Object item = ShownItem(s.err, oueCurrExplorer.object(), oueCurrInspector.object());
      if (item) ShowFields(item);
      line = 40;
      // Both end enabled, even on a reported item that ShowFields disabled.
      project.Put("Enabled", Variant(true));
      task.Put("Enabled", Variant(true));
      shown_.projectEnabled = shown_.activityEnabled = true;
    } else {
      line = 50;
      blnFieldsShown = false;
      cboProject.object().Put("Visible", Variant(false));
      cboTask.object().Put("Visible", Variant(false));
      if (oueCurrExplorer) {
        s.ribbon.explorer.PROJECT_ENABLED = false;
        s.ribbon.explorer.ACTIVITY_ENABLED = false;
      }
      if (StandardToolbarPool* pool = InspectorPool()) {
        pool->PROJECT_INSPECTOR_ENABLED = false;
        pool->ACTIVITY_INSPECTOR_ENABLED = false;
      }
    }
    line = 60;
    if (objViews) objViews->UpdateToolbar();
    if (oueCurrInspector) s.upward().subInvalidateRibbon();
  });
}

}  // namespace qvx
