// An item with user properties, reached late-bound like a host item:
// UserProperties.Find(name) gives the property or Nothing, and a property
// has a Value. Display is counted.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "core/text.h"
#include "platform/posix/native_object.h"

namespace qvx::testing {

class MailTestItem {
 public:
  MailTestItem() : object_(std::make_shared<platform::NativeObject>("AppointmentItem")) {
    auto properties = std::make_shared<platform::NativeObject>("UserProperties");
    properties->Define("Find", [this](InvokeKind, std::vector<Variant>& args) {
      auto it = properties_.find(FoldCase(platform::RequiredArg(args, 0).ToText()));
      return it == properties_.end() ? Variant(Object()) : Variant(it->second);
    });
    object_->Define("UserProperties", [properties](InvokeKind, std::vector<Variant>&) {
      return Variant(Object(properties));
    });
    object_->Define("Display", [this](InvokeKind, std::vector<Variant>&) {
      ++displays;
      return Variant();
    });
  }

  // Adds or replaces a property; its Value is read only.
  MailTestItem& Set(const std::string& name, Variant value) {
    auto property = std::make_shared<platform::NativeObject>("UserProperty");
    property->Define("Value", [value](InvokeKind, std::vector<Variant>&) { return value; });
    properties_[FoldCase(name)] = Object(property);
    return *this;
  }

  Object AsObject() const { return Object(object_); }
  int displays = 0;

 private:
  std::shared_ptr<platform::NativeObject> object_;
  std::map<std::string, Object> properties_;
};

}  // namespace qvx::testing
