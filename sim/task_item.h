// SimTask: the host's TaskItem. Its dates carry no time of day, start as
// 4501-01-01, and PercentComplete 100 goes with Complete True and Status 2.
#pragma once

#include <memory>
#include <string>

#include "sim/fake_object.h"
#include "sim/item.h"

namespace qvx::sim {

class SimTask : public SimItem {
 public:
  explicit SimTask(ContextPtr context);
  std::string TypeName() const override { return "TaskItem"; }
  std::shared_ptr<FakeObject> RecurrencePattern();

 protected:
  const MemberTable& Members() const override;
  void FieldPut(std::string_view field, const Variant& value) override;

 private:
  std::shared_ptr<FakeObject> pattern_;
};

}  // namespace qvx::sim
