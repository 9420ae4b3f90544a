// The contract of Object over a host face, as a value-parameterised suite.
//
// Each host face (the simulator here, the IDispatch adapter in the Wine
// tests) supplies a ContractHost that hands out the subject described in
// sim/contract_subject.h and can make its members fail. A test binary that
// compiles object_contract.cpp instantiates the suite with its hosts:
//
//   INSTANTIATE_TEST_SUITE_P(Dispatch, ObjectContract,
//                            ::testing::Values(ContractHostMaker{"Dispatch", MakeDispatchHost}),
//                            ContractHostName);
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/object.h"

namespace qvx::contract {

class ContractHost {
 public:
  virtual ~ContractHost() = default;
  // The subject, reached through this host's face.
  virtual Object Subject() = 0;
  // Makes the subject's `member` fail for the next `times` calls (-1: always).
  virtual void FailMember(std::string_view member, int32_t number, std::string description,
                          int times) = 0;
};

struct ContractHostMaker {
  std::string name;
  std::function<std::unique_ptr<ContractHost>()> make;
};

inline std::string ContractHostName(const ::testing::TestParamInfo<ContractHostMaker>& info) {
  return info.param.name;
}

class ObjectContract : public ::testing::TestWithParam<ContractHostMaker> {
 protected:
  void SetUp() override {
    host_ = GetParam().make();
    subject_ = host_->Subject();
  }
  void TearDown() override {
    subject_.Release();
    host_.reset();
  }

  std::unique_ptr<ContractHost> host_;
  Object subject_;
};

}  // namespace qvx::contract
