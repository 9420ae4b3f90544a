// host mail-library, expect mail-library: the optional mail library, absent
// unless a script installs it.
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "sim/mail_library_standin.h"

namespace qvx::scenario {
namespace {

const std::vector<std::string> kCounters = {"utils-created", "keys-refused", "cleanups",
                                            "property-reads", "sent"};

int CounterOf(const sim::MailLibraryRecord& r, size_t which) {
  switch (which) {
    case 0:
      return r.utilsCreated;
    case 1:
      return r.keysRefused;
    case 2:
      return r.cleanups;
    case 3:
      return r.getOneProp;
    default:
      return static_cast<int>(r.sent.size());
  }
}

}  // namespace

void RegisterMailLibraryVerbs(VerbTable& table) {
  table.Add("host mail-library", "host mail-library present|refuse-key [UTC-OFFSET-HOURS]",
            "installs the mail library stand-in; refuse-key makes it refuse the access key",
            [](World& w, const Args& a) {
              a.Expect(1, 2);
              sim::MailLibraryOptions options;
              options.refuseKey = a.Choice(0, {"present", "refuse-key"}) == 1;
              if (a.size() == 2) options.utcOffsetHours = a.Int(1);
              w.InstallMailLibrary(options);
            });
  table.Add("expect mail-library", "expect mail-library COUNTER NUMBER",
            "what was done with the library: utils-created, keys-refused, cleanups, "
            "property-reads, sent",
            [](World& w, const Args& a) {
              a.Expect(2);
              const size_t which = a.Choice(0, kCounters);
              if (w.mailLibrary() == nullptr) throw UsageError("the mail library is not installed");
              ExpectEqual(std::to_string(a.Int(1)),
                          std::to_string(CounterOf(w.mailLibrary()->record(), which)));
            });
}

}  // namespace qvx::scenario
