#include "sim/sim_object.h"

#include "core/text.h"
#include "sim/errors.h"

namespace qvx::sim {

Variant SimObject::Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) {
  ++calls_[FoldCase(name)];
  if (tally_) ++tally_->hostCalls;
  faults_->Check(name, kind);
  CheckUsable();
  const Member* m = Members().Find(name);
  if (m == nullptr) throw NoSuchMember();
  Variant result = Dispatch(*m, kind, args);
  PassTally(result);
  return result;
}

void SimObject::PassTally(const Variant& value) const {
  if (!tally_ || !value.IsObject()) return;
  auto* object = dynamic_cast<SimObject*>(value.ToObject().host());
  if (object != nullptr && !object->tally_) object->tally_ = tally_;
}

Variant SimObject::Dispatch(const Member& m, InvokeKind kind, Args& args) {
  const int count = static_cast<int>(args.size());
  if (kind == InvokeKind::Put) {
    if (!m.put) throw NoSuchMember();
    if (count - 1 < m.putArgs) throw ArgumentNotOptional();
    if (count - 1 > m.putArgs) throw WrongArgumentCount();
    Args index(args.begin(), args.end() - 1);
    m.put(*this, index, args.back());
    return Variant();
  }
  if (!m.get) throw NoSuchMember();
  if (count < m.minArgs) throw ArgumentNotOptional();
  for (int i = 0; i < m.minArgs; ++i) {
    if (args[static_cast<size_t>(i)].IsMissing()) throw ArgumentNotOptional();
  }
  if (count > m.maxArgs) throw WrongArgumentCount();
  return m.get(*this, args);
}

std::vector<Variant> SimObject::Enumerate() {
  ++calls_[FoldCase(kEnumMember)];
  if (tally_) ++tally_->hostCalls;
  faults_->Check(kEnumMember, InvokeKind::Call);
  CheckUsable();
  std::vector<Variant> elements = Elements();
  for (const Variant& element : elements) PassTally(element);
  return elements;
}

std::vector<Variant> SimObject::Elements() {
  throw NoSuchMember();
}

Subscription SimObject::Subscribe(std::string_view event, EventHandler handler) {
  for (std::string_view known : EventNames()) {
    if (EqualsText(known, event)) return events_.Subscribe(known, std::move(handler));
  }
  throw NoSuchMember();
}

void SimObject::FailMember(std::string_view member, int32_t number, std::string description,
                           int times) {
  Fault f;
  f.number = number;
  f.description = std::move(description);
  f.times = times;
  faults_->Add(member, std::move(f));
}

void SimObject::FailMember(std::string_view member, Fault fault) {
  faults_->Add(member, std::move(fault));
}

int SimObject::CallCount(std::string_view member) const {
  auto it = calls_.find(FoldCase(member));
  return it == calls_.end() ? 0 : it->second;
}

Variant SimObject::Peek(std::string_view name, Args args) {
  const Member* m = Members().Find(name);
  if (m == nullptr) throw NoSuchMember();
  return Dispatch(*m, InvokeKind::Get, args);
}

}  // namespace qvx::sim
