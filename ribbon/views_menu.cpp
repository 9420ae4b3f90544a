#include "ribbon/views_menu.h"

#include <array>
#include <string_view>

#include "core/text.h"
#include "ribbon/explorer_markup.h"
#include "ribbon/ribbon_control.h"
#include "ribbon/ribbon_invalidation.h"
#include "state/addin_state.h"
#include "views/view_catalogue.h"
#include "views/view_names.h"
#include "views/view_provisioning.h"

namespace qvx {
namespace {

constexpr std::array<std::string_view, 7> kViewsMenus{"dnViewsCal",
                                                      "dnViewsCalTable",
                                                      "dnViewsTask",
                                                      "dnViewsAppointment",
                                                      "dnViewsRecurringAppointment",
                                                      "dnViewsTaskList",
                                                      "dnViewsTaskDaily"};

bool IsViewsMenu(std::string_view id) {
  for (const std::string_view menu : kViewsMenus) {
    if (id == menu) return true;
  }
  return false;
}

std::string Entry(std::string_view id, const std::string& name) {
  std::string xml = "<button id=\"";
  xml += id;
  xml += "\" label=\"" + name + "\" tag=\"" + name + "\" onAction=\"ExecuteView\"/>";
  return xml;
}

Object ActiveExplorer(AddinState& s) {
  return s.main.objOutlook.Get("ActiveExplorer").ToObject();
}

}  // namespace

std::string GetContentXML(AddinState& s, const Variant& control) noexcept {
  return TrappedResult<std::string>(s, "GetContentXML", [&](Line& line, std::string& result) {
    line = 10;
    std::string xml = "<menu xmlns=\"";
    xml += kCustomUiNamespace2009;
    xml += "\">";
    line = 20;
    if (IsViewsMenu(ControlId(control))) {
      line = 30;
      for (const PreparedView& view : kPreparedViews) {
        if (!view.menuEntry.empty()) xml += Entry(view.menuEntry, GetActualViewName(s, view.name));
      }
      xml += "<menuSeparator  id=\"cmdDefinedViewsSep\"/>";
      line = 40;
      int16_t counter = 0;
      const Object views =
          ActiveExplorer(s).Get("CurrentFolder").ToObject().Get("Views").ToObject();
      for (const Variant& view : views.Enumerate()) {
        const std::string name = view.ToObject().Get("Name").ToText();
        if (IsPreparedViewName(s, name)) continue;
        ++counter;
        xml += Entry("cmdView" + std::to_string(counter), name);
      }
    }
    line = 50;
    result = xml + "</menu>";
  });
}

void ExecuteView(AddinState& s, const Variant& control) noexcept {
  Trapped(s, "Addin.ExecuteView", [&](Line& line) {
    line = 10;
    const std::string id = ControlId(control);
    const std::string tag = ControlTag(control);
    line = 20;
    if (InStr(id, "cmdDefinedView") > 0) {
      const Object folder = ActiveExplorer(s).Get("CurrentFolder").ToObject();
      line = 30;
      LoadView(s, folder, tag, GetViewResName(s, tag));
    } else {
      line = 40;
      ActiveExplorer(s).Put("CurrentView", Variant(tag));
    }
    line = 50;
    s.ribbon.explorer.LAST_VIEW_NAME = tag;
    subInvalidateControl(s, "dnViewsTask");
    subInvalidateControl(s, "dnViewsCal");
  });
}

}  // namespace qvx
