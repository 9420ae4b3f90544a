// Omitted optional arguments at the IDispatch boundary: the add-in sends a gap
// in an argument list as VT_ERROR/DISP_E_PARAMNOTFOUND, as the legacy runtime
// does for `Controls.Add(type, , , , True)`, apart from an Empty argument. A
// required one omitted is the Object contract's (contract/); the ribbon
// callbacks' refusal of one is RibbonDispatch's.
#include <windows.h>

#include <memory>
#include <vector>

#include "core/variant.h"
#include "harness/check.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/dispatch_object.h"
#include "sim/fake_object.h"

namespace qvx::winetest {

TEST(OmittedArgument, GapsReachTheHostAsParamNotFoundAndStayApartFromEmpty) {
  // CommandBarControls.Add through its IDispatch face, which takes
  // VT_ERROR/DISP_E_PARAMNOTFOUND and nothing else for an omission.
  std::vector<Variant> received;
  auto host = std::make_shared<sim::FakeObject>("CommandBarControls");
  host->Method("Add", 1, 5, [&](sim::Args& args) {
    received = args;
    return Variant();
  });
  const win32::ComPtr<IDispatch> face = win32::MakeDispatchFace(host);
  // Not Wrap, which would see through a face of this module to the object behind it.
  Object object(std::make_shared<win32::DispatchObject>(face.get()));
  object.Call("Add", {Variant(int16_t{4}), Variant::Missing(), Variant(), Variant::Missing(),
                      Variant(true)});
  ASSERT_EQ(received.size(), size_t{5});
  EXPECT_EQ(received[0].ToInteger(), int16_t{4});
  EXPECT_TRUE(received[1].IsMissing());
  EXPECT_TRUE(received[2].IsEmpty() && !received[2].IsMissing());
  EXPECT_TRUE(received[3].IsMissing());
  EXPECT_TRUE(received[4].ToBoolean());
}

}  // namespace qvx::winetest
