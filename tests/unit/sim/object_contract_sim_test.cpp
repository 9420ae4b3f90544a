// The Object contract over the simulator's own objects.
#include "sim/contract_subject.h"
#include "unit/sim/object_contract.h"

namespace qvx::contract {
namespace {

class SimContractHost : public ContractHost {
 public:
  Object Subject() override { return subject_->AsObject(); }
  void FailMember(std::string_view member, int32_t number, std::string description,
                  int times) override {
    subject_->FailMember(member, number, std::move(description), times);
  }

 private:
  std::shared_ptr<sim::FakeObject> subject_ = sim::MakeContractSubject();
};

INSTANTIATE_TEST_SUITE_P(Simulator, ObjectContract,
                         ::testing::Values(ContractHostMaker{
                             "Simulator", [] { return std::make_unique<SimContractHost>(); }}),
                         ContractHostName);

}  // namespace
}  // namespace qvx::contract
