#include "platform/win32/event_sink.h"

#include "platform/win32/win32_api.h"

#include <memory>

#include "core/failure.h"
#include "core/text.h"
#include "platform/win32/com_module.h"
#include "platform/win32/host_events.h"
#include "platform/win32/ref_count.h"
#include "platform/win32/variant_convert.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32::detail {

// The sink the source calls. It answers QueryInterface for the event
// dispinterface, as Advise requires, and ignores the interface's other events.
class EventSink final : public IDispatch, private ModuleCounted {
 public:
  EventSink(const GUID& diid, DISPID dispid, EventHandler handler, platform::SharedMemberIds ids)
      : diid_(diid),
        dispid_(dispid),
        handler_(std::make_shared<EventHandler>(std::move(handler))),
        ids_(std::move(ids)) {}

  // After this the sink stays a valid COM object but calls nothing.
  void Disconnect() noexcept { handler_.reset(); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) noexcept override {
    if (!ppv) return E_POINTER;
    *ppv = nullptr;
    if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IDispatch) ||
        IsEqualIID(riid, diid_)) {
      *ppv = static_cast<IDispatch*>(this);
      AddRef();
      return S_OK;
    }
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return refs_.Add(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    return refs_.Release([this] { delete this; });
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept override {
    if (info) *info = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID,
                                          DISPID*) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispid, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*,
                                   EXCEPINFO*, UINT*) noexcept override {
    if (dispid != dispid_) return S_OK;
    // The handler may end this very subscription; keep both alive meanwhile.
    const std::shared_ptr<EventHandler> handler = handler_;
    if (!handler || !*handler) return S_OK;
    ComPtr<IDispatch> self(this);
    try {
      const UINT count = params && params->rgvarg ? params->cArgs : 0;
      EventArgs args;
      args.reserve(count);
      for (UINT i = count; i-- > 0;) {
        try {
          args.push_back(FromVariant(params->rgvarg[i], ids_));
        } catch (...) {
          args.emplace_back();  // an argument of a type the logic cannot take
        }
      }
      (*handler)(args);
      for (UINT i = 0; i < count && i < args.size(); ++i) {
        try {
          WriteBack(args[count - 1 - i], params->rgvarg[i]);
        } catch (...) {
          // A value that does not fit the by-reference slot is not written.
        }
      }
    } catch (...) {
      // Handlers trap their own failures; anything else stops here.
    }
    return S_OK;
  }

 private:
  ~EventSink() = default;

  RefCount refs_;
  GUID diid_;
  DISPID dispid_;
  std::shared_ptr<EventHandler> handler_;
  platform::SharedMemberIds ids_;  // shared by the objects of the event's arguments
};

// What a Subscription holds: unadvises when the last copy goes.
struct Advice {
  ComPtr<IConnectionPoint> point;
  DWORD cookie = 0;
  ComPtr<EventSink> sink;
  Advice() = default;
  Advice(const Advice&) = delete;
  Advice& operator=(const Advice&) = delete;
  ~Advice() {
    if (sink) sink->Disconnect();
    if (point) point->Unadvise(cookie);
  }
};

}  // namespace qvx::win32::detail

namespace qvx::win32 {

Subscription SubscribeToEvent(IDispatch* source, std::string_view event, EventHandler handler,
                              const platform::SharedMemberIds& ids) {
  const Failure unsupported(kNoSuchEventSet, "QVXClient",
                            "Object or class does not support the set of events");
  if (!source) throw Failure::Runtime(err::kObjectNotSet);
  ComPtr<IConnectionPointContainer> container;
  if (FAILED(source->QueryInterface(IID_IConnectionPointContainer, container.PutVoid())) ||
      !container) {
    throw unsupported;
  }
  for (const HostEvent& e : HostEvents()) {
    if (!EqualsText(e.name, event)) continue;
    ComPtr<IConnectionPoint> point;
    if (FAILED(container->FindConnectionPoint(*e.diid, point.Put())) || !point) continue;
    auto advice = std::make_shared<detail::Advice>();
    advice->sink =
        ComPtr<detail::EventSink>::Adopt(new detail::EventSink(*e.diid, e.dispid, handler, ids));
    const HRESULT hr = point->Advise(advice->sink.get(), &advice->cookie);
    if (FAILED(hr)) {
      advice->sink->Disconnect();
      advice->sink.Reset();
      throw FailureFromHresult(hr, nullptr);
    }
    advice->point = point;
    return Subscription(std::move(advice));
  }
  throw unsupported;
}

}  // namespace qvx::win32
