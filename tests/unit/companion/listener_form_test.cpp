// The listener's window procedure: which messages are the add-in's, what
// each value does before the explorers' sink exists, and that a failure in a
// handler is reported and never passed on to the window's caller.
#include "companion/listener_form.h"

#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class Listener : public TaggingTest {
 protected:
  // Connected, with only the listener loaded, as before the sinks are made.
  void ConnectWithListenerOnly() {
    Set("DBChoice", "1");
    world.addin().OnConnection(world.host().Application(), 1, Object());
    LoadListenToLocal(s());
  }
  bool Deliver(Channel channel, intptr_t value) {
    return WindowProc(s(), WM_MYMESSAGE(s(), channel), value);
  }
};

TEST_F(Listener, EveryValueIsSafeBeforeTheExplorersSinkExists) {
  ConnectWithListenerOnly();
  ASSERT_EQ(s().main.objExplorersClient, nullptr);
  EXPECT_NE(WM_MYMESSAGE(s(), Channel::Client), WM_MYMESSAGE(s(), Channel::Manager));
  struct Row {
    Channel channel;
    intptr_t value;
  };
  for (const Row row : {Row{Channel::Manager, 0},
                        {Channel::Client, 0},
                        {Channel::Client, 2},
                        {Channel::Client, 1},
                        {Channel::Client, 0x7FFFFFFF},  // the whole of wParam's low 32 bits
                        {Channel::Manager, 1}}) {
    EXPECT_TRUE(Deliver(row.channel, row.value));
    const auto& form =
        row.channel == Channel::Client ? s().main.fListenToLocal : s().main.fListenToAdmin;
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->iCurrentWindowMessage, row.value);
  }
  // The manager's form came into being as a handler only, with no window.
  EXPECT_FALSE(s().main.fListenToAdmin->HasWindow());
  EXPECT_TRUE(s().main.fListenToLocal->HasWindow());
  ASSERT_EQ(world.system().Launches().size(), 1u);
  EXPECT_EQ(world.system().Launches()[0].argument, "28");
  EXPECT_TRUE(Reports().empty());
}

TEST_F(Listener, AFailingHandlerIsReportedUnderItsChannelAndTheMessageIsStillTaken) {
  for (const Channel channel : {Channel::Client, Channel::Manager}) {
    scenario::World fresh;
    fresh.addin().OnConnection(fresh.host().Application(), 1, Object());
    AddinState& state = fresh.addin().state();
    LoadListenToLocal(state);
    state.main.objMySettings.reset();  // ReadSettings now fails
    EXPECT_TRUE(WindowProc(state, WM_MYMESSAGE(state, channel), 0));
    ASSERT_EQ(fresh.ui().Forms().size(), 1u);
    EXPECT_TRUE(ReportsTrap(ShownReports(fresh.ui()), channel == Channel::Client
                                                          ? "fListToLocal.GetMessageID"
                                                          : "fListToAdmin.GetMessageID"));
  }
}

}  // namespace
}  // namespace qvx::testing
