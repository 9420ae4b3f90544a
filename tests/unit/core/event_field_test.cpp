// Trapped procedures and the event fields whose handlers run trapped.
#include "core/event_field.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "core/trap.h"
#include "sim/fake_object.h"

namespace qvx {
namespace {

using Report = std::tuple<std::string, int32_t, int, std::string>;  // text, number, line, label

struct RecordingSink : FailureSink {
  ErrorState err;
  std::vector<Report> reports;
  ErrorState& Err() noexcept override { return err; }
  void ReportError(const std::string& description, int32_t number, int line, std::string_view label,
                   bool) noexcept override {
    reports.emplace_back(description, number, line, label);
  }
};

TEST(Trapped, ReportsLabelLineAndEndsTheProcedure) {
  RecordingSink sink;
  bool after = false;
  Trapped(sink, "Main.ReportToDB", [&](Line& line) {
    line = 110;
    line = 120;
    throw Failure(91, "QVX", "Object variable or With block variable not set");
    after = true;
  });
  EXPECT_FALSE(after);
  EXPECT_EQ(sink.err.source, "QVX");
  const int result = TrappedResult<int>(sink, "X.Count", [](Line& line, int& r) {
    line = 10;
    r = 7;
    throw std::runtime_error("boom");
  });
  EXPECT_EQ(result, 7);  // a function returns its result so far
  EXPECT_EQ(sink.reports, (std::vector<Report>{{"Object variable or With block variable not set",
                                                91, 120, "Main.ReportToDB"},
                                               {"boom", err::kInternalError, 10, "X.Count"}}));
}

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

// Another object moves the subscriptions; an object without the events, or
// an owner not held by a shared_ptr, is refused and the field left as it was.
TEST_F(EventFieldTest, SetMovesTheSubscriptionsAndARefusedSetChangesNothing) {
  auto second = Application();
  holder->ouaMonitorApp.Set(app->AsObject());
  holder->ouaMonitorApp.Set(second->AsObject());
  EXPECT_EQ(app->HandlerCount("Quit") + app->HandlerCount("Close"), 0u);
  auto mute = std::make_shared<sim::FakeObject>("Folder");
  EXPECT_THROW(holder->ouaMonitorApp.Set(mute->AsObject()), Failure);
  EXPECT_TRUE(holder->ouaMonitorApp.object().Is(second->AsObject()));
  EXPECT_EQ(second->HandlerCount("Quit"), 1u);
  Client unshared(sink, holder, seen);
  EXPECT_THROW(unshared.ouaMonitorApp.Set(app->AsObject()), Failure);
  EXPECT_EQ(app->HandlerCount("Quit"), 0u);
  holder->ouaMonitorApp.Release();
  EXPECT_EQ(second->HandlerCount("Quit"), 0u);
  EXPECT_FALSE(holder->ouaMonitorApp);
}

TEST_F(EventFieldTest, AHandlerRunsUnderItsTrapLabel) {
  holder->ouaMonitorApp.Set(app->AsObject());
  EventArgs args{Variant("not a number")};
  EXPECT_EQ(app->Raise("Close", args), 1u);  // the failure stays inside the handler
  EXPECT_EQ(seen, std::vector<std::string>{"close"});
  EXPECT_EQ(sink.reports,
            (std::vector<Report>{{"Type mismatch", err::kTypeMismatch, 20, "Client.Close"}}));
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
