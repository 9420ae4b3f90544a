#include "com/callback_table.h"

#include "core/text.h"

namespace qvx::com {

DISPID CallbackTable::IdOf(std::string_view name) {
  for (size_t i = 0; i < names_.size(); ++i) {
    if (EqualsText(names_[i], name)) return kFirstId + static_cast<DISPID>(i);
  }
  names_.emplace_back(name);
  return kFirstId + static_cast<DISPID>(names_.size() - 1);
}

const std::string* CallbackTable::NameOf(DISPID id) const noexcept {
  if (id < kFirstId) return nullptr;
  const size_t index = static_cast<size_t>(id - kFirstId);
  return index < names_.size() ? &names_[index] : nullptr;
}

}  // namespace qvx::com
