// The help file "QuorvixClient.pdf" beside the add-in, opened by the shell
// with its default verb; nothing happens when it is not there.
//
//   OpenHelpFile(s);
#pragma once

namespace qvx {

class AddinState;

// No trap of its own: a failure goes to the caller's.
void OpenHelpFile(AddinState& s);

}  // namespace qvx
