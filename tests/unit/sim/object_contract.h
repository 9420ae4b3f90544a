// The contract of Object over a host face, as a value-parameterised suite:
// binding by name, runtime error numbers, identity, enumeration, events.
//
// Each face hands out the subject of sim/contract_subject.h through itself:
// the simulator natively (object_contract_sim_test.cpp), the IDispatch face
// of the same simulated object under Wine (tests/wine/contract/). A test
// program that compiles object_contract.cpp instantiates the suite with its
// faces:
//
//   INSTANTIATE_TEST_SUITE_P(Dispatch, ObjectContract, ::testing::Values(&kDispatchFace),
//                            ContractFaceName);
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/object.h"
#include "sim/contract_subject.h"

namespace qvx::contract {

struct ContractFace {
  std::string name;
  // The subject reached through this face; the simulated object behind it
  // stays at hand, so that a test can make its members fail.
  Object (*reach)(const std::shared_ptr<sim::FakeObject>& subject);
  // Whether the face carries the subject's own events: a COM face carries
  // only the host's event interfaces.
  bool carriesEvents;
};

inline std::string ContractFaceName(const ::testing::TestParamInfo<const ContractFace*>& info) {
  return info.param->name;
}

class ObjectContract : public ::testing::TestWithParam<const ContractFace*> {
 protected:
  std::shared_ptr<sim::FakeObject> host_ = sim::MakeContractSubject();
  Object subject_ = GetParam()->reach(host_);
};

}  // namespace qvx::contract
