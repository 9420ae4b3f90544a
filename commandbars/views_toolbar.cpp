#include "commandbars/views_toolbar.h"

#include <string>

#include "commandbars/bar_controls.h"
#include "core/host_constants.h"
#include "state/addin_state.h"
#include "views/view_names.h"
#include "views/view_provisioning.h"

namespace qvx {
namespace {

constexpr int32_t kViewFaceId = 48;

// The trap label of a prepared button's click. The calendar view of reported
// items has always been reported under a lower-case "cal".
std::string ClickLabel(std::string_view button) {
  if (button == "cmdViewByReportedItemsCal") return "Views.cmdViewByReportedItemscal.Click";
  return "Views." + std::string(button) + ".Click";
}

bool HasTitles(std::string_view catalogueName) {
  return catalogueName.find('[') != std::string_view::npos;
}

void DressViewButton(const Object& button, const std::string& caption) {
  button.Put("Style", Variant(host::msoButtonIconAndCaption));
  button.Put("Caption", Variant(caption));
  button.Put("FaceId", Variant(kViewFaceId));
}

}  // namespace

cViews::cViews(AddinState& s) : s_(s), arrViewButtons(1), arrWrappedButtons(1) {
  for (size_t i = 0; i < kPreparedViews.size(); ++i) {
    preparedButtons_[i] = std::make_unique<EventField<cViews>>(*this, s);
    preparedButtons_[i]->On("Click", ClickLabel(kPreparedViews[i].button),
                            [i](cViews& self, Line&, EventArgs&) { self.PreparedButton_Click(i); });
  }
}

cViews::~cViews() {
  RemoveButtons();
}

void cViews::subAddButtons(const Object& toolbar) noexcept {
  AddinState& s = s_;
  Trapped(s, "Views.AddButtons", [&](Line& line) {
    line = 10;
    const Object folder = oueCurrExplorer.Get("CurrentFolder").ToObject();
    const int32_t count = folder.Get("Views").ToObject().Get("Count").ToLong();
    if (count < 1) return;
    line = 20;
    // Sized before any orphan goes; prepared views take no element.
    arrWrappedButtons.assign(static_cast<size_t>(count), nullptr);
    arrViewButtons.assign(static_cast<size_t>(count), Object());
    line = 30;
    cmdViewsPopup = AddTemporaryControl(toolbar.Get("Controls").ToObject(), host::msoControlPopup);
    cmdViewsPopup.Put("BeginGroup", Variant(true));
    cmdViewsPopup.Put(
        "Caption", Variant("View: " + folder.Get("CurrentView").ToObject().Get("Name").ToText()));
    line = 40;
    const Object entries = cmdViewsPopup.Get("Controls").ToObject();
    for (size_t i = 0; i < kPreparedViews.size(); ++i) {
      const Object button = AddTemporaryControl(entries, host::msoControlButton);
      preparedButtons_[i]->Set(button);
      DressViewButton(button, GetActualViewName(s, kPreparedViews[i].name));
      button.Put("TooltipText", Variant(""));
    }
    line = 50;
    for (const Variant& view : folder.Get("Views").ToObject().Enumerate()) {
      const std::string name = view.ToObject().Get("Name").ToText();
      if (!IsPreparedViewName(s, name)) DeleteOrphanedViews(s, folder, name);
    }
    line = 60;
    size_t i = 0;
    for (const Variant& view : folder.Get("Views").ToObject().Enumerate()) {
      const std::string name = view.ToObject().Get("Name").ToText();
      if (IsPreparedViewName(s, name)) continue;
      if (i >= arrViewButtons.size()) throw Failure::Runtime(err::kSubscriptOutOfRange);
      arrWrappedButtons[i] = std::make_shared<cWrappedButton>(s);
      arrWrappedButtons[i]->Callback(shared_from_this());
      arrViewButtons[i] = entries.Call("Add", {Variant(host::msoControlButton)}).ToObject();
      DressViewButton(arrViewButtons[i], name);
      // The line between the prepared views and the folder's own.
      if (i == 0) arrViewButtons[i].Put("BeginGroup", Variant(true));
      arrWrappedButtons[i]->Wrapped(arrViewButtons[i]);
      arrWrappedButtons[i]->blnNew = false;
      ++i;
    }
  });
}

void cViews::RemoveButtons() noexcept {
  ErrorState& err = s_.err;
  for (const auto& button : preparedButtons_) DeleteControl(err, *button);
  for (size_t i = 0; i < arrViewButtons.size(); ++i) {
    DeleteControl(err, arrViewButtons[i]);
    arrWrappedButtons[i].reset();
  }
  DeleteControl(err, cmdViewsPopup);
  err.Clear();
}

void cViews::UpdateToolbar() noexcept {
  AddinState& s = s_;
  Trapped(s, "Views.UpdateToolbar", [&](Line& line) {
    line = 10;
    for (size_t i = 0; i < kPreparedViews.size(); ++i) {
      if (!HasTitles(kPreparedViews[i].name)) continue;
      preparedButtons_[i]->object().Put("Caption",
                                        Variant(GetActualViewName(s, kPreparedViews[i].name)));
    }
  });
}

void cViews::PreparedButton_Click(size_t index) {
  AddinState& s = s_;
  const Object& button = preparedButtons_[index]->object();
  const Object folder = oueCurrExplorer.Get("CurrentFolder").ToObject();
  const std::string caption = button.Get("Caption").ToText();
  LoadView(s, folder, caption, GetViewResName(s, caption));
  ShowChosen(caption);
}

void cViews::ButtonClick(const Object& Ctrl, bool&) {
  Trapped(s_, "Views.Interface.ButtonClick", [&](Line& line) {
    line = 10;
    const std::string caption = Ctrl.Get("Caption").ToText();
    oueCurrExplorer.Put("CurrentView", Variant(caption));
    line = 20;
    ShowChosen(caption);
  });
}

void cViews::ShowChosen(const std::string& caption) {
  cmdViewsPopup.Put("Caption", Variant("View : [" + caption + "]"));
}

}  // namespace qvx
