// A wrapped button through its interface: a user's click reaches the owner
// with the very button clicked, the owner's answer reaches blnNew and not the
// host, and a wrapper without an owner, or gone, tells no one.
#include "commandbars/wrapped_button.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "core/host_constants.h"
#include "sim/command_bar.h"
#include "sim/command_bar_control.h"
#include "sim/command_bars.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

// An owner that records the buttons it is told of and answers each click.
class RecordingOwner : public IMyEventInterface {
 public:
  void ButtonClick(const Object& Ctrl, bool& CancelDefault) override {
    clicked.push_back(Ctrl);
    told.push_back(CancelDefault);
    CancelDefault = answer;
  }
  std::vector<Object> clicked;
  std::vector<bool> told;
  bool answer = true;
};

class WrappedButtonTest : public TaggingTest {
 protected:
  WrappedButtonTest() {
    Connect();
    bar = explorer->commandBars().Add("Views", host::msoBarTop, false, true);
  }
  // A button of the bar with this caption; a built-in one runs a command of
  // the host when its click is not cancelled.
  std::shared_ptr<sim::SimBarButton> Button(std::string caption, int32_t id = 1) {
    auto control = bar->controls().Add(host::msoControlButton, id, "", 0, true);
    control->SetCaption(std::move(caption));
    return std::static_pointer_cast<sim::SimBarButton>(control);
  }
  std::shared_ptr<cWrappedButton> Wrap(const std::shared_ptr<sim::SimBarButton>& button,
                                       std::shared_ptr<IMyEventInterface> callback) {
    auto wrapper = std::make_shared<cWrappedButton>(s());
    wrapper->Callback(std::move(callback));
    wrapper->Wrapped(button->AsObject());
    return wrapper;
  }

  std::shared_ptr<sim::SimCommandBar> bar;
  std::shared_ptr<RecordingOwner> owner = std::make_shared<RecordingOwner>();
};

TEST_F(WrappedButtonTest, EachOfTwoLikeButtonsReportsItselfAndRewrappingMovesTheClick) {
  auto first = Button("Day");
  auto second = Button("Day");
  auto firstWrapper = Wrap(first, owner);
  auto secondWrapper = Wrap(second, owner);

  second->UserClick();
  first->UserClick();

  ASSERT_EQ(owner->clicked.size(), 2u);
  EXPECT_TRUE(owner->clicked[0].Is(second->AsObject()));
  EXPECT_TRUE(owner->clicked[1].Is(first->AsObject()));

  auto third = Button("Quarter");
  secondWrapper->Wrapped(third->AsObject());
  second->UserClick();
  third->UserClick();
  ASSERT_EQ(owner->clicked.size(), 3u);
  EXPECT_TRUE(owner->clicked[2].Is(third->AsObject()));
}

TEST_F(WrappedButtonTest, TheOwnersAnswerReachesBlnNewAndNotTheHost) {
  auto button = Button("Week", 1990);
  auto wrapper = Wrap(button, owner);
  wrapper->blnNew = false;

  button->UserClick();

  ASSERT_EQ(owner->told.size(), 1u);
  EXPECT_FALSE(owner->told[0]);
  EXPECT_TRUE(wrapper->blnNew);
  // The host's CancelDefault stayed unset: its own command ran.
  EXPECT_EQ(button->builtInRuns(), 1);

  // The wrapper's value, as the owner left it, is what the next click tells.
  owner->answer = false;
  button->UserClick();
  ASSERT_EQ(owner->told.size(), 2u);
  EXPECT_TRUE(owner->told[1]);
  EXPECT_FALSE(wrapper->blnNew);
}

TEST_F(WrappedButtonTest, WithoutAnOwnerOrOnceGoneAClickTellsNoOne) {
  auto lone = Button("Month");
  auto unowned = Wrap(lone, nullptr);
  s().support.strCurrentAction = "before";
  lone->UserClick();
  EXPECT_EQ(s().support.strCurrentAction, "cWrappedButton.cmdOfficeButton_Click");
  EXPECT_FALSE(unowned->blnNew);

  auto button = Button("Year");
  auto wrapper = Wrap(button, owner);
  std::weak_ptr<IMyEventInterface> ownerAlive = owner;
  owner.reset();
  ASSERT_FALSE(ownerAlive.expired()) << "the wrapper holds its owner until the wrapper goes";
  wrapper.reset();
  EXPECT_TRUE(ownerAlive.expired());
  button->UserClick();
  EXPECT_FALSE(button->deleted());
  EXPECT_EQ(button->raised(), 1);
  EXPECT_TRUE(Reports().empty());
}

}  // namespace
}  // namespace qvx::testing
