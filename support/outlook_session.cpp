#include "support/outlook_session.h"

#include "core/absence.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "platform/user_interface.h"
#include "state/addin_state.h"
#include "support/app_texts.h"

namespace qvx {
namespace {

constexpr std::string_view kRequiredVersionText =
    "Outlook 2003 or later required to use this application!";

}  // namespace

void EnsureOutlookSession(AddinState& s, int32_t folder) noexcept {
  MainGlobals& m = s.main;
  if (m.objOutlook.IsNothing()) {
    IgnoreFailureAt(s.err, 10,
                    [&] { m.objOutlook = s.objects().GetObject("Outlook.Application"); });
    if (m.objOutlook.IsNothing()) {
      // The application class itself first, then each version's ProgID.
      static constexpr std::string_view kProgIds[] = {
          "Outlook.Application",    "Outlook.Application.14", "Outlook.Application.12",
          "Outlook.Application.11", "Outlook.Application.10", "Outlook.Application.9",
          "Outlook.Application"};
      for (std::string_view progId : kProgIds) {
        IgnoreFailureAt(s.err, 20, [&] { m.objOutlook = s.objects().CreateObject(progId); });
        if (m.objOutlook) break;
      }
      if (m.objOutlook.IsNothing()) {
        IgnoreFailureAt(s.err, 30, [&] {
          s.ui().MessageBox("Error trying to start Outlook!", platform::msgbox::kOkOnly,
                            kMessageTitle);
        });
        s.upward().subKillObjects();
      }
    }
    if (m.objOutlook.IsNothing()) {
      IgnoreFailureAt(s.err, 40, [&] {
        s.ui().MessageBox(std::string(kRequiredVersionText) + "\r\n" +
                              std::to_string(s.err.number) + " " + s.err.description + "\r\n" +
                              std::to_string(s.err.line),
                          platform::msgbox::kCritical, kMessageTitle);
      });
      s.upward().subKillObjects();
    } else {
      // A failing test falls into the branch, as the statement after it runs next.
      int16_t version = 0;
      if (!IgnoreFailureAt(s.err, 50, [&] { version = GetVersion(s); }) || version < 10) {
        IgnoreFailureAt(s.err, 60, [&] {
          s.ui().MessageBox(
              std::string(kRequiredVersionText) + "\r\n" + std::to_string(GetVersion(s)),
              platform::msgbox::kCritical, kMessageTitle);
        });
        s.upward().subKillObjects();
      }
    }
  }
  if (m.objOutlook && m.objNameSpace.IsNothing()) {
    IgnoreFailureAt(s.err, 70, [&] {
      m.objNameSpace = ObjectOrNothing(m.objOutlook.Call("GetNamespace", {Variant("MAPI")}));
    });
  }
  if (m.objOutlook) {
    Object active;
    if (!IgnoreFailureAt(s.err, 80,
                         [&] { active = ObjectOrNothing(m.objOutlook.Get("ActiveExplorer")); }) ||
        active.IsNothing()) {
      const Object app = m.objOutlook;
      int32_t count = -1;
      if (!IgnoreFailureAt(
              s.err, 90, [&] { count = app.Get("Explorers").ToObject().Get("Count").ToLong(); }) ||
          count == 0) {
        IgnoreFailureAt(s.err, 100, [&] {
          const Variant defaultFolder = m.objNameSpace.Call("GetDefaultFolder", {Variant(folder)});
          app.Get("Explorers").ToObject().Call("Add", {defaultFolder});
        });
      }
      IgnoreFailureAt(s.err, 110, [&] {
        ObjectOrNothing(app.Get("Explorers").ToObject().Call("Item", {Variant(int32_t{1})}))
            .Call("Activate");
      });
    }
  }
  s.err.Clear();
}

int16_t GetVersion(AddinState& s) {
  if (s.support.cachedVersion == 0) {
    if (s.main.objOutlook.IsNothing()) EnsureOutlookSession(s, host::olFolderInbox);
    const std::string version = s.main.objOutlook.Get("Version").ToText();
    const size_t dot = version.find('.');
    const std::string major = dot == std::string::npos ? version : version.substr(0, dot);
    s.support.cachedVersion = Variant(major).ToInteger();
  }
  return s.support.cachedVersion;
}

void ShowDefaultFolder(AddinState& s, int32_t folder) noexcept {
  MainGlobals& m = s.main;
  IgnoreFailureAt(s.err, 10, [&] {
    if (m.objOutlook.IsNothing()) EnsureOutlookSession(s, host::olFolderInbox);
  });
  if (m.objNameSpace.IsNothing()) {
    IgnoreFailureAt(s.err, 20, [&] {
      m.objNameSpace = ObjectOrNothing(m.objOutlook.Call("GetNamespace", {Variant("MAPI")}));
    });
  }
  int32_t count = -1;
  if (!IgnoreFailureAt(
          s.err, 30,
          [&] { count = m.objOutlook.Get("Explorers").ToObject().Get("Count").ToLong(); }) ||
      count == 0) {
    Variant defaultFolder;
    Object explorer;
    IgnoreFailureAt(s.err, 40, [&] {
      defaultFolder = m.objNameSpace.Call("GetDefaultFolder", {Variant(folder)});
    });
    IgnoreFailureAt(s.err, 50, [&] {
      explorer = ObjectOrNothing(m.objOutlook.Get("Explorers")
                                     .ToObject()
                                     .Call("Add", {defaultFolder, Variant(int32_t{3})}));
    });
    IgnoreFailureAt(s.err, 60, [&] { explorer.Call("Display"); });
  }
  if (s.err.pending()) {
    const std::string text =
        "Can't access Outlook API!\r\nNot adequate permission over the "
        "folder/items!\r\n" +
        std::to_string(s.err.number) + "\r\n" + s.err.description + "\r\n" +
        std::to_string(s.err.line);
    IgnoreFailureAt(s.err, 70,
                    [&] { s.ui().MessageBox(text, platform::msgbox::kCritical, kMessageTitle); });
  }
}

void ExecuteSendReceive(AddinState& s) noexcept {
  if (!s.support.sendReceiveEnabled) return;
  Object bars;
  Object control;
  IgnoreFailure(s.err, [&] {
    bars = s.main.objOutlook.Get("ActiveExplorer").ToObject().Get("CommandBars").ToObject();
  });
  for (int32_t id : {5488, 7095}) {
    IgnoreFailure(s.err, [&] {
      control = ObjectOrNothing(bars.Call("FindControl", {Variant(int32_t{1}), Variant(id)}));
    });
    if (control) break;
  }
  if (control) IgnoreFailure(s.err, [&] { control.Call("Execute"); });
}

Object CreateObjectSafely(AddinState& s, std::string_view progId, bool hostFirst) noexcept {
  Object made;
  const auto byPlatform = [&] { Quietly(s.err, [&] { made = s.objects().CreateObject(progId); }); };
  const auto byHost = [&] {
    Quietly(s.err, [&] {
      made = ObjectOrNothing(s.main.objOutlook.Call("CreateObject", {Variant(progId)}));
    });
  };
  if (!hostFirst) {
    byPlatform();
    if (made.IsNothing() && s.main.objOutlook) byHost();
  } else if (s.main.objOutlook) {
    byHost();
    if (made.IsNothing()) byPlatform();
  }
  return made;
}

}  // namespace qvx
