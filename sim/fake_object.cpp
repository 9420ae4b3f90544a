#include "sim/fake_object.h"

#include "core/text.h"

namespace qvx::sim {

FakeObject& FakeObject::Property(std::string_view name, Variant initial) {
  ReadOnly(name, std::move(initial));
  Member& m = members_.Entry(name);
  const std::string key = FoldCase(name);
  m.put = [key](SimObject& o, Args&, const Variant& v) {
    static_cast<FakeObject&>(o).values_[key] = v;
  };
  m.putArgs = 0;
  return *this;
}

FakeObject& FakeObject::ReadOnly(std::string_view name, Variant value) {
  const std::string key = FoldCase(name);
  values_[key] = std::move(value);
  Member& m = members_.Entry(name);
  m.get = [key](SimObject& o, Args&) { return static_cast<FakeObject&>(o).values_[key]; };
  m.minArgs = m.maxArgs = 0;
  m.put = nullptr;
  return *this;
}

FakeObject& FakeObject::Method(std::string_view name, int minArgs, int maxArgs,
                               std::function<Variant(Args&)> call) {
  Member& m = members_.Entry(name);
  m.get = [call = std::move(call)](SimObject&, Args& a) { return call(a); };
  m.minArgs = minArgs;
  m.maxArgs = maxArgs;
  return *this;
}

FakeObject& FakeObject::Collection(std::vector<Variant> elements) {
  elements_ = std::move(elements);
  return *this;
}

FakeObject& FakeObject::Event(std::string_view name) {
  events_.emplace_back(name);
  eventViews_.assign(events_.begin(), events_.end());
  return *this;
}

Variant FakeObject::Value(std::string_view name) const {
  auto it = values_.find(FoldCase(name));
  return it == values_.end() ? Variant() : it->second;
}

void FakeObject::SetValue(std::string_view name, Variant value) {
  values_[FoldCase(name)] = std::move(value);
}

std::vector<Variant> FakeObject::Elements() {
  if (!elements_) return SimObject::Elements();
  return *elements_;
}

}  // namespace qvx::sim
