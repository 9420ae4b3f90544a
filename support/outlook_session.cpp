#include "support/outlook_session.h"

#include "addin/main_module.h"
#include "core/text.h"
#include "platform/user_interface.h"
#include "state/addin_state.h"
#include "support/app_texts.h"

namespace qvx {
namespace {

constexpr std::string_view kRequiredVersionText =
    "Outlook 2003 or later required to use this application!";

// One statement with failures ignored, noting its statement number for the
// boxes that tell the failing line.
template <class Statement>
bool IgnoreAt(AddinState& s, int line, Statement&& statement) noexcept {
  if (IgnoreFailure(s.err, std::forward<Statement>(statement))) return true;
  s.err.line = line;
  return false;
}

// `value` as an object; Nothing for anything else.
Object AsObject(const Variant& value) {
  return value.IsObject() ? value.ToObject() : Object();
}

}  // namespace

void EnsureOutlookSession(AddinState& s, int32_t folder) noexcept {
  MainGlobals& m = s.main;
  if (m.objOutlook.IsNothing()) {
    IgnoreAt(s, 10, [&] { m.objOutlook = s.objects().GetObject("Outlook.Application"); });
    if (m.objOutlook.IsNothing()) {
      // The application class itself first, then each version's ProgID.
      static constexpr std::string_view kProgIds[] = {
          "Outlook.Application",    "Outlook.Application.14", "Outlook.Application.12",
          "Outlook.Application.11", "Outlook.Application.10", "Outlook.Application.9",
          "Outlook.Application"};
      for (std::string_view progId : kProgIds) {
        IgnoreAt(s, 20, [&] { m.objOutlook = s.objects().CreateObject(progId); });
        if (m.objOutlook) break;
      }
      if (m.objOutlook.IsNothing()) {
        IgnoreAt(s, 30, [&] {
          s.ui().MessageBox("Error trying to start Outlook!", platform::msgbox::kOkOnly,
                            kMessageTitle);
        });
        subKillObjects(s);
      }
    }
    if (m.objOutlook.IsNothing()) {
      IgnoreAt(s, 40, [&] {
        s.ui().MessageBox(std::string(kRequiredVersionText) + "\r\n" +
                              std::to_string(s.err.number) + " " + s.err.description + "\r\n" +
                              std::to_string(s.err.line),
                          platform::msgbox::kCritical, kMessageTitle);
      });
      subKillObjects(s);
    } else {
      // A failing test falls into the branch, as the statement after it runs next.
      int16_t version = 0;
      if (!IgnoreAt(s, 50, [&] { version = GetVersion(s); }) || version < 10) {
        IgnoreAt(s, 60, [&] {
          s.ui().MessageBox(
              std::string(kRequiredVersionText) + "\r\n" + std::to_string(GetVersion(s)),
              platform::msgbox::kCritical, kMessageTitle);
        });
        subKillObjects(s);
      }
    }
  }
  if (m.objOutlook && m.objNameSpace.IsNothing()) {
    IgnoreAt(s, 70, [&] {
      m.objNameSpace = AsObject(m.objOutlook.Call("GetNamespace", {Variant("MAPI")}));
    });
  }
  if (m.objOutlook) {
    Object active;
    if (!IgnoreAt(s, 80, [&] { active = AsObject(m.objOutlook.Get("ActiveExplorer")); }) ||
        active.IsNothing()) {
      const Object app = m.objOutlook;
      int32_t count = -1;
      if (!IgnoreAt(s, 90,
                    [&] { count = app.Get("Explorers").ToObject().Get("Count").ToLong(); }) ||
          count == 0) {
        IgnoreAt(s, 100, [&] {
          const Variant defaultFolder = m.objNameSpace.Call("GetDefaultFolder", {Variant(folder)});
          app.Get("Explorers").ToObject().Call("Add", {defaultFolder});
        });
      }
      IgnoreAt(s, 110, [&] {
        AsObject(app.Get("Explorers").ToObject().Call("Item", {Variant(int32_t{1})}))
            .Call("Activate");
      });
    }
  }
  s.err.Clear();
}

int16_t GetVersion(AddinState& s) {
  if (s.support.cachedVersion == 0) {
    if (s.main.objOutlook.IsNothing()) EnsureOutlookSession(s, kFolderInbox);
    const std::string version = s.main.objOutlook.Get("Version").ToText();
    const size_t dot = version.find('.');
    const std::string major = dot == std::string::npos ? version : version.substr(0, dot);
    s.support.cachedVersion = Variant(major).ToInteger();
  }
  return s.support.cachedVersion;
}

void ShowDefaultFolder(AddinState& s, int32_t folder) noexcept {
  MainGlobals& m = s.main;
  IgnoreAt(s, 10, [&] {
    if (m.objOutlook.IsNothing()) EnsureOutlookSession(s, kFolderInbox);
  });
  if (m.objNameSpace.IsNothing()) {
    IgnoreAt(s, 20, [&] {
      m.objNameSpace = AsObject(m.objOutlook.Call("GetNamespace", {Variant("MAPI")}));
    });
  }
  int32_t count = -1;
  if (!IgnoreAt(s, 30,
                [&] { count = m.objOutlook.Get("Explorers").ToObject().Get("Count").ToLong(); }) ||
      count == 0) {
    Variant defaultFolder;
    Object explorer;
    IgnoreAt(s, 40,
             [&] { defaultFolder = m.objNameSpace.Call("GetDefaultFolder", {Variant(folder)}); });
    IgnoreAt(s, 50, [&] {
      explorer = AsObject(m.objOutlook.Get("Explorers")
                              .ToObject()
                              .Call("Add", {defaultFolder, Variant(int32_t{3})}));
    });
    IgnoreAt(s, 60, [&] { explorer.Call("Display"); });
  }
  if (s.err.pending()) {
    const std::string text =
        "Can't access Outlook API!\r\nNot adequate permission over the "
        "folder/items!\r\n" +
        std::to_string(s.err.number) + "\r\n" + s.err.description + "\r\n" +
        std::to_string(s.err.line);
    IgnoreAt(s, 70, [&] { s.ui().MessageBox(text, platform::msgbox::kCritical, kMessageTitle); });
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
      control = AsObject(bars.Call("FindControl", {Variant(int32_t{1}), Variant(id)}));
    });
    if (control) break;
  }
  if (control) IgnoreFailure(s.err, [&] { control.Call("Execute"); });
}

Object CreateObjectSafely(AddinState& s, std::string_view progId, bool hostFirst) noexcept {
  Object made;
  const auto byPlatform = [&] { Quietly(s.err, [&] { made = s.objects().CreateObject(progId); }); };
  const auto byHost = [&] {
    Quietly(s.err,
            [&] { made = AsObject(s.main.objOutlook.Call("CreateObject", {Variant(progId)})); });
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
