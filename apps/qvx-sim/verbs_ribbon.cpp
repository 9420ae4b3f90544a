// ribbon load, ribbon call, expect ribbon-invalidated, expect no-ribbon-invalidation
#include <optional>
#include <string>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"

namespace qvx::scenario {
namespace {

const char* OutcomeText(CallbackOutcome outcome) {
  switch (outcome) {
    case CallbackOutcome::Done:
      return "done";
    case CallbackOutcome::UnknownName:
      return "unknown";
    case CallbackOutcome::WrongArgumentCount:
      return "wrong-argument-count";
    case CallbackOutcome::Failed:
      return "failed";
  }
  return "?";
}

// The host calls a callback by name, as the markup binds it.
std::string CallByName(World& w, const std::string& name, std::vector<Variant> args) {
  Variant result;
  std::optional<Failure> failure;
  const CallbackOutcome outcome = w.addin().InvokeCallback(name, args, result, failure);
  std::string seen = OutcomeText(outcome);
  if (failure) seen += " " + std::to_string(failure->number());
  return seen;
}

// Invalidations of the whole ribbon since the last expectation about them:
// of the ribbon handed over by "ribbon load" and of the host's own ribbons.
int TakeInvalidations(World& w) {
  const int hostCount = w.ribbonHost().InvalidationCount();
  const int count = w.ribbonUi().CallCount("Invalidate") + hostCount - w.ribbonInvalidationsSeen;
  w.ribbonUi().ResetCallCounts();
  w.ribbonInvalidationsSeen = hostCount;
  return count;
}

}  // namespace

void RegisterRibbonVerbs(VerbTable& table) {
  table.Add("ribbon load", "ribbon load",
            "the host loads its ribbon and hands it to the add-in's OnLoad",
            [](World& w, const Args& a) {
              a.Expect(0);
              ExpectEqual("done", CallByName(w, "OnLoad", {Variant(w.ribbonUi().AsObject())}));
            });
  table.Add("ribbon call", "ribbon call NAME OUTCOME [TEXT...]",
            "the host calls a callback by NAME with text arguments; OUTCOME is done, unknown, "
            "wrong-argument-count or failed NUMBER",
            [](World& w, const Args& a) {
              a.Expect(2, 16);
              std::vector<Variant> args;
              size_t first = 2;
              if (a.Is(1, "failed")) first = 3;
              for (size_t i = first; i < a.size(); ++i) args.emplace_back(a.At(i));
              std::string expected = a.At(1);
              if (first == 3) expected += " " + a.At(2);
              ExpectEqual(expected, CallByName(w, a.At(0), std::move(args)));
            });
  table.Add("expect ribbon-invalidated", "expect ribbon-invalidated",
            "the add-in asked the host to refresh its whole ribbon since the last such expectation",
            [](World& w, const Args& a) {
              a.Expect(0);
              if (TakeInvalidations(w) == 0) {
                throw ExpectationFailed("an invalidation of the ribbon", "none");
              }
            });
  table.Add("expect no-ribbon-invalidation", "expect no-ribbon-invalidation",
            "the add-in has not asked for a refresh of the ribbon since the last expectation",
            [](World& w, const Args& a) {
              a.Expect(0);
              const int count = TakeInvalidations(w);
              if (count != 0) {
                throw ExpectationFailed("no invalidation",
                                        std::to_string(count) + " invalidations");
              }
            });
}

}  // namespace qvx::scenario
