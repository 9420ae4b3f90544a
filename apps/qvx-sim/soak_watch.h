// What the soak watches the add-in do during one step, past what a step's
// outcome shows: which items it changed, how often it called the host, and
// what it showed or launched. Each record is read once and then forgotten
// (World::ForgetRecords), so a run of any length keeps the same memory.
//
//   SoakWatch watch(world);
//   watch.BeforeStep();
//   ... run the step ...
//   const SoakWatch::Step seen = watch.AfterStep();
//   if (!seen.strayWrite.empty()) ...      // an item the user had not selected changed
//   if (seen.errorReports + before > 1) ...
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace qvx::sim {
class SimItem;
}

namespace qvx::scenario {

class World;

class SoakWatch {
 public:
  // Hooks the host's item changes until the watch ends.
  explicit SoakWatch(World& world);
  ~SoakWatch();
  SoakWatch(const SoakWatch&) = delete;
  SoakWatch& operator=(const SoakWatch&) = delete;

  // Notes the items of the calendar and the tasks that the user has neither
  // selected in the active explorer nor open in the active inspector: the
  // add-in must not change them in this step. Items it makes itself are not
  // watched.
  void BeforeStep();

  struct Step {
    std::string strayWrite;   // the subject of a watched item that changed, or ""
    uint64_t hostCalls = 0;   // the add-in's calls on the host in this step
    size_t errorReports = 0;  // error reports shown in this step
    size_t shown = 0;         // boxes and dialogs shown, programs launched
  };
  // What the step did; forgets the records it read.
  Step AfterStep();

 private:
  World& world_;
  std::vector<const sim::SimItem*> watched_;
  std::string strayWrite_;
  uint64_t callsBefore_ = 0;
};

}  // namespace qvx::scenario
