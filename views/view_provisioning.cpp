#include "views/view_provisioning.h"

#include <array>
#include <cstdint>

#include "core/absence.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "state/addin_state.h"
#include "views/view_names.h"
#include "views/view_xml.h"

namespace qvx {
namespace {

struct FolderField {
  std::string_view name;
  int32_t type;
};

// What the views' columns and filters name. The date and the text "Reported
// Date" are two properties; the filtered view of reported dates uses the text.
constexpr std::array<FolderField, 16> kFolderFields = {{
    {"ProjectValue", host::olText},
    {"ActivityValue", host::olText},
    {"Field1Value", host::olText},
    {"Field2Value", host::olText},
    {"Field3Value", host::olText},
    {"Field4Value", host::olText},
    {"Field5Value", host::olText},
    {"Field6Value", host::olText},
    {"Field7Value", host::olText},
    {"Field8Value", host::olText},
    {"ReportedDate", host::olDateTime},
    {"Reported Date", host::olText},
    {"ReportedID", host::olText},
    {"ReportedIDHidden", host::olText},
    {"Reported", host::olYesNo},
    {"ReportedBy", host::olText},
}};

Object FindView(AddinState& s, const Object& views, std::string_view viewName) {
  return QuietObject(s.err, [&] { return views.Call("Item", {Variant(viewName)}); });
}

}  // namespace

void LoadView(AddinState& s, const Object& folder, std::string_view viewName,
              std::string_view resourceName) {
  Trapped(s, "Views.LoadView", [&](Line& line) {
    line = 10;
    const std::string_view resourceType = ViewResourceType(folder.Get("DefaultItemType").ToLong());
    line = 20;
    const Object views = folder.Get("Views").ToObject();
    line = 30;
    Object view = FindView(s, views, viewName);
    if (view.IsNothing()) {
      line = 40;
      view = views
                 .Call("Add", {Variant(viewName), Variant(GetViewType(viewName)),
                               Variant(host::olViewSaveOptionThisFolderEveryone)})
                 .ToObject();
      line = 50;
      AddKRPFieldsToOutlookFolder(s, folder);
      line = 60;
      const std::string xml = GetViewXML(s, resourceType, resourceName);
      line = 70;
      view.Put("XML", Variant(ApplyTitlesToViewXML(s, xml)));
      line = 80;
      Quietly(s.err, [&] { view.Call("Save"); });
      Quietly(s.err, [&] { view.Call("Apply"); });
    } else {
      line = 90;
      Quietly(s.err, [&] { view.Call("Apply"); });
    }
  });
}

void AddKRPFieldsToOutlookFolder(AddinState& s, const Object& folder) {
  Trapped(s, "Views.AddKRPFieldsToOutlookFolder", [&](Line& line) {
    line = 10;
    const Object item = QuietObject(s.err, [&] {
      const int32_t itemType = folder.Get("DefaultItemType").ToLong();
      const Object items = folder.Get("Items").ToObject();
      if (itemType == host::olAppointmentItem)
        return items.Call("Add", {Variant("IPM.APPOINTMENT")});
      if (itemType == host::olTaskItem) return items.Call("Add", {Variant("IPM.TASK")});
      return Variant();
    });
    line = 20;
    if (item.IsNothing()) return;
    line = 30;
    const Object properties = item.Get("UserProperties").ToObject();
    line = 40;
    for (const FolderField& field : kFolderFields) {
      properties.Call("Add", {Variant(field.name), Variant(field.type), Variant(true)});
    }
    line = 50;
    Quietly(s.err, [&] { item.Call("Save"); });
    Quietly(s.err, [&] { item.Call("Delete"); });
  });
}

void DeleteOrphanedViews(AddinState& s, const Object& folder, std::string_view viewName) {
  Trapped(s, "Views.DeleteOrphanedViews", [&](Line& line) {
    line = 10;
    const bool orphan = viewName == "Project and Activity" || viewName == "Project" ||
                        viewName == "Activity" || InStr(viewName, "Items without") > 0;
    line = 20;
    if (orphan) DeleteView(s, folder, viewName);
  });
}

void DeleteView(AddinState& s, const Object& folder, std::string_view viewName) {
  Trapped(s, "Views.DeleteView", [&](Line& line) {
    line = 10;
    const Object views = folder.Get("Views").ToObject();
    line = 20;
    const Object view = FindView(s, views, viewName);
    line = 30;
    if (view) view.Call("Delete");
  });
}

}  // namespace qvx
