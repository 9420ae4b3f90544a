// cWrappedButton: one button of a bar whose buttons vary in number, passing
// its Click to the one owner of them all through IMyEventInterface.
//
// The owner makes one wrapper per button it adds, tells it who to call, then
// hands it the button; the wrapper's Click tells the owner which button it
// was, and passes blnNew by reference so that the owner may set it.
//
//   class cViews : public IMyEventInterface, public std::enable_shared_from_this<cViews> {
//     void ButtonClick(const Object& Ctrl, bool& CancelDefault) override;
//   };
//   auto wrapper = std::make_shared<cWrappedButton>(s);
//   wrapper->Callback(shared_from_this());
//   wrapper->Wrapped(button);   // from now on its Click reaches ButtonClick
//
// The wrapper holds its owner by a counted reference and the owner holds its
// wrappers: the owner must empty its list of wrappers to be released. The end
// of a wrapper ends its subscription; it never deletes the button, which
// belongs to the owner.
#pragma once

#include <memory>
#include <utility>

#include "core/event_field.h"
#include "core/object.h"

namespace qvx {

class AddinState;

// What the owner of wrapped buttons is told of a click: the button clicked.
class IMyEventInterface {
 public:
  virtual void ButtonClick(const Object& Ctrl, bool& CancelDefault) = 0;

 protected:
  ~IMyEventInterface() = default;
};

// Must be held by a shared_ptr before Wrapped is set.
class cWrappedButton : public std::enable_shared_from_this<cWrappedButton> {
 public:
  explicit cWrappedButton(AddinState& s);

  // Given by reference as ButtonClick's second argument.
  bool blnNew = false;

  const std::shared_ptr<IMyEventInterface>& Callback() const noexcept { return callback_; }
  void Callback(std::shared_ptr<IMyEventInterface> owner) noexcept { callback_ = std::move(owner); }

  const Object& Wrapped() const noexcept { return cmdOfficeButton.object(); }
  // Connects the button's Click; throws what the host throws for an object
  // without that event, and then keeps the button held so far.
  void Wrapped(const Object& button) { cmdOfficeButton.Set(button); }

 private:
  void cmdOfficeButton_Click();

  AddinState& s_;
  std::shared_ptr<IMyEventInterface> callback_;
  EventField<cWrappedButton> cmdOfficeButton;
};

}  // namespace qvx
