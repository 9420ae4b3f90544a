#include "platform/win32/dispatch_face.h"

#include "platform/win32/win32_api.h"

#include <cstring>
#include <map>
#include <new>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/text.h"
#include "core/variant.h"
#include "platform/win32/com_module.h"
#include "platform/win32/dispatch_object.h"
#include "platform/win32/host_events.h"
#include "platform/win32/ref_count.h"
#include "platform/win32/variant_convert.h"
#include "platform/win32/wide_text.h"

namespace qvx::win32::detail {

class DispatchFace;

// The faces alive in this module, so that one object has one face; the
// names given DISPIDs, per type as a type library fixes them; and the calls
// the faces answered.
struct FaceRegistry {
  std::map<const void*, DispatchFace*> byIdentity;
  std::map<const IUnknown*, DispatchFace*> byInterface;
  std::map<std::string, std::vector<std::string>, std::less<>> namesByType;  // DISPID - 1
  FaceCalls calls;
};

FaceRegistry& Faces() {
  static FaceRegistry registry;
  return registry;
}

// A GUID of the type's own, the same for every object of the type.
GUID TypeGuidOf(std::string_view type) {
  uint64_t halves[2] = {0xcbf29ce484222325ull, 0x84222325cbf29ce4ull};  // FNV-1a, two seeds
  for (uint64_t& h : halves) {
    for (const char c : FoldCase(type)) h = (h ^ static_cast<unsigned char>(c)) * 0x100000001b3ull;
  }
  GUID guid;
  static_assert(sizeof(guid) == sizeof(halves));
  std::memcpy(&guid, halves, sizeof(guid));
  return guid;
}

// Type information that knows only the type's name and GUID: TypeName(),
// and the type by which a caller may share DISPIDs between objects.
class NameTypeInfo final : public ITypeInfo, private ModuleCounted {
 public:
  explicit NameTypeInfo(std::string name) : name_(Wide(name)), guid_(TypeGuidOf(name)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (!IsEqualIID(riid, IID_IUnknown) && !IsEqualIID(riid, IID_ITypeInfo)) return E_NOINTERFACE;
    *ppv = static_cast<ITypeInfo*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return refs_.Add(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    return refs_.Release([this] { delete this; });
  }
  HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID member, BSTR* name, BSTR* doc, DWORD* help,
                                             BSTR* helpFile) noexcept override {
    if (doc) *doc = nullptr;
    if (help) *help = 0;
    if (helpFile) *helpFile = nullptr;
    if (member != MEMBERID_NIL) {
      if (name) *name = nullptr;
      return TYPE_E_ELEMENTNOTFOUND;
    }
    if (name) {
      *name = SysAllocStringLen(name_.data(), static_cast<UINT>(name_.size()));
      if (!*name) return E_OUTOFMEMORY;
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** out) noexcept override {
    if (!out) return E_POINTER;
    *out = new (std::nothrow) TYPEATTR{};
    if (!*out) return E_OUTOFMEMORY;
    (*out)->guid = guid_;
    (*out)->typekind = TKIND_DISPATCH;
    (*out)->memidConstructor = MEMBERID_NIL;
    (*out)->memidDestructor = MEMBERID_NIL;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT, FUNCDESC**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetVarDesc(UINT, VARDESC**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNames(MEMBERID, BSTR*, UINT, UINT*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT, HREFTYPE*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT, INT*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR*, UINT, MEMBERID*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(PVOID, MEMBERID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*,
                                        WORD*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE, ITypeInfo**) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, PVOID*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetMops(MEMBERID, BSTR*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib**, UINT*) noexcept override {
    return E_NOTIMPL;
  }
  void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attributes) noexcept override {
    delete attributes;
  }
  void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC*) noexcept override {}
  void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC*) noexcept override {}

 private:
  ~NameTypeInfo() = default;
  RefCount refs_;
  std::wstring name_;
  GUID guid_;
};

// _NewEnum's answer: the members as they were when asked.
class VariantEnum final : public IEnumVARIANT, private ModuleCounted {
 public:
  explicit VariantEnum(std::vector<Variant> items) : items_(std::move(items)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (!IsEqualIID(riid, IID_IUnknown) && !IsEqualIID(riid, IID_IEnumVARIANT)) {
      return E_NOINTERFACE;
    }
    *ppv = static_cast<IEnumVARIANT*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return refs_.Add(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    return refs_.Release([this] { delete this; });
  }
  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* out, ULONG* fetched) noexcept override {
    if (!out) return E_POINTER;
    ULONG n = 0;
    try {
      for (; n < count && next_ < items_.size(); ++n, ++next_) ToVariant(items_[next_], &out[n]);
    } catch (...) {
      for (ULONG i = 0; i < n; ++i) VariantClear(&out[i]);
      if (fetched) *fetched = 0;
      return E_FAIL;
    }
    if (fetched) *fetched = n;
    return n == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    next_ += count;
    if (next_ <= items_.size()) return S_OK;
    next_ = items_.size();
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    next_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** out) noexcept override {
    if (!out) return E_POINTER;
    *out = nullptr;
    try {
      auto* copy = new VariantEnum(items_);
      copy->next_ = next_;
      *out = copy;
      return S_OK;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }

 private:
  ~VariantEnum() = default;
  RefCount refs_;
  std::vector<Variant> items_;
  size_t next_ = 0;
};

// Calls an advised sink with one event of the host object.
struct EventForwarder {
  ComPtr<IDispatch> sink;
  DISPID dispid;

