#include "sim/selection.h"

#include "sim/application.h"
#include "sim/collection.h"
#include "sim/explorer.h"
#include "sim/item.h"

namespace qvx::sim {

std::vector<Variant> SimSelection::Elements() {
  return AsVariants(items_);
}

const MemberTable& SimSelection::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimSelection>(t)
        .Get("Count",
             [](SimSelection& s) { return Variant(static_cast<int32_t>(s.items_.size())); })
        .Method("Item", 1, 1,
                [](SimSelection& s, Args& a) {
                  return s.items_[IndexArg(a[0], s.items_.size())]->AsVariant();
                })
        .Get("Parent", [](SimSelection& s) { return OrNothing(s.explorer_.lock()); })
        .Get("Location", [](SimSelection&) { return Variant(int32_t{0}); })  // olViewList
        .Get("Class", [](SimSelection&) { return Variant(int32_t{74}); });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
