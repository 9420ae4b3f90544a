#include "ribbon/inspector_markup.h"

#include "ribbon/ribbon_markup_parts.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"
#include "support/outlook_session.h"

namespace qvx {

std::string MailTaskAppointmentUI(AddinState& s, std::string_view tab, std::string_view groupId,
                                  std::string_view before, std::string_view context) noexcept {
  return TrappedResult<std::string>(
      s, "Addin.MailTaskAppointmentUI", [&](Line& line, std::string& result) {
        line = 10;
        std::string xml = "<customUI xmlns=\"";
        xml += kCustomUiNamespace2006;
        xml += "\" onLoad=\"OnLoad\" loadImage=\"getImages\">";
        line = 20;
        xml += "<ribbon><tabs><tab idMso=\"";
        xml += tab;
        xml += "\"><group id=\"";
        xml += groupId;
        xml += "\" label=\"Quorvix\" getVisible=\"GetGroupVisibility\" insertBeforeMso=\"";
        xml += before;
        xml += "\">";
        line = 30;
        xml += GetInspectorRibbonUI(s);
        xml += "</group>";
        line = 40;
        xml += GetInspectorCustomFieldsRibbonUI(s, before, context);
        xml += " </tab></tabs></ribbon></customUI>";
        result = std::move(xml);
      });
}

std::string GetInspectorRibbonUI(AddinState& s) noexcept {
  return TrappedResult<
      std::string>(s, "Addin.GetInspectorRibbonUI", [&](Line& line, std::string& result) {
    line = 10;
    const bool ownPictures = GetVersion(s) == 12;
    const std::string_view reportImage =
        ownPictures ? "image=\"Report\"" : "imageMso=\"GanttDataImport\"";
    const std::string_view withdrawImage =
        ownPictures ? "image=\"Withdraw\"" : "imageMso=\"GanttDataExport\"";
    const std::string_view fieldsImage =
        ownPictures ? "imageMso=\"ViewsFormView\"" : "imageMso=\"GroupVirtualListActions\"";
    line = 20;
    std::string xml = "<box id=\"box1\"  boxStyle=\"vertical\">";
    xml += DropDownMarkup("cboProject", "", false);
    xml += DropDownMarkup("cboTask", "", false);
    xml +=
        "<button id=\"cmdStaticFields\" size=\"normal\" label=\"All Project Fields...\" "
        "onAction=\"SubExecuteAction\" ";
    xml += fieldsImage;
    xml += "/>";
    xml += "</box>";
    line = 30;
    xml +=
        "<button id=\"cmdReport\" getVisible=\"GetReportButtonVisibleInspector\" size=\"large\" "
        "getLabel=\"GetLabel\" onAction=\"SubExecuteAction\" ";
    xml += reportImage;
    xml += "/>";
    xml +=
        "<button id=\"cmdWithdrawReport\" getVisible=\"GetWithdrawButtonVisibleInspector\" "
        "size=\"large\" getLabel=\"GetLabel\" onAction=\"SubExecuteAction\" ";
    xml += withdrawImage;
    xml += "/>";
    result = std::move(xml);
  });
}

std::string GetInspectorCustomFieldsRibbonUI(AddinState& s, std::string_view before,
                                             std::string_view context) noexcept {
  return TrappedResult<std::string>(
      s, "Addin.GetInspectorCustomFieldsRibbonUI", [&](Line& line, std::string& result) {
        line = 10;
        if (!s.main.objMySettings) return;
        line = 20;
        std::string xml = "<group label=\"Quorvix - ";
        xml += s.main.Settings().CustomFieldsTitle;
        xml += "\" id=\"KRPInspectorCustomFieldsGroup";
        xml += context;
        xml += "\" getVisible=\"ShowCustomFields\" insertBeforeMso=\"";
        xml += before;
        xml += "\">";
        line = 30;
        for (int field = 1; field <= 4; ++field) xml += CustomFieldDropDownMarkup(field, "");
        xml += "</group>";
        result = std::move(xml);
      });
}

}  // namespace qvx
