#include "ribbon/explorer_markup.h"

#include "ribbon/backstage_markup.h"
#include "ribbon/ribbon_contexts.h"
#include "ribbon/ribbon_markup_parts.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

// The group's opening tag: every main group asks whether it shows, but the
// recurring appointment's, which shows whenever its tab does.
std::string MainGroupOpening(const ExplorerRibbonContext& context) {
  std::string xml = "<group label=\"Quorvix\" id=\"";
  xml += context.mainGroupId;
  xml += '"';
  if (context.suffix != "RecurringAppointment") xml += " getVisible=\"GetGroupVisibility\"";
  xml += " insertBeforeMso=\"";
  xml += context.insertBeforeMso;
  xml += "\">";
  return xml;
}

// One tab's body: the main group, then the custom fields group.
std::string TabFragment(AddinState& s, const ExplorerRibbonContext& context) {
  std::string xml = "<tab idMso=\"";
  xml += context.tabMso;
  xml += "\">";
  xml += MainGroupOpening(context);
  xml += GetCommonRibbonUI(s, context.suffix);
  xml += "</group>";
  xml += GetCustomFieldsRibbonUI(s, context.suffix);
  xml += "</tab>";
  return xml;
}

std::string_view CustomFieldsAnchor(std::string_view suffix) {
  if (suffix == "Cal" || suffix == "CalTable") return "GroupCalendarNew";
  if (suffix == "Task") return "GroupTasksNew";
  if (suffix == "Appointment") return "GroupAppointmentActions";
  if (suffix == "RecurringAppointment") return "GroupRecurringAppointmentActions";
  if (suffix == "TaskDaily" || suffix == "TaskList") return "GroupTaskOpen";
  return "GroupActions";
}

}  // namespace

std::string ExplorerUI(AddinState& s) noexcept {
  return TrappedResult<std::string>(s, "Addin.ExplorerUI", [&](Line& line, std::string& result) {
    line = 10;
    std::string xml = "<customUI xmlns=\"";
    xml += kCustomUiNamespace2009;
    xml += "\" onLoad=\"OnLoad\">";
    xml += "<ribbon><tabs>";
    line = 20;
    for (const ExplorerRibbonContext& context : kExplorerRibbonContexts) {
      if (context.tabSetMso.empty()) xml += TabFragment(s, context);
    }
    xml += "</tabs>";
    xml += "<contextualTabs>";
    line = 30;
    for (const ExplorerRibbonContext& context : kExplorerRibbonContexts) {
      if (context.tabSetMso.empty()) continue;
      xml += "<tabSet idMso=\"";
      xml += context.tabSetMso;
      xml += "\">";
      xml += TabFragment(s, context);
      xml += "</tabSet>";
    }
    xml += "</contextualTabs>";
    xml += "</ribbon>";
    line = 40;
    xml += GetBackStageXML(s);
    line = 50;
    xml += "<contextMenus>";
    xml += "<contextMenu idMso=\"ContextMenuCalendarItem\">";
    xml += GetContextMenuRibbonUI("Cal");
    xml += "</contextMenu>";
    xml += "<contextMenu idMso=\"ContextMenuTaskItem\">";
    xml += GetContextMenuRibbonUI("Task");
    xml += "</contextMenu>";
    xml += "</contextMenus>";
    xml += "</customUI>";
    result = std::move(xml);
  });
}

std::string GetCommonRibbonUI(AddinState& s, std::string_view suffix) noexcept {
  return TrappedResult<std::string>(
      s, "Addin.GetCommonRibbonUI", [&](Line& line, std::string& result) {
        line = 10;
        const std::string s1(suffix);
        std::string xml = "<box id=\"box1" + s1 + "\"  boxStyle=\"vertical\">";
        xml += DropDownMarkup("cboProject", suffix, true);
        xml += DropDownMarkup("cboTask", suffix, true);
        line = 20;
        if (!suffix.empty()) {
          xml +=
              "<dynamicMenu id=\"dnViews" + s1 +
              "\"  label=\"Views\" getContent=\"GetContentXML\" invalidateContentOnDrop=\"true\" "
              "imageMso=\"WatchWindow\"/>";
        }
        xml += "</box>";
        line = 30;
        xml += "<button id=\"cmdReport" + s1 +
               "\" getVisible=\"GetReportButtonVisible\" size=\"large\" getLabel=\"GetLabel\" "
               "onAction=\"SubExecuteAction\" imageMso=\"GanttDataImport\"/>";
        xml += "<separator id=\"sep1000" + s1 + "\"/>";
        xml += "<button id=\"cmdWithdrawReport" + s1 +
               "\" getVisible=\"GetWithdrawButtonVisible\" size=\"normal\" getLabel=\"GetLabel\" "
               "onAction=\"SubExecuteAction\" imageMso=\"GanttDataExport\"/>";
        xml += "<button id=\"cmdStaticFields" + s1 +
               "\"  size=\"normal\" label=\"All Project Fields...\" onAction=\"SubExecuteAction\" "
               "imageMso=\"GroupVirtualListActions\" />";
        xml +=
            "<button id=\"cmdSyncProjectSettings" + s1 +
            "\" size=\"normal\" label=\"Sync Project Settings\" imageMso=\"ArrangeByRecurrence\" "
            "onAction=\"SubExecuteAction\"/>";
        result = std::move(xml);
      });
}

std::string GetCustomFieldsRibbonUI(AddinState& s, std::string_view suffix) noexcept {
  return TrappedResult<std::string>(
      s, "Addin.GetCustomFieldsRibbonUI", [&](Line& line, std::string& result) {
        line = 10;
        if (!s.main.objMySettings) return;
        line = 20;
        std::string xml = "<group label=\"Quorvix - ";
        xml += s.main.Settings().CustomFieldsTitle;
        xml += "\" getVisible=\"ShowCustomFields\" id=\"KRPCustomFieldsGroup";
        xml += suffix;
        xml += "\" insertBeforeMso=\"";
        xml += CustomFieldsAnchor(suffix);
        xml += "\">";
        line = 30;
        for (int field = 1; field <= 4; ++field) xml += CustomFieldDropDownMarkup(field, suffix);
        xml += "</group>";
        result = std::move(xml);
      });
}

std::string GetContextMenuRibbonUI(std::string_view suffix) {
  const std::string s1(suffix);
  std::string xml = "<menuSeparator  id=\"cmdKRPGap1" + s1 + "\"/>";
  xml += "<button id=\"cmdContextReport" + s1 +
         "\" imageMso=\"GanttDataImport\" getVisible=\"GetReportButtonVisible\" "
         "getLabel=\"GetLabel\" onAction=\"SubExecuteAction\"/>";
  xml += "<button id=\"cmdContextWithdrawReport" + s1 +
         "\" imageMso=\"GanttDataExport\" getVisible=\"GetWithdrawButtonVisible\" "
         "getLabel=\"GetLabel\" onAction=\"SubExecuteAction\"/>";
  return xml;
}

}  // namespace qvx
