// MemberIds: the host's member ids (DISPIDs on Windows) by object type and
// name, so that a name is looked up once per type of object instead of once
// per object reached. Held by the add-in's state and shared by every wrapper
// of a host object that the add-in makes; it holds no host object itself.
//
// Names are kept case-folded (FoldCase), as the host compares them. Only ids
// the host gave are remembered: a name it did not know is asked again.
//
//   if (auto id = ids.Find(type, folded)) return *id;
//   const int32_t id = AskTheHost(name);
//   ids.Remember(type, folded, id);
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qvx::platform {

class MemberIds {
 public:
  std::optional<int32_t> Find(std::string_view type, std::string_view foldedName) const {
    const auto names = byType_.find(type);
    if (names == byType_.end()) return std::nullopt;
    const auto id = names->second.find(foldedName);
    if (id == names->second.end()) return std::nullopt;
    return id->second;
  }
  void Remember(std::string_view type, std::string_view foldedName, int32_t id) {
    auto names = byType_.find(type);
    if (names == byType_.end()) names = byType_.emplace(std::string(type), Names()).first;
    names->second.insert_or_assign(std::string(foldedName), id);
  }

 private:
  using Names = std::map<std::string, int32_t, std::less<>>;
  std::map<std::string, Names, std::less<>> byType_;  // by the host's type key
};

// How the wrappers of host objects hold the add-in's ids: weakly, so that
// the ids go with the add-in's state.
using SharedMemberIds = std::weak_ptr<MemberIds>;

}  // namespace qvx::platform
