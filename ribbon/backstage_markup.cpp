#include "ribbon/backstage_markup.h"

#include <string_view>

#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

// imageMso is left out where it is empty.
std::string Task(std::string_view id, std::string_view label, std::string_view imageMso) {
  std::string xml = "<task id=\"";
  xml += id;
  xml += "\" label=\"";
  xml += label;
  xml += '"';
  if (!imageMso.empty()) {
    xml += " imageMso=\"";
    xml += imageMso;
    xml += '"';
  }
  xml += " isDefinitive=\"false\" onAction=\"SubExecuteAction\"/>";
  return xml;
}

}  // namespace

std::string GetBackStageXML(AddinState& s) {
  const cMySettings& settings = s.main.Settings();
  const std::string listsLabel =
      "My " + settings.ProjectTitle + " and " + settings.ActivityTitle + " Lists";
  std::string xml =
      "<backstage><tab id=\"QuorvixClientMenuBackStage\" label=\"Quorvix Client\" "
      "insertAfterMso=\"TabHelp\">";
  xml += "<firstColumn>";
  xml += "<taskGroup id=\"KRPClientTools\" label=\"My Tools\">";
  xml += "<category id=\"KRPClientToolsCategory\">";
  xml += Task("cmdProjectDataSource", "My Project Data Source", "DataAutomaticallyLink");
  xml += Task("cmdSyncProjectSettings", "Sync Project Data/Settings", "ArrangeByRecurrence");
  xml += Task("cmdMyProjectsTasks", listsLabel, "ManageGlobalTemplate");
  xml += Task("cmdMyLocalSettings", "My Local Settings", "GroupUsageViewFormat");
  xml += Task("cmdSummaryReports", "My TimeSheet Summary Reports", "SignatureLineInsert");
  xml += Task("cmdStatisticsReported", "My TimeSheet OLAP Statistics", "Chart3DColumnChart");
  xml += "</category>";
  xml += "<category id=\"KRPClientHelpCategory\" label=\"Other Information\">";
  xml += Task("cmdHelpTopics", "Help Topics", "Help");
  xml += Task("cmdVideoTutorials", "Video Tutorials", "MovieFromFileInsert");
  xml += Task("cmdCheckUpdates", "Check Updates", "");
  xml += Task("cmdVisitHomepage", "Visit Home page", "HyperlinkInsert");
  xml += Task("cmdAbout", "About Quorvix", "");
  xml += "</category>";
  xml += "</taskGroup>";
  xml += "</firstColumn>";
  xml += "</tab></backstage>";
  return xml;
}

}  // namespace qvx
