// Omitted optional arguments at the IDispatch boundary: the add-in sends a gap
// in an argument list as VT_ERROR/DISP_E_PARAMNOTFOUND, as the legacy runtime
// does for `Controls.Add(type, , , , True)`; an omitted argument that comes
// in stays apart from Empty; and one that a member requires fails as the
// host fails it.
#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/variant.h"
#include "harness/addin_session.h"
#include "harness/check.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/dispatch_object.h"
#include "sim/fake_object.h"

namespace qvx::winetest {
namespace {

// A host's IDispatch that records the argument slots of its last call, in
// signature order (DISPPARAMS hold them last to first).
class RecordingDispatch final : public IDispatch {
 public:
  struct Slot {
    VARTYPE vt;
    SCODE scode;
  };
  std::vector<Slot> lastCall;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (!IsEqualIID(riid, IID_IUnknown) && !IsEqualIID(riid, IID_IDispatch)) return E_NOINTERFACE;
    *ppv = static_cast<IDispatch*>(this);
    return S_OK;
  }
  // Lives on the test's stack, longer than every reference the test hands out.
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (count) *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID,
                                          DISPID* ids) noexcept override {
    ids[0] = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*,
                                   EXCEPINFO*, UINT*) noexcept override {
    lastCall.clear();
    for (UINT i = params->cArgs; i-- > 0;) {
      lastCall.push_back({params->rgvarg[i].vt, params->rgvarg[i].scode});
    }
    return S_OK;
  }
};

VARIANT Omitted() {
  VARIANT v{};
  v.vt = VT_ERROR;
  v.scode = DISP_E_PARAMNOTFOUND;
  return v;
}

VARIANT Short(short value) {
  VARIANT v{};
  v.vt = VT_I2;
  v.iVal = value;
  return v;
}

// CommandBarControls with an Add whose first argument is required.
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

HRESULT InvokeAdd(IDispatch* dispatch, std::vector<VARIANT> argsLastFirst, UINT& argError) {
  std::wstring name = L"Add";
  LPOLESTR names[] = {name.data()};
  DISPID id = 0;
  if (HRESULT hr = dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
      FAILED(hr))
    return hr;
  DISPPARAMS params{argsLastFirst.data(), nullptr, static_cast<UINT>(argsLastFirst.size()), 0};
  return dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr,
                          nullptr, &argError);
}

}  // namespace

WINE_TEST(OmittedArgument, GapsReachTheHostAsParamNotFound) {
  RecordingDispatch host;
  Object controls = win32::DispatchObject::Wrap(&host);
  controls.Call("Add", {Variant(int16_t{1}), Variant::Missing(), Variant::Missing(),
                        Variant::Missing(), Variant(true)});
  REQUIRE_EQ(host.lastCall.size(), size_t{5});
  CHECK_EQ(host.lastCall[0].vt, VARTYPE{VT_I2});
  for (size_t i = 1; i <= 3; ++i) {
    CHECK_EQ(host.lastCall[i].vt, VARTYPE{VT_ERROR});
    CHECK_EQ(host.lastCall[i].scode, DISP_E_PARAMNOTFOUND);
  }
  CHECK_EQ(host.lastCall[4].vt, VARTYPE{VT_BOOL});

  // Trailing omitted arguments are simply not passed.
  controls.Call("Add", {Variant(int16_t{1})});
  REQUIRE_EQ(host.lastCall.size(), size_t{1});
  CHECK_EQ(host.lastCall[0].vt, VARTYPE{VT_I2});
}

WINE_TEST(OmittedArgument, AnIncomingOmissionStaysApartFromEmpty) {
  Controls controls;
  UINT argError = 99;
  VARIANT byRef{};
  VARIANT omitted = Omitted();
  byRef.vt = VT_BYREF | VT_VARIANT;
  byRef.pvarVal = &omitted;
  VARIANT yes{};
  yes.vt = VT_BOOL;
  yes.boolVal = VARIANT_TRUE;
  // Add(1, <omitted>, Empty, <omitted by reference>, True), last to first.
  CHECK_EQ(InvokeAdd(controls.face.get(), {yes, byRef, VARIANT{}, Omitted(), Short(1)}, argError),
           S_OK);
  REQUIRE_EQ(controls.received.size(), size_t{5});
  CHECK(controls.received[1].IsMissing());
  CHECK(controls.received[2].IsEmpty());
  CHECK(!controls.received[2].IsMissing());
  CHECK(controls.received[3].IsMissing());
  CHECK(controls.received[1] == Variant::Missing());
  CHECK(!(controls.received[1] == Variant()));

  // The same through the add-in's own adapter over the face.
  Object object = win32::DispatchObject::Wrap(controls.face.get());
  object.Call("Add", {Variant(int16_t{4}), Variant::Missing(), Variant(), Variant::Missing(),
                      Variant(true)});
  REQUIRE_EQ(controls.received.size(), size_t{5});
  CHECK_EQ(controls.received[0].ToInteger(), int16_t{4});
  CHECK(controls.received[1].IsMissing());
  CHECK(controls.received[2].IsEmpty());
  CHECK(controls.received[3].IsMissing());
}

WINE_TEST(OmittedArgument, ARequiredOneFailsAsTheHostFailsIt) {
  Controls controls;
  UINT argError = 99;
  // Add(<omitted>, , , , True): the type is required.
  VARIANT yes{};
  yes.vt = VT_BOOL;
  yes.boolVal = VARIANT_TRUE;
  CHECK_EQ(
      InvokeAdd(controls.face.get(), {yes, Omitted(), Omitted(), Omitted(), Omitted()}, argError),
      DISP_E_PARAMNOTFOUND);
  CHECK_EQ(argError, 4u);
  CHECK(controls.received.empty());

  // Through the add-in's adapter the host's answer is the runtime's error 449.
  Object object = win32::DispatchObject::Wrap(controls.face.get());
  int32_t number = 0;
  try {
    object.Call("Add", {Variant::Missing()});
  } catch (const Failure& f) {
    number = f.number();
  }
  CHECK_EQ(number, err::kArgumentNotOptional);

  // The add-in's ribbon callbacks take no optional argument.
  AddinSession session;
  ComPtr<IDispatch> addin = session.Dispatch();
  REQUIRE(addin);
  std::wstring name = L"OnLoad";
  LPOLESTR names[] = {name.data()};
  DISPID onLoad = 0;
  REQUIRE_EQ(addin->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &onLoad), S_OK);
  VARIANT args[] = {Omitted()};
  DISPPARAMS params{args, nullptr, 1, 0};
  argError = 99;
  CHECK_EQ(addin->Invoke(onLoad, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr,
                         nullptr, &argError),
           DISP_E_PARAMNOTFOUND);
  CHECK_EQ(argError, 0u);
}

}  // namespace qvx::winetest
