// The scripted user's tick, which no dialog of the add-in has a box for yet:
// the box changes as a user's click changes it. Every other act, its
// refusals, and the answers of message boxes left unanswered are proven by
// the dialogs' scenarios.
#include "platform/posix/scripted_ui.h"

#include <gtest/gtest.h>

namespace qvx::platform {
namespace {

TEST(ScriptedUiUserActs, ATickSetsTheBoxAndRaisesChangeAndClick) {
  FormModel form("Edit", 3000, {MakeControl("chkSure", kind::kCheck, "Sure")});
  std::vector<std::string> events;
  for (const char* event : {"Change", "Click"}) {
    form.On("chkSure", event, [&events, event](EventArgs&) { events.push_back(event); });
  }
  ScriptedUserInterface ui;
  ui.QueueForm(FormScript().Tick("chkSure", true));
  ui.ShowModal(form);
  EXPECT_EQ(events, (std::vector<std::string>{"Change", "Click"}));
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_TRUE(ui.Forms()[0].finalControls.at(0).value);
  EXPECT_TRUE(ui.Forms()[0].refused.empty());
}

}  // namespace
}  // namespace qvx::platform
