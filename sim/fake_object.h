// FakeObject: a SimObject whose members are defined per instance, for tests
// that need a late-bound object of a given shape without the whole host.
//
//   auto shell = std::make_shared<FakeObject>("IWshShell3");
//   shell->Property("CurrentDirectory", "/home/jane")
//        .Method("ExpandEnvironmentStrings", 1, 1, [](Args& a) { return a[0]; })
//        .Event("Changed");
//   shell->FailMember("ExpandEnvironmentStrings", 5, "Invalid procedure call or argument", 1);
//   Object o = shell->AsObject();
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "sim/sim_object.h"

namespace qvx::sim {

class FakeObject : public SimObject {
 public:
  explicit FakeObject(std::string typeName) : typeName_(std::move(typeName)) {}

  std::string TypeName() const override { return typeName_; }

  // A stored read-write property with its first value.
  FakeObject& Property(std::string_view name, Variant initial);
  // A stored property that the add-in can read but not write.
  FakeObject& ReadOnly(std::string_view name, Variant value);
  FakeObject& Method(std::string_view name, int minArgs, int maxArgs,
                     std::function<Variant(Args&)> call);
  // Makes the object a collection with these members.
  FakeObject& Collection(std::vector<Variant> elements);
  FakeObject& Event(std::string_view name);

  // The stored value of a property defined above (Empty if undefined).
  Variant Value(std::string_view name) const;
  void SetValue(std::string_view name, Variant value);

 protected:
  const MemberTable& Members() const override { return members_; }
  std::span<const std::string_view> EventNames() const override { return eventViews_; }
  std::vector<Variant> Elements() override;

 private:
  std::string typeName_;
  MemberTable members_;
  std::unordered_map<std::string, Variant> values_;  // by folded name
  std::optional<std::vector<Variant>> elements_;
  std::vector<std::string> events_;
  std::vector<std::string_view> eventViews_;
};

}  // namespace qvx::sim
