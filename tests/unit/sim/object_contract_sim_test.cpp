// The Object contract on the simulator's own face: the subject as the
// add-in's logic sees a simulated object natively.
#include "unit/sim/object_contract.h"

namespace qvx::contract {
namespace {

const ContractFace kSimulatorFace{
    "Simulator",
    [](const std::shared_ptr<sim::FakeObject>& subject) { return subject->AsObject(); }, true};

INSTANTIATE_TEST_SUITE_P(Simulator, ObjectContract, ::testing::Values(&kSimulatorFace),
                         ContractFaceName);

}  // namespace
}  // namespace qvx::contract
