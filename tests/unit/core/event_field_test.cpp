#include "core/event_field.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "sim/fake_object.h"

namespace qvx {
namespace {

struct RecordingSink : FailureSink {
  ErrorState err;
  std::vector<std::tuple<std::string, int32_t, int>> reports;  // label, number, line
  ErrorState& Err() noexcept override { return err; }
  void ReportError(const std::string&, int32_t number, int line, std::string_view label,
                   bool) noexcept override {
    reports.emplace_back(label, number, line);
  }
};

std::shared_ptr<sim::FakeObject> Application() {
  auto app = std::make_shared<sim::FakeObject>("Application");
  app->Event("Quit").Event("Close");
  return app;
}

// A client that watches an application, as the explorer client does; what
// holds it is a slot that its Quit handler empties, as subKillObjects does.
class Client : public std::enable_shared_from_this<Client> {
 public:
  Client(FailureSink& sink, std::shared_ptr<Client>& holder, std::vector<std::string>& seen)
      : ouaMonitorApp(*this, sink), holder_(holder), seen_(seen) {
    ouaMonitorApp
        .On("Quit", "Client.Quit",
            [](Client& self, Line& line, EventArgs&) {
              line = 10;
              const std::weak_ptr<Client> me = self.weak_from_this();
              self.holder_.reset();  // tears down the client running this handler
              line = 20;
              self.seen_.push_back(me.expired() ? "gone" : self.name);
            })
        .On("Close", "Client.Close", [](Client& self, Line& line, EventArgs& args) {
          line = 10;
          self.seen_.push_back("close");
          line = 20;
          args.at(0).ToLong();  // fails for a text argument
        });
  }

  EventField<Client> ouaMonitorApp;
  std::string name = "client with a name long enough to live on the heap";

 private:
  std::shared_ptr<Client>& holder_;
  std::vector<std::string>& seen_;
};

// A client held by `holder`, watching `app`.
class EventFieldTest : public ::testing::Test {
 protected:
  RecordingSink sink;
  std::vector<std::string> seen;
  std::shared_ptr<Client> holder;
  std::shared_ptr<sim::FakeObject> app = Application();

  void SetUp() override { holder = std::make_shared<Client>(sink, holder, seen); }
};

TEST_F(EventFieldTest, AssigningAnotherObjectMovesTheSubscriptions) {
  auto& first = app;
  auto second = Application();

  holder->ouaMonitorApp.Set(first->AsObject());
  EXPECT_EQ(first->HandlerCount("Quit"), 1u);
  EXPECT_EQ(first->HandlerCount("Close"), 1u);
  EXPECT_TRUE(holder->ouaMonitorApp.object().Is(first->AsObject()));

  holder->ouaMonitorApp.Set(second->AsObject());
  EXPECT_EQ(first->HandlerCount("Quit"), 0u);
  EXPECT_EQ(first->HandlerCount("Close"), 0u);
  EXPECT_EQ(second->HandlerCount("Quit"), 1u);
  EXPECT_EQ(first->Raise("Close"), 0u);

  holder->ouaMonitorApp.Release();
  EXPECT_EQ(second->HandlerCount("Quit"), 0u);
  EXPECT_FALSE(holder->ouaMonitorApp);
  EXPECT_TRUE(seen.empty());
}

TEST_F(EventFieldTest, AnObjectWithoutTheEventsLeavesTheFieldAsItWas) {
  holder->ouaMonitorApp.Set(app->AsObject());
  auto mute = std::make_shared<sim::FakeObject>("Folder");
  EXPECT_THROW(holder->ouaMonitorApp.Set(mute->AsObject()), Failure);
  EXPECT_TRUE(holder->ouaMonitorApp.object().Is(app->AsObject()));
  EXPECT_EQ(app->HandlerCount("Quit"), 1u);
}

TEST_F(EventFieldTest, AnOwnerNotHeldBySharedPtrCannotSubscribe) {
  Client unshared(sink, holder, seen);
  EXPECT_THROW(unshared.ouaMonitorApp.Set(app->AsObject()), Failure);
  EXPECT_EQ(app->HandlerCount("Quit"), 0u);
}

TEST_F(EventFieldTest, AHandlerRunsUnderItsTrapLabel) {
  holder->ouaMonitorApp.Set(app->AsObject());
  EventArgs args{Variant("not a number")};
  EXPECT_EQ(app->Raise("Close", args), 1u);  // the failure stays inside the handler
  EXPECT_EQ(seen, std::vector<std::string>{"close"});
  ASSERT_EQ(sink.reports.size(), 1u);
  EXPECT_EQ(sink.reports[0], std::make_tuple(std::string("Client.Close"), err::kTypeMismatch, 20));
}

// Under AddressSanitizer a handler that outlived its owner's memory fails here.
TEST_F(EventFieldTest, AnOwnerTornDownByItsOwnHandlerLivesUntilTheHandlerReturns) {
  const std::weak_ptr<Client> watch = holder;
  const std::string name = holder->name;
  holder->ouaMonitorApp.Set(app->AsObject());

  EXPECT_EQ(app->Raise("Quit"), 1u);
  EXPECT_EQ(seen, std::vector<std::string>{name});  // alive after its holder let go
  EXPECT_EQ(holder, nullptr);
  EXPECT_TRUE(watch.expired());  // gone once the handler returned
  EXPECT_EQ(app->HandlerCount("Quit"), 0u);
  EXPECT_EQ(app->Raise("Quit"), 0u);
  EXPECT_TRUE(sink.reports.empty());
}

}  // namespace
}  // namespace qvx