  void operator()(EventArgs& args) const {
    const size_t count = args.size();
    std::vector<VARIANT> slots(count);
    std::vector<VARIANT_BOOL> flags(count, VARIANT_FALSE);
    struct Clear {
      std::vector<VARIANT>& v;
      ~Clear() {
        for (VARIANT& x : v) VariantClear(&x);
      }
    } clear{slots};
    for (VARIANT& v : slots) VariantInit(&v);
    for (size_t i = 0; i < count; ++i) {
      const Variant& arg = args[count - 1 - i];
      if (const bool* b = arg.As<bool>()) {
        flags[i] = *b ? VARIANT_TRUE : VARIANT_FALSE;
        slots[i].vt = VT_BYREF | VT_BOOL;
        slots[i].pboolVal = &flags[i];
      } else {
        ToVariant(arg, &slots[i]);
      }
    }
    DISPPARAMS params{slots.data(), nullptr, static_cast<UINT>(count), 0};
    sink->Invoke(dispid, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr,
                 nullptr);
    for (size_t i = 0; i < count; ++i) {
      if (slots[i].vt == (VT_BYREF | VT_BOOL)) {
        args[count - 1 - i] = Variant(flags[i] != VARIANT_FALSE);
        slots[i].vt = VT_EMPTY;
      }
    }
  }
};

class FaceConnectionPoint final : public IConnectionPoint, private ModuleCounted {
 public:
  FaceConnectionPoint(IConnectionPointContainer* container, std::shared_ptr<HostObject> host,
                      const GUID& diid)
      : container_(container), host_(std::move(host)), diid_(diid) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (!IsEqualIID(riid, IID_IUnknown) && !IsEqualIID(riid, IID_IConnectionPoint)) {
      return E_NOINTERFACE;
    }
    *ppv = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return refs_.Add(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    return refs_.Release([this] { delete this; });
  }
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) noexcept override {
    if (!iid) return E_POINTER;
    *iid = diid_;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE
  GetConnectionPointContainer(IConnectionPointContainer** out) noexcept override {
    if (!out) return E_POINTER;
    *out = container_.get();
    (*out)->AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override {
    if (!sink || !cookie) return E_POINTER;
    *cookie = 0;
    try {
      // As the host does: the sink must answer for the event interface.
      ComPtr<IDispatch> target;
      if (FAILED(sink->QueryInterface(diid_, target.PutVoid())) || !target) {
        return CONNECT_E_CANNOTCONNECT;
      }
      // A host object need not raise every event of the interface (a
      // simulated Application has no Reminder); the sink gets the ones it does.
      std::vector<Subscription> subscriptions;
      for (const HostEvent& e : HostEvents()) {
        if (!IsEqualGUID(*e.diid, diid_)) continue;
        try {
          subscriptions.push_back(host_->Subscribe(e.name, EventForwarder{target, e.dispid}));
        } catch (const Failure&) {
          // Not an event of this object.
        }
      }
      if (subscriptions.empty()) return CONNECT_E_CANNOTCONNECT;
      *cookie = next_++;
      advised_.emplace(*cookie, std::move(subscriptions));
      return S_OK;
    } catch (...) {
      return CONNECT_E_CANNOTCONNECT;
    }
  }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override {
    auto it = advised_.find(cookie);
    if (it == advised_.end()) return CONNECT_E_NOCONNECTION;
    // Ending the subscriptions may release the last reference to this point.
    ComPtr<IConnectionPoint> self(this);
    std::vector<Subscription> ended = std::move(it->second);
    advised_.erase(it);
    ended.clear();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** out) noexcept override {
    if (out) *out = nullptr;
    return E_NOTIMPL;
  }

 private:
  ~FaceConnectionPoint() = default;
  RefCount refs_;
  ComPtr<IConnectionPointContainer> container_;
  std::shared_ptr<HostObject> host_;
  GUID diid_;
  DWORD next_ = 1;
  std::map<DWORD, std::vector<Subscription>> advised_;
};

class DispatchFace final : public IDispatch,
                           public IConnectionPointContainer,
                           private ModuleCounted {
 public:
  explicit DispatchFace(std::shared_ptr<HostObject> host)
      : host_(std::move(host)), names_(&Faces().namesByType[host_->TypeName()]) {
    Faces().byIdentity[host_->Identity()] = this;
    Faces().byInterface[static_cast<IDispatch*>(this)] = this;
  }

  const std::shared_ptr<HostObject>& host() const noexcept { return host_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IDispatch)) {
      *ppv = static_cast<IDispatch*>(this);
    } else if (IsEqualIID(riid, IID_IConnectionPointContainer)) {
      *ppv = static_cast<IConnectionPointContainer*>(this);
    } else {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return refs_.Add(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    return refs_.Release([this] { delete this; });
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** out) noexcept override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    ++Faces().calls.typeInfos;
    try {
      *out = new NameTypeInfo(host_->TypeName());
      return S_OK;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID riid, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) noexcept override {
    if (!names || !ids) return E_POINTER;
    if (!IsEqualIID(riid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (count == 0) return E_INVALIDARG;
    ++Faces().calls.nameLookups;
    try {
      if (!names[0]) return E_POINTER;
      const std::string name = Narrow(names[0]);
      ids[0] = EqualsText(name, "_NewEnum") ? DISPID_NEWENUM : IdOf(name);
    } catch (...) {
      return E_OUTOFMEMORY;
    }
    // Named arguments are not supported.
    for (UINT i = 1; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID riid, LCID, WORD flags, DISPPARAMS* params,
                                   VARIANT* result, EXCEPINFO* excep,
                                   UINT* argError) noexcept override;

  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** out) noexcept override {
    if (out) *out = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID diid,
                                                IConnectionPoint** out) noexcept override {
    if (!out) return E_POINTER;
    *out = nullptr;
    try {
      const GUID* offered = EventInterfaceOfType(host_->TypeName());
      if (!offered || !IsEqualGUID(*offered, diid)) return CONNECT_E_NOCONNECTION;
      *out = new FaceConnectionPoint(this, host_, diid);
      return S_OK;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }

 private:
  ~DispatchFace() {
    Faces().byIdentity.erase(host_->Identity());
    Faces().byInterface.erase(static_cast<IDispatch*>(this));
  }

  DISPID IdOf(const std::string& name) {
    std::vector<std::string>& names = *names_;
    for (size_t i = 0; i < names.size(); ++i) {
      if (EqualsText(names[i], name)) return static_cast<DISPID>(i + 1);
    }
    names.push_back(name);
    return static_cast<DISPID>(names.size());
  }

  Variant Call(const std::string& name, WORD flags, std::vector<Variant>& args) {
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
      return host_->Invoke(name, InvokeKind::Put, args);
    }
    if (!(flags & DISPATCH_PROPERTYGET)) return host_->Invoke(name, InvokeKind::Call, args);
    if (!(flags & DISPATCH_METHOD)) return host_->Invoke(name, InvokeKind::Get, args);
    // A caller that wants a value asks for both; a property first, then a method.
    try {
      std::vector<Variant> copy = args;
      Variant value = host_->Invoke(name, InvokeKind::Get, copy);
      args = std::move(copy);
      return value;
    } catch (const Failure& f) {
      if (f.number() != err::kNoSuchMember) throw;
    }
    return host_->Invoke(name, InvokeKind::Call, args);
  }

  RefCount refs_;
  std::shared_ptr<HostObject> host_;
  std::vector<std::string>* names_;  // of the host's type, in Faces()
};

HRESULT DispatchFace::Invoke(DISPID id, REFIID riid, LCID, WORD flags, DISPPARAMS* params,
                             VARIANT* result, EXCEPINFO* excep, UINT* argError) noexcept {
  if (!IsEqualIID(riid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (!params || (params->cArgs > 0 && !params->rgvarg)) return E_INVALIDARG;
  ++Faces().calls.invokes;
  if (result) VariantInit(result);
  ComPtr<IDispatch> self(static_cast<IDispatch*>(this));
  try {
    if (id == DISPID_NEWENUM) {
      if (params->cArgs != 0) return DISP_E_BADPARAMCOUNT;
      auto* items = new VariantEnum(host_->Enumerate());
      if (!result) {
        items->Release();
        return S_OK;
      }
      result->vt = VT_UNKNOWN;
      result->punkVal = items;
      return S_OK;
    }
    if (id < 1 || static_cast<size_t>(id) > names_->size()) return DISP_E_MEMBERNOTFOUND;
    const std::string name = (*names_)[static_cast<size_t>(id) - 1];
    const bool put = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    const UINT named = params->cNamedArgs;
    if (put) {
      if (named != 1 || !params->rgdispidNamedArgs ||
          params->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT || params->cArgs < 1) {
        return DISP_E_PARAMNOTFOUND;
      }
    } else if (named != 0) {
      return DISP_E_NONAMEDARGS;
    }
    // Signature order: positional arguments last to first, then a put's value.
    std::vector<UINT> slots;
    for (UINT i = params->cArgs; i-- > named;) slots.push_back(i);
    if (put) slots.push_back(0);
    std::vector<Variant> args;
    args.reserve(slots.size());
    for (UINT slot : slots) {
      try {
        args.push_back(FromVariant(params->rgvarg[slot]));
      } catch (const Failure&) {
        if (argError) *argError = slot;
        return DISP_E_TYPEMISMATCH;
      }
    }
    Variant value = Call(name, flags, args);
    for (size_t i = 0; i < slots.size() && i < args.size(); ++i) {
      try {
        WriteBack(args[i], params->rgvarg[slots[i]]);
      } catch (...) {
        // A value that does not fit the caller's by-reference slot stays unwritten.
      }
    }
    if (result) ToVariant(value, result);
    return S_OK;
  } catch (const Failure& f) {
    if (f.number() == err::kNoSuchMember) return DISP_E_MEMBERNOTFOUND;
    if (f.number() == err::kArgumentNotOptional) {
      // A required argument omitted, or left out of the list altogether.
      const auto omitted = FirstOmitted(*params);
      if (argError && omitted) *argError = *omitted;
      return DISP_E_PARAMNOTFOUND;
    }
    if (!excep) return f.number() < 0 ? static_cast<HRESULT>(f.number()) : E_FAIL;
    FillExcepInfo(f, excep);
    return DISP_E_EXCEPTION;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace qvx::win32::detail

namespace qvx::win32 {

ComPtr<IDispatch> MakeDispatchFace(std::shared_ptr<HostObject> host) {
  if (!host) return {};
  auto& faces = detail::Faces().byIdentity;
  if (auto it = faces.find(host->Identity()); it != faces.end()) {
    return ComPtr<IDispatch>(static_cast<IDispatch*>(it->second));
  }
  return ComPtr<IDispatch>::Adopt(
      static_cast<IDispatch*>(new detail::DispatchFace(std::move(host))));
}

ComPtr<IDispatch> DispatchOf(const Object& object) {
  if (object.IsNothing()) return {};
  if (auto* adapter = dynamic_cast<DispatchObject*>(object.host())) {
    return ComPtr<IDispatch>(adapter->dispatch());
  }
  return MakeDispatchFace(object.shared());
}

FaceCalls& FaceCallCounts() noexcept {
  return detail::Faces().calls;
}

std::shared_ptr<HostObject> HostBehindFace(IDispatch* dispatch) noexcept {
  if (!dispatch) return nullptr;
  ComPtr<IUnknown> unknown;
  if (FAILED(dispatch->QueryInterface(IID_IUnknown, unknown.PutVoid())) || !unknown) return nullptr;
  auto& faces = detail::Faces().byInterface;
  // A face's IUnknown is its IDispatch.
  auto it = faces.find(unknown.get());
  return it == faces.end() ? nullptr : it->second->host();
}

}  // namespace qvx::win32
