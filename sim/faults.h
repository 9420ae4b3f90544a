// FaultTable: failures that a test tells a simulated object to raise.
//
// A fault is set per member (case-blind) and may be limited to one kind of
// access and to the next N calls; a fault that has run out no longer fires,
// and goes when another is set on its member (a long run sets many). Tables may be shared, so that
// every snapshot object of one kind (each Selection an explorer hands out) sees the same faults.
//
//   table.Add("Explorers", Fault{0x80004005, "boom"});
//   table.Add("Save", Fault{13, "Type mismatch", kHostSource, 1});  // once
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/object.h"
#include "sim/errors.h"

namespace qvx::sim {

inline constexpr int kAlways = -1;

struct Fault {
  int32_t number = hresult::kFail;
  std::string description;
  std::string source = kHostSource;
  int times = kAlways;             // calls left to fail; kAlways never runs out
  std::optional<InvokeKind> kind;  // only this kind of access; any if empty
};

class FaultTable {
 public:
  void Add(std::string_view member, Fault fault);
  void Clear(std::string_view member);
  void ClearAll() { faults_.clear(); }
  // True if a call of `member` with `kind` would fail now.
  bool WouldFail(std::string_view member, InvokeKind kind) const;
  // Throws the first live fault that matches, counting it down.
  void Check(std::string_view member, InvokeKind kind);

 private:
  static bool Matches(const Fault& f, InvokeKind kind) {
    return f.times != 0 && (!f.kind || *f.kind == kind);
  }
  std::unordered_map<std::string, std::vector<Fault>> faults_;  // by folded member name
};

}  // namespace qvx::sim
