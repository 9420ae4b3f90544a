#include "ribbon/ribbon_callbacks.h"

#include <array>
#include <new>

#include "core/text.h"
#include "ribbon/drop_down_callbacks.h"
#include "ribbon/execute_action.h"
#include "ribbon/ribbon_images.h"
#include "ribbon/state_callbacks.h"
#include "ribbon/views_menu.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

using Args = std::vector<Variant>;

void OnLoadCallback(AddinState& s, Args& args, Variant&) {
  OnLoad(s, args[0].ToObject());
}

// A getter of the control alone, answering a boolean.
template <bool (*Getter)(AddinState&, const Variant&)>
void Flag(AddinState& s, Args& args, Variant& result) {
  result = Variant(Getter(s, args[0]));
}

template <int Field>
void CustomFieldVisibility(AddinState& s, Args&, Variant& result) {
  result = Variant(GetCustomFieldVisibility(s, Field));
}

template <int Field>
void CustomFieldVisibilityInspector(AddinState& s, Args& args, Variant& result) {
  result = Variant(GetCustomFieldVisibilityInspector(s, args[0], Field));
}

constexpr std::array kCallbacks = {
    RibbonCallback{"OnLoad", 1, &OnLoadCallback},
    RibbonCallback{"getImages", 1,
                   [](AddinState& s, Args& args, Variant& result) {
                     result = Variant(getImages(s, args[0].ToText()));
                   }},
    RibbonCallback{
        "getLabel", 1,
        [](AddinState& s, Args& args, Variant& result) { result = Variant(getLabel(s, args[0])); }},
    RibbonCallback{"GetVisible", 1, &Flag<GetVisible>},
    RibbonCallback{"GetEnabled", 1, &Flag<GetEnabled>},
    RibbonCallback{"GetGroupVisibility", 1, &Flag<GetGroupVisibility>},
    RibbonCallback{"ShowCustomFields", 1, &Flag<ShowCustomFields>},
    RibbonCallback{"GetReportButtonVisible", 1, &Flag<GetReportButtonVisible>},
    RibbonCallback{"GetWithdrawButtonVisible", 1, &Flag<GetWithdrawButtonVisible>},
    RibbonCallback{"GetReportButtonVisibleInspector", 1, &Flag<GetReportButtonVisibleInspector>},
    RibbonCallback{"GetWithdrawButtonVisibleInspector", 1,
                   &Flag<GetWithdrawButtonVisibleInspector>},
    RibbonCallback{"GetCustomField1Visibility", 1, &CustomFieldVisibility<1>},
    RibbonCallback{"GetCustomField2Visibility", 1, &CustomFieldVisibility<2>},
    RibbonCallback{"GetCustomField3Visibility", 1, &CustomFieldVisibility<3>},
    RibbonCallback{"GetCustomField4Visibility", 1, &CustomFieldVisibility<4>},
    RibbonCallback{"GetCustomField1VisibilityInspector", 1, &CustomFieldVisibilityInspector<1>},
    RibbonCallback{"GetCustomField2VisibilityInspector", 1, &CustomFieldVisibilityInspector<2>},
    RibbonCallback{"GetCustomField3VisibilityInspector", 1, &CustomFieldVisibilityInspector<3>},
    RibbonCallback{"GetCustomField4VisibilityInspector", 1, &CustomFieldVisibilityInspector<4>},
    RibbonCallback{"GetItemCount", 1,
                   [](AddinState& s, Args& args, Variant& result) {
                     result = Variant(GetItemCount(s, args[0]));
                   }},
    RibbonCallback{"GetItemLabel", 2,
                   [](AddinState& s, Args& args, Variant& result) {
                     result = Variant(GetItemLabel(s, args[0], args[1].ToInteger()));
                   }},
    RibbonCallback{"GetSelectedItemIndex", 1,
                   [](AddinState& s, Args& args, Variant& result) {
                     result = Variant(GetSelectedItemIndex(s, args[0]));
                   }},
    RibbonCallback{"OnActionDropDown", 3,
                   [](AddinState& s, Args& args, Variant&) {
                     OnActionDropDown(s, args[0], args[1].ToText(), args[2].ToInteger());
                   }},
    RibbonCallback{"SubExecuteAction", 1,
                   [](AddinState& s, Args& args, Variant&) { SubExecuteAction(s, args[0]); }},
    RibbonCallback{"GetContentXML", 1,
                   [](AddinState& s, Args& args, Variant& result) {
                     result = Variant(GetContentXML(s, args[0]));
                   }},
    RibbonCallback{"ExecuteView", 1,
                   [](AddinState& s, Args& args, Variant&) { ExecuteView(s, args[0]); }},
};

}  // namespace

void OnLoad(AddinState& s, const Object& ribbon) {
  s.main.objRibbonUI = ribbon;
}

const RibbonCallback* FindRibbonCallback(std::string_view name) noexcept {
  // The names are ASCII; an ASCII compare never allocates.
  for (const char c : name) {
    if (static_cast<unsigned char>(c) >= 0x80) return nullptr;
  }
  for (const RibbonCallback& callback : kCallbacks) {
    if (EqualsText(callback.name, name)) return &callback;
  }
  return nullptr;
}

namespace {

// What a callback answers once the add-in is torn down, without running: the
// empty value of its kind.
Variant InertAnswer(std::string_view name) {
  for (const std::string_view text : {"getLabel", "GetItemLabel", "GetContentXML"}) {
    if (name == text) return Variant("");
  }
  if (name == "GetItemCount" || name == "GetSelectedItemIndex") return Variant(int16_t{0});
  if (name.starts_with("Get") || name.starts_with("Show")) return Variant(false);
  return Variant();  // the user's acts, OnLoad, getImages
}

}  // namespace

CallbackOutcome InvokeRibbonCallback(AddinState& s, std::string_view name,
                                     std::vector<Variant>& args, Variant& result,
                                     std::optional<Failure>& failure) noexcept {
  const RibbonCallback* callback = FindRibbonCallback(name);
  if (!callback) return CallbackOutcome::UnknownName;
  if (args.size() != callback->argumentCount) return CallbackOutcome::WrongArgumentCount;
  // Torn down, the add-in stays inert, though the host may go on showing its
  // ribbon (the "Shutdown" command leaves the host running).
  if (s.main.phase == AddinPhase::TornDown) {
    result = InertAnswer(callback->name);
    return CallbackOutcome::Done;
  }
  try {
    result = Variant();  // a callback without a result answers nothing
    callback->body(s, args, result);
    return CallbackOutcome::Done;
  } catch (const Failure& f) {
    failure = f;
  } catch (const std::bad_alloc&) {
    failure = Failure::Runtime(err::kOutOfMemory);
  } catch (...) {
    failure = Failure::Runtime(err::kInternalError);
  }
  result = Variant();
  return CallbackOutcome::Failed;
}

}  // namespace qvx
