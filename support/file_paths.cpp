// Path helpers and the shell open of modFileHandling and modGetDefaultFolders.
#include "state/addin_state.h"
#include "support/error_reporting.h"
#include "support/file_module.h"

namespace qvx {

std::string RemoveTrailingSlash(AddinState& s, std::string_view path) noexcept {
  std::string result;
  IgnoreFailure(s.err, [&] {
    result = std::string(path);
    if (!result.empty() && (result.back() == '/' || result.back() == '\\')) result.pop_back();
  });
  s.err.Clear();
  return result;
}

std::string GetSpecialFolder(AddinState& s, int32_t folder, int32_t flags) noexcept {
  std::string result;
  IgnoreFailure(s.err, [&] { result = s.system().SpecialFolder(folder, flags); });
  return result;
}

void ShellOpen(AddinState& s, std::string_view target) noexcept {
  IgnoreFailure(s.err, [&] { s.system().ShellExecute(target); });
  s.err.Clear();
}

void ShellOpenLeavingError(AddinState& s, std::string_view target) noexcept {
  IgnoreFailure(s.err, [&] { s.system().ShellExecute(target); });
}

}  // namespace qvx
