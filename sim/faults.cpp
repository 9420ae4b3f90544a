#include "sim/faults.h"

#include "core/text.h"

namespace qvx::sim {

void FaultTable::Add(std::string_view member, Fault fault) {
  std::vector<Fault>& set = faults_[FoldCase(member)];
  std::erase_if(set, [](const Fault& f) { return f.times == 0; });
  set.push_back(std::move(fault));
}

void FaultTable::Clear(std::string_view member) {
  faults_.erase(FoldCase(member));
}

bool FaultTable::WouldFail(std::string_view member, InvokeKind kind) const {
  auto it = faults_.find(FoldCase(member));
  if (it == faults_.end()) return false;
  for (const Fault& f : it->second) {
    if (Matches(f, kind)) return true;
  }
  return false;
}

void FaultTable::Check(std::string_view member, InvokeKind kind) {
  if (faults_.empty()) return;
  auto it = faults_.find(FoldCase(member));
  if (it == faults_.end()) return;
  for (Fault& f : it->second) {
    if (!Matches(f, kind)) continue;
    if (f.times > 0) --f.times;
    throw Failure(f.number, f.source, f.description);
  }
}

}  // namespace qvx::sim
