// The soak's statements, all drawn from one seed: the set-up of a configured
// user, then random user actions, host members made to fail, and now and
// then the host shutting the add-in down.
//
//   std::mt19937 random(seed);
//   for (const std::string& line : SoakSetUp(random)) ...   // "registry set DBChoice 1", ...
//   SoakActions actions(random);
//   actions.Next(10);   // "bar pick Quorvix Project Beta", "host fail-once Session 13 soak", ...
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace qvx::scenario {

// A configured user on an old or a new host, with a catalogue, a few items
// and the calendar open; ends with the add-in started.
std::vector<std::string> SoakSetUp(std::mt19937& random);

// The user closes the active explorer (the soak leaves the last one open:
// closing it ends the host).
inline constexpr char kCloseExplorer[] = "host close-explorer";

class SoakActions {
 public:
  explicit SoakActions(std::mt19937& random) : random_(random) {}

  // A user action, or (faultPercent of the time) a host member made to fail
  // for its next call.
  std::string Next(int faultPercent);
  // What happens, one time in two, while the add-in lets pending work
  // through in the middle of a loop: an item vanishes (perhaps one the loop
  // is working on), one is made, or a message arrives on either channel.
  // "" for nothing.
  std::string Interruption();
  // Whether the host shuts the add-in down at this step (one step in 500).
  bool TearDownNow() { return Below(500) == 0; }
  // How many actions the user takes before the host restarts after a
  // tear-down (1 to 8).
  int ActionsAfterTearDown() { return 1 + static_cast<int>(Below(8)); }

 private:
  uint32_t Below(uint32_t n) { return static_cast<uint32_t>(random_() % n); }
  std::string Pick(std::initializer_list<const char*> choices);
  std::string Subject();
  std::string NewItem();
  std::string Selection();
  std::string Fault();

  std::mt19937& random_;
};

}  // namespace qvx::scenario
