#include "support/scripting.h"

#include "state/addin_state.h"
#include "support/file_module.h"

namespace qvx::Scripting {

Object Initialize(AddinState& s) noexcept {
  Object dictionary;
  for (;;) {
    // Made "directly" and then by its ProgID: one and the same creation here.
    IgnoreFailure(s.err, [&] { dictionary = s.objects().CreateObject("Scripting.Dictionary"); });
    if (dictionary) break;
    IgnoreFailure(s.err, [&] { dictionary = s.objects().CreateObject("Scripting.Dictionary"); });
    if (dictionary) break;
    if (s.support.dictionaryRepairTried) break;
    s.support.dictionaryRepairTried = true;
    FileModule::RepairScriptingRuntime(s);
  }
  if (dictionary) {
    IgnoreFailure(s.err, [&] { dictionary.Put("CompareMode", Variant(int32_t{1})); });
  }
  return dictionary;
}

Object GetWS(AddinState& s) noexcept {
  Object shell;
  IgnoreFailure(s.err, [&] { shell = s.objects().CreateObject("Wscript.Shell"); });
  if (shell.IsNothing()) {
    IgnoreFailure(s.err, [&] { s.system().RunCommandLine("regsvr32 wshom.ocx /s", 2); });
    IgnoreFailure(s.err, [&] { shell = s.objects().CreateObject("Wscript.Shell"); });
  }
  s.err.Clear();
  return shell;
}

}  // namespace qvx::Scripting
