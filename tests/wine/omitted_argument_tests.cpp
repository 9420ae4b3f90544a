// Omitted optional arguments at the IDispatch boundary: the add-in sends a gap
// in an argument list as VT_ERROR/DISP_E_PARAMNOTFOUND, as the legacy runtime
// does for `Controls.Add(type, , , , True)`; an omitted argument that comes
// in stays apart from Empty; and one that a member requires fails as the
// host fails it. A required one omitted through the add-in's adapter is the
// Object contract's (contract/).
#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "core/variant.h"
#include "harness/addin_session.h"
#include "harness/check.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/dispatch_object.h"
#include "sim/fake_object.h"

namespace qvx::winetest {
namespace {

VARIANT Arg(VARTYPE type, SCODE scode = 0) {
  VARIANT v{};
  v.vt = type;
  v.scode = scode;
  return v;
}

VARIANT Omitted() {
  return Arg(VT_ERROR, DISP_E_PARAMNOTFOUND);
}

// CommandBarControls with an Add whose first argument is required, seen
// through its IDispatch face, which takes VT_ERROR/DISP_E_PARAMNOTFOUND and
// nothing else for an omission.
struct Controls {
  std::vector<Variant> received;
  std::shared_ptr<sim::FakeObject> host = std::make_shared<sim::FakeObject>("CommandBarControls");
  ComPtr<IDispatch> face;

  Controls() {
    host->Method("Add", 1, 5, [this](sim::Args& args) {
      received = args;
      return Variant();
    });
    face = win32::MakeDispatchFace(host);
  }
};

}  // namespace

TEST(OmittedArgument, GapsReachTheHostAsParamNotFoundAndStayApartFromEmpty) {
  Controls controls;
  VARIANT omitted = Omitted();
  VARIANT byRef = Arg(VT_BYREF | VT_VARIANT);
  byRef.pvarVal = &omitted;
  VARIANT yes = Arg(VT_BOOL);
  yes.boolVal = VARIANT_TRUE;
  VARIANT one = Arg(VT_I2);
  one.iVal = 1;
  // Add(1, <omitted>, Empty, <omitted by reference>, True), last to first.
  EXPECT_EQ(InvokeByName(controls.face.get(), L"Add", {yes, byRef, VARIANT{}, Omitted(), one}),
            S_OK);
  ASSERT_EQ(controls.received.size(), size_t{5});
  EXPECT_TRUE(controls.received[1].IsMissing());
  EXPECT_TRUE(controls.received[2].IsEmpty());
  EXPECT_TRUE(!controls.received[2].IsMissing());
  EXPECT_TRUE(controls.received[3].IsMissing());
  EXPECT_TRUE(controls.received[1] == Variant::Missing());
  EXPECT_TRUE(!(controls.received[1] == Variant()));

  // The add-in's own adapter sends its gaps so (not Wrap, which would see
  // through a face of this module to the object behind it).
  Object object(std::make_shared<win32::DispatchObject>(controls.face.get()));
  object.Call("Add", {Variant(int16_t{4}), Variant::Missing(), Variant(), Variant::Missing(),
                      Variant(true)});
  ASSERT_EQ(controls.received.size(), size_t{5});
  EXPECT_EQ(controls.received[0].ToInteger(), int16_t{4});
  EXPECT_TRUE(controls.received[1].IsMissing());
  EXPECT_TRUE(controls.received[2].IsEmpty());
  EXPECT_TRUE(controls.received[3].IsMissing());
  EXPECT_TRUE(controls.received[4].ToBoolean());
}

TEST(OmittedArgument, ARequiredOneFailsAsTheHostFailsIt) {
  Controls controls;
  UINT argError = 99;
  // Add(<omitted>, , , , True): the type is required.
  VARIANT yes = Arg(VT_BOOL);
  yes.boolVal = VARIANT_TRUE;
  EXPECT_EQ(
      InvokeByName(controls.face.get(), L"Add", {yes, Omitted(), Omitted(), Omitted(), Omitted()},
                   nullptr, nullptr, &argError),
      DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(argError, 4u);
  EXPECT_TRUE(controls.received.empty());

  // The add-in's ribbon callbacks take no optional argument.
  AddinSession session;
  argError = 99;
  EXPECT_EQ(
      InvokeByName(session.Dispatch().get(), L"OnLoad", {Omitted()}, nullptr, nullptr, &argError),
      DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(argError, 0u);
}

}  // namespace qvx::winetest
