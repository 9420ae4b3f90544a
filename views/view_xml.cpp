#include "views/view_xml.h"

#include "core/host_constants.h"
#include "core/text.h"
#include "platform/resources.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

std::string ElementText(std::string_view text) {
  return Replace(Replace(Replace(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

}  // namespace

std::string_view ViewResourceType(int32_t defaultItemType) {
  if (defaultItemType == host::olAppointmentItem) return kAppointmentViews;
  if (defaultItemType == host::olTaskItem) return kTaskViews;
  return {};
}

std::string GetViewXML(AddinState& s, std::string_view resourceType,
                       std::string_view resourceName) {
  return TrappedResult<std::string>(s, "Views.GetViewXML", [&](Line& line, auto& result) {
    line = 10;
    if (Trim(resourceType).empty()) return;
    line = 20;
    const std::string name = Replace(resourceName, " ", "_");
    line = 30;
    // The documents are 8-bit text of the English code page; they hold no
    // character beyond ASCII, so their bytes are already the program's text.
    result = platform::LoadResData(*s.platform.resources, resourceType, name);
  });
}

std::string ApplyTitlesToViewXML(AddinState& s, std::string_view xml) {
  const cMySettings& settings = s.main.Settings();
  const std::string project =
      Replace(xml, ">Project<", ">" + ElementText(settings.ProjectTitle) + "<");
  return Replace(project, ">Task<", ">" + ElementText(settings.ActivityTitle) + "<");
}

}  // namespace qvx
