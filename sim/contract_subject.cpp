#include "sim/contract_subject.h"

namespace qvx::sim {

std::shared_ptr<FakeObject> MakeContractSubject() {
  auto child = std::make_shared<FakeObject>("ContractChild");
  child->Property("Name", "child");

  auto subject = std::make_shared<FakeObject>("ContractSubject");
  std::weak_ptr<FakeObject> self = subject;
  subject->Property("Name", "subject")
      .ReadOnly("Count", Variant(int32_t{3}))
      .Method("Sum", 2, 2,
              [](Args& a) { return Variant(static_cast<int32_t>(LongArg(a, 0) + LongArg(a, 1))); })
      .Method("Echo", 1, 1, [](Args& a) { return a[0]; })
      .ReadOnly("Child", child->AsVariant())
      .ReadOnly("Nobody", Variant(Object()))
      .Method("Ping", 1, 1,
              [self](Args& a) {
                EventArgs args{a[0]};
                if (auto s = self.lock()) s->Raise("Pinged", args);
                return Variant();
              })
      .Method("Flip", 1, 1,
              [self](Args& a) {
                EventArgs args{Variant(BoolArg(a, 0))};
                if (auto s = self.lock()) s->Raise("Flipping", args);
                return args[0];
              })
      .Collection({Variant("one"), Variant("two"), Variant("three")})
      .Event("Pinged")
      .Event("Flipping");
  return subject;
}

}  // namespace qvx::sim
