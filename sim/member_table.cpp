#include "sim/member_table.h"

#include "core/text.h"

namespace qvx::sim {

const Member* MemberTable::Find(std::string_view name) const {
  auto it = members_.find(FoldCase(name));
  return it == members_.end() ? nullptr : &it->second;
}

Member& MemberTable::Entry(std::string_view name) {
  Member& m = members_[FoldCase(name)];
  if (m.name.empty()) m.name = std::string(name);
  return m;
}

std::vector<std::string> MemberTable::Names() const {
  std::vector<std::string> names;
  names.reserve(members_.size());
  for (const auto& [key, m] : members_) names.push_back(m.name);
  return names;
}

}  // namespace qvx::sim
