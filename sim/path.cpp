#include "sim/path.h"

#include "core/failure.h"
#include "core/text.h"
#include "sim/collection.h"
#include "sim/sim_object.h"

namespace qvx::sim {
namespace {

Failure BadPath() {
  return Failure::Runtime(err::kInvalidProcedureCall);
}

Variant ParseArg(std::string_view text) {
  text = Trim(text);
  if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
    return Variant(text.substr(1, text.size() - 2));
  }
  bool digits = !text.empty();
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (!((c >= '0' && c <= '9') || (i == 0 && c == '-' && text.size() > 1))) digits = false;
  }
  if (digits) return Variant(static_cast<int32_t>(std::stol(std::string(text))));
  return Variant(text);
}

}  // namespace

std::vector<PathStep> ParsePath(std::string_view path) {
  std::vector<PathStep> steps;
  size_t i = 0;
  while (i < path.size()) {
    PathStep step;
    const size_t nameEnd = path.find_first_of(".(", i);
    step.member = std::string(Trim(path.substr(i, nameEnd - i)));
    if (step.member.empty()) throw BadPath();
    i = nameEnd;
    if (i != std::string_view::npos && path[i] == '(') {
      const size_t close = path.find(')', i);
      if (close == std::string_view::npos) throw BadPath();
      const std::string_view inside = path.substr(i + 1, close - i - 1);
      if (!Trim(inside).empty()) {
        for (const std::string& part : Split(inside, ",")) step.args.push_back(ParseArg(part));
      }
      i = close + 1;
    }
    steps.push_back(std::move(step));
    if (i == std::string_view::npos || i >= path.size()) break;
    if (path[i] != '.') throw BadPath();
    ++i;
    if (i >= path.size()) throw BadPath();
  }
  return steps;
}

void SplitLastMember(std::string_view path, std::string_view& objectPath,
                     std::string_view& member) {
  int depth = 0;
  for (size_t i = path.size(); i-- > 0;) {
    if (path[i] == ')') ++depth;
    if (path[i] == '(') --depth;
    if (path[i] == '.' && depth == 0) {
      objectPath = path.substr(0, i);
      member = path.substr(i + 1);
      return;
    }
  }
  objectPath = {};
  member = path;
}

std::shared_ptr<SimObject> FollowPath(const std::shared_ptr<SimObject>& start,
                                      std::string_view path) {
  std::shared_ptr<SimObject> current = start;
  for (PathStep& step : ParsePath(path)) {
    const Variant next = current->Peek(step.member, std::move(step.args));
    current = SimCast<SimObject>(next.ToObject());
    if (!current) throw Failure::Runtime(err::kObjectNotSet);
  }
  return current;
}

}  // namespace qvx::sim
