// Paths from one simulated object to another, for fault injection and test
// navigation: members separated by ".", each with optional arguments in
// parentheses. A whole number is a Long argument, anything else text
// (quotes optional): "Session.GetDefaultFolder(9).Items", "Categories.Item(\"Red\")".
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/variant.h"

namespace qvx::sim {

class SimObject;

struct PathStep {
  std::string member;
  std::vector<Variant> args;
};

// Throws Failure 5 for a malformed path.
std::vector<PathStep> ParsePath(std::string_view path);
// Splits "A.B(1).C" into "A.B(1)" and "C".
void SplitLastMember(std::string_view path, std::string_view& objectPath, std::string_view& member);
// Follows the path from `start` without faults or call counting; Failure if a
// step doesn't give a simulated object.
std::shared_ptr<SimObject> FollowPath(const std::shared_ptr<SimObject>& start,
                                      std::string_view path);

}  // namespace qvx::sim
