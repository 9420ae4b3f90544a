// The user's name: from the mailbox, else from the system.
#include "core/host_constants.h"
#include "core/text.h"
#include "state/addin_state.h"
#include "support/host_items.h"
#include "support/outlook_session.h"

namespace qvx {

std::string GetCurrentUserName(AddinState& s) noexcept {
  std::string name = GetUserNameFromMailbox(s);
  if (name.empty()) name = GetWindowsUserName(s);
  return name;
}

std::string GetUserNameFromMailbox(AddinState& s) noexcept {
  if (s.main.objOutlook.IsNothing()) {
    EnsureOutlookSession(s, host::olFolderInbox);
    if (s.main.objOutlook.IsNothing()) s.upward().subKillObjects();
  }
  std::string name;
  const bool read = IgnoreFailure(s.err, [&] {
    Object ns = s.main.objNameSpace;
    if (ns.IsNothing()) ns = s.main.objOutlook.Call("GetNamespace", {Variant("MAPI")}).ToObject();
    const Object calendar =
        ns.Call("GetDefaultFolder", {Variant(host::olFolderCalendar)}).ToObject();
    name = calendar.Get("Parent").ToObject().Get("Name").ToText();
  });
  if (!read) return {};
  const size_t from = InStrText(name, " - ") + 3;
  if (from >= 4) return std::string(Trim(Mid(name, from)));
  if (InStr(name, ",") != 0 || InStr(name, "@") != 0) return name;
  return {};
}

std::string GetWindowsUserName(AddinState& s) noexcept {
  std::string name;
  IgnoreFailure(s.err, [&] {
    Object shell = CreateObjectSafely(s, "Wscript.Shell", false);
    if (shell.IsNothing()) shell = CreateObjectSafely(s, "Wscript.Shell", true);
    name = shell.Call("ExpandEnvironmentStrings", {Variant("%USERNAME%")}).ToText();
  });
  return name;
}

}  // namespace qvx
