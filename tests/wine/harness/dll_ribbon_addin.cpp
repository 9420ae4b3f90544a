#include "harness/dll_ribbon_addin.h"

#include "platform/win32/variant_convert.h"
#include "platform/win32/wide_text.h"
#include "sim/fake_object.h"

namespace qvx::winetest {

std::string DllRibbonAddin::GetCustomUI(std::string_view ribbonId) {
  ComPtr<com::IRibbonExtensibility> ribbon;
  if (FAILED(session_.addin()->QueryInterface(com::IID_IRibbonExtensibility, ribbon.PutVoid()))) {
    return {};
  }
  win32::Bstr id(win32::Wide(ribbonId));
  win32::Bstr markup;
  if (FAILED(ribbon->GetCustomUI(id.get(), markup.Put())) || markup.get() == nullptr) return {};
  return win32::Narrow(std::wstring_view(markup.get(), SysStringLen(markup.get())));
}

CallbackOutcome DllRibbonAddin::Call(std::string_view name, std::vector<Variant>& args,
                                     Variant& result) {
  std::vector<VARIANT> lastFirst(args.size());
  for (size_t i = 0; i < args.size(); ++i)
    win32::ToVariant(args[i], &lastFirst[args.size() - 1 - i]);
  VARIANT answer;
  VariantInit(&answer);
  EXCEPINFO info{};
  const HRESULT hr =
      InvokeByName(session_.Dispatch().get(), win32::Wide(name), lastFirst, &answer, &info);
  for (VARIANT& v : lastFirst) VariantClear(&v);
  if (hr == DISP_E_EXCEPTION) {
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrHelpFile);
    return CallbackOutcome::Failed;
  }
  if (hr == DISP_E_BADPARAMCOUNT) return CallbackOutcome::WrongArgumentCount;
  if (hr == DISP_E_UNKNOWNNAME || hr == DISP_E_MEMBERNOTFOUND) return CallbackOutcome::UnknownName;
  if (FAILED(hr)) return CallbackOutcome::Failed;
  result = win32::FromVariant(answer);
  VariantClear(&answer);
  return CallbackOutcome::Done;
}

std::vector<std::string> DllRibbonAddin::Rows(const Object& control) {
  std::vector<Variant> args{Variant(control)};
  Variant count;
  std::vector<std::string> labels;
  if (Call("GetItemCount", args, count) != CallbackOutcome::Done) return {"(no count)"};
  for (int32_t i = 0; i < count.ToLong(); ++i) {
    std::vector<Variant> rowArgs{Variant(control), Variant(i)};
    Variant label;
    Call("GetItemLabel", rowArgs, label);
    labels.push_back(label.ToText());
  }
  return labels;
}

Object RibbonControl(const std::string& id, const Object& context, const std::string& tag) {
  auto control = std::make_shared<sim::FakeObject>("IRibbonControl");
  control->ReadOnly("Id", Variant(id))
      .ReadOnly("Tag", Variant(tag))
      .ReadOnly("Context", Variant(context));
  return control->AsObject();
}

}  // namespace qvx::winetest
