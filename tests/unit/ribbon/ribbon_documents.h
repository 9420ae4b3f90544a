// Every customUI document the add-in can give a host: each ribbon id it
// answers, with no settings, with default settings and with all custom
// fields active, on hosts of major version 12, 14 and 16; and the content of
// the views menus, whose root is `menu`.
//
//   for (const RibbonDocument& d : EveryRibbonDocument()) Validate(d.markup);
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/object.h"
#include "core/variant.h"

namespace qvx::testing {

struct RibbonDocument {
  std::string name;      // "all-fields-16-Microsoft.Outlook.Explorer", a file name
  std::string ribbonId;  // as the host asks
  std::string markup;    // GetCustomUI's answer; "" for none
};

// An IRibbonControl as the host passes it.
Variant MakeControl(std::string_view id, const Object& context = Object(),
                    std::string_view tag = "");

// The ribbon ids the add-in answers.
const std::vector<std::string>& AnsweredRibbonIds();

std::vector<RibbonDocument> EveryRibbonDocument();

// GetContentXML for each views menu and for a control that is none, on a
// calendar holding a view of the user's and one the add-in provisioned;
// `ribbonId` holds the control's id.
std::vector<RibbonDocument> EveryViewsMenuDocument();

}  // namespace qvx::testing
