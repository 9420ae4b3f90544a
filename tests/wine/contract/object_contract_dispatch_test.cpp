// The Object contract on the IDispatch face of the simulated objects: the
// contract subject is shown through COM (dispatch_face.h) and reached again
// through the adapter the add-in uses for Outlook's objects (DispatchObject),
// so that every call on it crosses GetIDsOfNames and Invoke, and failures
// cross as DISP_E_EXCEPTION with EXCEPINFO.
//
//   wine qvx_wine_contract_tests.exe [--gtest_filter=...]
#include <windows.h>

#include "platform/win32/dispatch_face.h"
#include "platform/win32/dispatch_object.h"
#include "unit/sim/object_contract.h"

namespace qvx::contract {
namespace {

Object ThroughDispatch(const std::shared_ptr<sim::FakeObject>& subject) {
  const win32::ComPtr<IDispatch> face = win32::MakeDispatchFace(subject);
  // Not DispatchObject::Wrap, which would hand back the object behind a face of this module.
  return Object(std::make_shared<win32::DispatchObject>(face.get()));
}

const ContractFace kDispatchFace{"Dispatch", &ThroughDispatch, false};

INSTANTIATE_TEST_SUITE_P(Dispatch, ObjectContract, ::testing::Values(&kDispatchFace),
                         ContractFaceName);

}  // namespace
}  // namespace qvx::contract

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // A host's user interface thread: a single-threaded apartment with OLE.
  if (FAILED(OleInitialize(nullptr))) return 1;
  const int result = RUN_ALL_TESTS();
  OleUninitialize();
  return result;
}
