#include "com/addin_object.h"

#include <optional>
#include <string>
#include <vector>

#include "addin/addin.h"
#include "com/com_entry.h"
#include "core/variant.h"
#include "platform/win32/dispatch_object.h"
#include "platform/win32/variant_convert.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_platform.h"
#include "platform/win32/win_handles.h"

namespace qvx::com {
namespace {

// Holds a reference while the host is inside a method, so that a Release the
// host makes from a nested call cannot end the object under our feet.
class KeepAlive {
 public:
  explicit KeepAlive(IUnknown* object) : object_(object) { object_->AddRef(); }
  KeepAlive(const KeepAlive&) = delete;
  KeepAlive& operator=(const KeepAlive&) = delete;
  ~KeepAlive() { object_->Release(); }

 private:
  IUnknown* object_;
};

bool IsNullObject(const VARIANT& v) {
  const VARIANT* p = &v;
  if (v.vt == (VT_BYREF | VT_VARIANT) && v.pvarVal) p = v.pvarVal;
  return (p->vt == VT_DISPATCH && !p->pdispVal) || (p->vt == VT_UNKNOWN && !p->punkVal);
}

}  // namespace

QVXClientDLL::QVXClientDLL()
    : platform_(std::make_unique<win32::Win32Platform>()),
      addin_(std::make_unique<QVXClientAddin>(platform_->Get())) {}

QVXClientDLL::~QVXClientDLL() {
  // The class's terminate event, then the add-in before the platform it uses.
  if (addin_) addin_->Terminate();
  addin_.reset();
  platform_.reset();
}

HRESULT QVXClientDLL::QueryInterface(REFIID riid, void** ppv) noexcept {
  if (!ppv) return E_POINTER;
  *ppv = nullptr;
  if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IDispatch) ||
      IsEqualIID(riid, IID_IDTExtensibility2)) {
    *ppv = static_cast<IDTExtensibility2*>(this);
  } else if (IsEqualIID(riid, IID_IRibbonExtensibility)) {
    *ppv = static_cast<IRibbonExtensibility*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG QVXClientDLL::AddRef() noexcept {
  return refs_.Add();
}

ULONG QVXClientDLL::Release() noexcept {
  return refs_.Release([this] { delete this; });
}

HRESULT QVXClientDLL::GetTypeInfoCount(UINT* count) noexcept {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT QVXClientDLL::GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept {
  if (!info) return E_POINTER;
  *info = nullptr;
  return E_NOTIMPL;
}

HRESULT QVXClientDLL::GetIDsOfNames(REFIID riid, LPOLESTR* names, UINT count, LCID,
                                    DISPID* ids) noexcept {
  return ComEntry([&]() -> HRESULT {
    if (!names || !ids) return E_POINTER;
    if (!IsEqualIID(riid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (count == 0) return E_INVALIDARG;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    if (!names[0]) return E_POINTER;
    const std::string name = win32::Narrow(names[0]);
    if (!addin_->HasCallback(name)) return DISP_E_UNKNOWNNAME;
    ids[0] = callbacks_.IdOf(name);
    // Callbacks take no named arguments.
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
  });
}

HRESULT QVXClientDLL::Invoke(DISPID id, REFIID riid, LCID, WORD flags, DISPPARAMS* params,
                             VARIANT* result, EXCEPINFO* exception, UINT* argError) noexcept {
  return ComEntry([&]() -> HRESULT {
    if (!IsEqualIID(riid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (!params || (params->cArgs > 0 && !params->rgvarg)) return E_POINTER;
    const std::string* known = callbacks_.NameOf(id);
    if (!known || !(flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET))) {
      return DISP_E_MEMBERNOTFOUND;
    }
    if (params->cNamedArgs > 0) return DISP_E_NONAMEDARGS;
    // Every ribbon callback takes at least the control, the ribbon or an image id.
    if (params->cArgs == 0) return DISP_E_BADPARAMCOUNT;
    if (IsNullObject(params->rgvarg[params->cArgs - 1])) {
      if (argError) *argError = params->cArgs - 1;
      return E_INVALIDARG;
    }
    // Office passes every argument of a callback; none is optional.
    if (const auto omitted = win32::FirstOmitted(*params)) {
      if (argError) *argError = *omitted;
      return DISP_E_PARAMNOTFOUND;
    }
    KeepAlive alive(static_cast<IDTExtensibility2*>(this));
    const std::string name = *known;
    const UINT count = params->cArgs;
    std::vector<Variant> args;
    args.reserve(count);
    for (UINT i = count; i-- > 0;) {
      try {
        args.push_back(win32::FromVariant(params->rgvarg[i], addin_->state().memberIds));
      } catch (const Failure&) {
        if (argError) *argError = i;
        return DISP_E_TYPEMISMATCH;
      }
    }
    Variant value;
    std::optional<Failure> failure;
    switch (addin_->InvokeCallback(name, args, value, failure)) {
      case CallbackOutcome::Done:
        break;
      case CallbackOutcome::UnknownName:
        return DISP_E_MEMBERNOTFOUND;
      case CallbackOutcome::WrongArgumentCount:
        return DISP_E_BADPARAMCOUNT;
      case CallbackOutcome::Failed:
        // A failure the callback does not trap is the host's to handle.
        if (failure) win32::FillExcepInfo(*failure, exception);
        return DISP_E_EXCEPTION;
    }
    for (UINT i = 0; i < count && i < args.size(); ++i) {
      try {
        win32::WriteBack(args[count - 1 - i], params->rgvarg[i]);
      } catch (const Failure&) {
        // A value that does not fit the host's by-reference slot is not written.
      }
    }
    if (result) {
      VariantInit(result);
      win32::ToVariant(value, result);
    }
    return S_OK;
  });
}

HRESULT QVXClientDLL::OnConnection(IDispatch* application, ext_ConnectMode connectMode,
                                   IDispatch* addInInst, SAFEARRAY**) noexcept {
  return ComEntry([&]() -> HRESULT {
    if (!application) return E_POINTER;
    KeepAlive alive(static_cast<IDTExtensibility2*>(this));
    const platform::SharedMemberIds ids = addin_->state().memberIds;
    const Object app = win32::DispatchObject::Wrap(application, ids);
    const Object instance = win32::DispatchObject::Wrap(addInInst, ids);
    addin_->OnConnection(app, static_cast<int>(connectMode), instance);
    return S_OK;
  });
}

HRESULT QVXClientDLL::OnDisconnection(ext_DisconnectMode removeMode, SAFEARRAY**) noexcept {
  return ComEntry([&]() -> HRESULT {
    KeepAlive alive(static_cast<IDTExtensibility2*>(this));
    addin_->OnDisconnection(static_cast<int>(removeMode));
    return S_OK;
  });
}

HRESULT QVXClientDLL::OnAddInsUpdate(SAFEARRAY**) noexcept {
  return ComEntry([&]() -> HRESULT {
    KeepAlive alive(static_cast<IDTExtensibility2*>(this));
    addin_->OnAddInsUpdate();
    return S_OK;
  });
}

HRESULT QVXClientDLL::OnStartupComplete(SAFEARRAY**) noexcept {
  return ComEntry([&]() -> HRESULT {
    KeepAlive alive(static_cast<IDTExtensibility2*>(this));
    addin_->OnStartupComplete();
    return S_OK;
  });
}

HRESULT QVXClientDLL::OnBeginShutdown(SAFEARRAY**) noexcept {
  return ComEntry([&]() -> HRESULT {
    KeepAlive alive(static_cast<IDTExtensibility2*>(this));
    addin_->OnBeginShutdown();
    return S_OK;
  });
}

HRESULT QVXClientDLL::GetCustomUI(BSTR ribbonId, BSTR* ribbonXml) noexcept {
  return ComEntry([&]() -> HRESULT {
    if (!ribbonXml) return E_POINTER;
    *ribbonXml = nullptr;
    KeepAlive alive(static_cast<IDTExtensibility2*>(this));
    const std::string id =
        ribbonId ? win32::Narrow(std::wstring_view(ribbonId, SysStringLen(ribbonId))) : "";
    const std::string markup = addin_->GetCustomUI(id);
    // No customisation for this ribbon: S_OK with no string.
    if (markup.empty()) return S_OK;
    const std::wstring wide = win32::Wide(markup);
    *ribbonXml = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    return *ribbonXml ? S_OK : E_OUTOFMEMORY;
  });
}

}  // namespace qvx::com
