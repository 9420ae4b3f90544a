#include "platform/win32/dispatch_object.h"

#include "platform/win32/win32_api.h"

#include "core/failure.h"
#include "core/text.h"
#include "core/variant.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/event_sink.h"
#include "platform/win32/variant_convert.h"
#include "platform/win32/wide_text.h"

namespace qvx::win32 {
namespace {

// Clears the argument VARIANTs of one call, however it ends.
struct ArgumentList {
  explicit ArgumentList(size_t n) : items(n) {
    for (VARIANT& v : items) VariantInit(&v);
  }
  ~ArgumentList() {
    for (VARIANT& v : items) VariantClear(&v);
  }
  std::vector<VARIANT> items;
};

std::string TypeInfoName(ITypeInfo* info) {
  Bstr name;
  if (!info ||
      FAILED(info->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr))) {
    return {};
  }
  return Narrow(name.view());
}

}  // namespace

Object DispatchObject::Wrap(IDispatch* dispatch, platform::SharedMemberIds shared) {
  if (!dispatch) return Object();
  // One of this module's own faces: hand back the object behind it.
  if (std::shared_ptr<HostObject> own = HostBehindFace(dispatch)) return Object(std::move(own));
  return Object(std::make_shared<DispatchObject>(dispatch, std::move(shared)));
}

DispatchObject::DispatchObject(IDispatch* dispatch, platform::SharedMemberIds shared)
    : dispatch_(dispatch), shared_(std::move(shared)) {
  if (dispatch_) dispatch_->QueryInterface(IID_IUnknown, identity_.PutVoid());
}

DispatchObject::~DispatchObject() = default;

const DispatchObject::TypeFacts& DispatchObject::Type() const {
  if (type_) return *type_;
  type_.emplace();
  ComPtr<ITypeInfo> info;
  TYPEATTR* attributes = nullptr;
  if (FAILED(dispatch_->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Put())) || !info) return *type_;
  type_->name = TypeInfoName(info.get());
  if (FAILED(info->GetTypeAttr(&attributes)) || !attributes) return *type_;
  // Only an interface fixes its DISPIDs; a type information that says only
  // "IDispatch" could name members of any object.
  const GUID type = attributes->guid;
  const bool fixed =
      (attributes->typekind == TKIND_DISPATCH || attributes->typekind == TKIND_INTERFACE) &&
      !IsEqualGUID(type, GUID_NULL) && !IsEqualGUID(type, IID_IDispatch);
  info->ReleaseTypeAttr(attributes);
  if (fixed) type_->key.assign(reinterpret_cast<const char*>(&type), sizeof(type));
  return *type_;
}

DISPID DispatchObject::IdOf(std::string_view name) {
  std::string key = FoldCase(name);
  if (auto it = ids_.find(key); it != ids_.end()) return it->second;
  const std::shared_ptr<platform::MemberIds> shared = shared_.lock();
  const std::string* type = shared && !Type().key.empty() ? &Type().key : nullptr;
  if (type) {
    if (const auto known = shared->Find(*type, key))
      return ids_.emplace(std::move(key), *known).first->second;
  }
  std::wstring wide = Wide(name);
  LPOLESTR names[] = {wide.data()};
  DISPID id = DISPID_UNKNOWN;
  const HRESULT hr = dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(hr)) throw FailureFromHresult(hr, nullptr);
  if (type) shared->Remember(*type, key, id);
  ids_.emplace(std::move(key), id);
  return id;
}

Variant DispatchObject::Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) {
  if (!dispatch_) throw Failure::Runtime(err::kObjectNotSet);
  const DISPID id = IdOf(name);
  const size_t count = args.size();
  ArgumentList list(count);
  // DISPPARAMS hold the arguments last to first.
  for (size_t i = 0; i < count; ++i) ToVariant(args[count - 1 - i], &list.items[i]);

  DISPID putId = DISPID_PROPERTYPUT;
  DISPPARAMS params{list.items.data(), nullptr, static_cast<UINT>(count), 0};
  WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  if (kind == InvokeKind::Put) {
    if (count == 0) throw FailureFromHresult(DISP_E_BADPARAMCOUNT, nullptr);
    params.rgdispidNamedArgs = &putId;
    params.cNamedArgs = 1;
    // An object is assigned by reference ("Set x.Folder = f"), as the host expects.
    flags = args.back().IsObject() ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
  }

  ScopedVariant result;
  EXCEPINFO info{};
  UINT argError = 0;
  VARIANT* out = kind == InvokeKind::Put ? nullptr : result.get();
  HRESULT hr =
      dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, out, &info, &argError);
  if (hr == DISP_E_MEMBERNOTFOUND && flags == DISPATCH_PROPERTYPUTREF) {
    info = EXCEPINFO{};
    hr = dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &params, out,
                           &info, &argError);
  }
  if (FAILED(hr)) throw FailureFromHresult(hr, &info);
  return FromVariant(result.ref(), shared_);
}

std::string DispatchObject::TypeName() const {
  try {
    std::string name;
    ComPtr<IProvideClassInfo> classInfo;
    ComPtr<ITypeInfo> info;
    if (SUCCEEDED(dispatch_->QueryInterface(IID_IProvideClassInfo, classInfo.PutVoid())) &&
        classInfo && SUCCEEDED(classInfo->GetClassInfo(info.Put()))) {
      name = TypeInfoName(info.get());
    }
    if (name.empty()) name = Type().name;
    // Hosts name a class's default interface "_Inspector"; the runtime says "Inspector".
    if (!name.empty() && name.front() == '_') name.erase(0, 1);
    return name.empty() ? std::string("Object") : name;
  } catch (...) {
    return "Object";
  }
}

std::vector<Variant> DispatchObject::Enumerate() {
  if (!dispatch_) throw Failure::Runtime(err::kObjectNotSet);
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  ScopedVariant result;
  EXCEPINFO info{};
  const HRESULT hr = dispatch_->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                                       DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, result.get(),
                                       &info, nullptr);
  if (FAILED(hr)) throw FailureFromHresult(hr, &info);
  IUnknown* unknown = nullptr;
  if (result.ref().vt == VT_UNKNOWN) unknown = result.ref().punkVal;
  if (result.ref().vt == VT_DISPATCH) unknown = result.ref().pdispVal;
  ComPtr<IEnumVARIANT> items;
  if (!unknown || FAILED(unknown->QueryInterface(IID_IEnumVARIANT, items.PutVoid())) || !items) {
    throw Failure::Runtime(err::kNoSuchMember);
  }
  std::vector<Variant> out;
  for (;;) {
    ScopedVariant item;
    ULONG fetched = 0;
    if (items->Next(1, item.get(), &fetched) != S_OK || fetched != 1) break;
    out.push_back(FromVariant(item.ref(), shared_));
  }
  return out;
}

Subscription DispatchObject::Subscribe(std::string_view event, EventHandler handler) {
  return SubscribeToEvent(dispatch_.get(), event, std::move(handler), shared_);
}

}  // namespace qvx::win32
