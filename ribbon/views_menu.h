// The explorer ribbon's dynamic "Views" menus (dnViewsCal, dnViewsTask ...):
// their content, asked again at each drop, and the one action behind every
// entry.
//
// The menu offers thirteen prepared views (all but "Reported Date
// (Filtered)") under the titles of now, a separator, then the active
// explorer folder's own views, numbered cmdView1, cmdView2 ... A prepared
// view is provisioned into the folder at its first choice and only applied
// afterwards; another view is simply shown. Names go into the markup
// unescaped: a view named with a quote or "&" leaves a menu the host drops.
//
//   GetContentXML(s, control);  // control.Id "dnViewsCal": the whole menu
//   ExecuteView(s, control);    // control.Tag "Due Date": shows that view
#pragma once

#include <string>

#include "core/variant.h"

namespace qvx {

class AddinState;

// The menu document (root `menu` in the 2009 namespace); empty of entries
// for a control that is none of the seven views menus. "" after a failure
// (reported under "GetContentXML").
std::string GetContentXML(AddinState& s, const Variant& control) noexcept;

// Shows the view the entry names (its Tag), keeps its name in
// LAST_VIEW_NAME and has dnViewsTask and dnViewsCal asked again. Failures are
// reported under "Addin.ExecuteView".
void ExecuteView(AddinState& s, const Variant& control) noexcept;

}  // namespace qvx
