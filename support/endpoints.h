// Deployment values: the product's web site and the address that error
// reports are mailed to. They are chosen at deployment and live here only;
// change them in this one place.
//
//   ProductWebPage("/support/ErrorReportingPolicy.asp")
//     == "http://www.quorvix.example/support/ErrorReportingPolicy.asp"
#pragma once

#include <string>
#include <string_view>

namespace qvx {

// Scheme and host of the product's web site, no trailing slash. The scheme
// must stay "http..." so that the launcher treats pages as links.
inline constexpr std::string_view kProductWebSite = "http://www.quorvix.example";
// Where the error report mail goes.
inline constexpr std::string_view kErrorReportMailAddress = "support@quorvix.example";

// A page of the product's web site; `path` begins with "/".
inline std::string ProductWebPage(std::string_view path) {
  std::string page(kProductWebSite);
  page.append(path);
  return page;
}

}  // namespace qvx
