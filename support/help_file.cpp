#include "support/help_file.h"

#include <string>

#include "state/addin_state.h"
#include "support/file_module.h"

namespace qvx {

void OpenHelpFile(AddinState& s) {
  const std::string path =
      RemoveTrailingSlash(s, s.system().AddinFolder()) + "\\" + "QuorvixClient.pdf";
  if (s.system().FileExists(path)) ShellOpen(s, path);
}

}  // namespace qvx
