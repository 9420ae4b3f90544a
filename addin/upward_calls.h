// The add-in's side of UpwardCalls (state/upward_calls.h): the calls that the
// layers below make into the tear-down, the central reporter, the bars, the
// ribbon and the colour codes, filled in with the real procedures.
//
//   AddinState s(platform);
//   ConnectUpwardCalls(s);   // QVXClientAddin does this; so do test fixtures
#pragma once

namespace qvx {

class AddinState;

// Connects the state's upward calls to this add-in's procedures.
void ConnectUpwardCalls(AddinState& s);

}  // namespace qvx
