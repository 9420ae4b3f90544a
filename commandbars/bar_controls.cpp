#include "commandbars/bar_controls.h"

#include "core/host_constants.h"
#include "core/variant.h"
#include "state/addin_state.h"

namespace qvx {

Object AddTemporaryControl(const Object& controls, int32_t type) {
  return controls
      .Call("Add", {Variant(type), Variant(host::msoControlIdCustom), Variant::Missing(),
                    Variant::Missing(), Variant(true)})
      .ToObject();
}

void DeleteControl(ErrorState& err, Object& control) noexcept {
  if (!control) return;
  IgnoreFailure(err, [&] { control.Call("Delete"); });
  control.Release();
}

void SweepBars(ErrorState& err, const Object& window, std::string_view name) noexcept {
  if (!window) return;
  std::vector<Variant> bars;
  IgnoreFailure(err, [&] { bars = window.Get("CommandBars").ToObject().Enumerate(); });
  for (const Variant& entry : bars) {
    IgnoreFailure(err, [&] {
      const Object bar = entry.ToObject();
      if (bar.Get("Name").ToText() == name) bar.Call("Delete");
    });
  }
  err.Clear();
}

void ForgetInspectorBar(AddinState& s, const Object& inspector, bool customFields) noexcept {
  IgnoreFailure(s.err, [&] {
    const std::string entryId = inspector.Get("CurrentItem").ToObject().Get("EntryID").ToText();
    s.upward().ForgetInspectorToolbar(entryId, customFields);
  });
  s.err.Clear();
}

Object ShownItem(ErrorState& err, const Object& explorer, const Object& inspector) noexcept {
  Object item;
  Quietly(err, [&] {
    item = explorer ? explorer.Get("Selection").ToObject().Call("Item", {Variant(1)}).ToObject()
                    : inspector.Get("CurrentItem").ToObject();
  });
  return item;
}

}  // namespace qvx
