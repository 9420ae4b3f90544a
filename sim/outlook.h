// Outlook: a simulated host world for tests, the simulator and scenarios.
//
// It owns the Application and gives the test side what a user, the clock
// and the companion would do: open and close windows, select items, switch
// folders, add and change items, and make any member of any object fail.
// The add-in sees only Application() and what it reaches from there.
//
//   sim::Outlook world;                       // one explorer on the Inbox
//   world.SetVersion("16.0.0.0");
//   auto meeting = world.AddAppointment("Planning", DateSerial(2026, 3, 2),
//                                       DateSerial(2026, 3, 3));
//   auto explorer = world.OpenExplorer(world.Calendar());   // raises NewExplorer
//   world.Select(*explorer, {meeting});
//   world.FailAt("ActiveExplorer.CurrentFolder.Items", 0x80004005, "boom");
//   addin.OnConnection(world.Application());
//
// Options::withExplorer false starts the host as automation does, with no
// window; StartsWithoutExplorer() does the same after construction (before
// the add-in connects). Every window has its command bars
// (SimWindow::commandBars, sim/command_bars.h); later additions hook in
// through SimContext and live in their own files.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/dates.h"
#include "sim/application.h"
#include "sim/context.h"
#include "sim/faults.h"

namespace qvx::sim {

class SimAppointment;
class SimCategory;
class SimExplorer;
class SimFolder;
class SimInspector;
class SimItem;
class SimMail;
class SimTask;
class SimWindow;

class Outlook {
 public:
  struct Options {
    std::string version = "16.0.0.0";
    std::string mailbox = "Mailbox - Jane Doe";
    std::string userName = "Jane Doe";
    bool withExplorer = true;
    int32_t startFolder = 6;               // the start-up explorer's default folder
    DateValue now = DateValue{46023.375};  // 1 January 2026, 9:00
  };

  Outlook();
  explicit Outlook(Options options);
  ~Outlook();
  Outlook(const Outlook&) = delete;
  Outlook& operator=(const Outlook&) = delete;

  // ---- what the add-in gets ----
  Object Application();
  SimApplication& app() { return *app_; }
  SimContext& context() { return *context_; }
  MessageQueue& Pending() { return context_->pending; }

  // ---- configuration ----
  void SetVersion(std::string version);
  void SetNow(DateValue now);  // a fixed clock
  DateValue Now() const;       // the host's present time
  void SetClock(std::function<DateValue()> clock);
  void AdvanceClock(double seconds);
  void SetCreateObject(std::function<Object(std::string_view progId)> create);
  void SetCommandBars(std::function<Object(SimWindow& window)> make);
  void SetQuitOnLastWindowClose(bool quit) { context_->quitOnLastWindowClose = quit; }
  void SetMailboxName(std::string name);
  // Removes the start-up explorer without events (call before the add-in starts).
  void StartsWithoutExplorer();

  // ---- folders ----
  std::shared_ptr<SimFolder> DefaultFolder(int32_t kind);
  std::shared_ptr<SimFolder> Calendar();
  std::shared_ptr<SimFolder> Tasks();
  std::shared_ptr<SimFolder> Inbox();
  std::shared_ptr<SimFolder> Root();
  std::shared_ptr<SimFolder> AddFolder(const std::shared_ptr<SimFolder>& parent, std::string name,
                                       int32_t defaultItemType);

  // ---- items (saved, with an EntryID; no events) ----
  std::shared_ptr<SimAppointment> AddAppointment(std::string subject, DateValue start,
                                                 DateValue end,
                                                 std::shared_ptr<SimFolder> folder = nullptr);
  // A series master; occurrences come from Occurrence.
  std::shared_ptr<SimAppointment> AddRecurringAppointment(
      std::string subject, DateValue start, DateValue end,
      std::shared_ptr<SimFolder> folder = nullptr);
  std::shared_ptr<SimAppointment> Occurrence(SimAppointment& series, DateValue start);
  std::shared_ptr<SimTask> AddTask(std::string subject, DateValue start = kNoneDate,
                                   DateValue due = kNoneDate,
                                   std::shared_ptr<SimFolder> folder = nullptr);
  std::shared_ptr<SimMail> AddMail(std::string subject,
                                   std::shared_ptr<SimFolder> folder = nullptr);
  // A change from outside (the user, a sync, the companion): sets the field,
  // stamps LastModificationTime and raises ItemChange.
  void ChangeItem(SimItem& item, std::string_view field, const Variant& value);
  // The companion writing a user property: sets it and raises ItemChange.
  void ChangeUserProperty(SimItem& item, std::string_view name, int32_t type, const Variant& value);
  std::shared_ptr<SimItem> FindItem(std::string_view entryId);
  // A new item as the user starts one: unsaved, no EntryID, in no folder.
  std::shared_ptr<SimItem> NewItem(int32_t itemType);

  // ---- categories ----
  std::shared_ptr<SimCategory> AddCategory(std::string name, int32_t color);
  std::shared_ptr<SimCategory> FindCategory(std::string_view name);

  // ---- windows, as the user works them ----
  std::shared_ptr<SimExplorer> OpenExplorer(std::shared_ptr<SimFolder> folder);
  std::shared_ptr<SimInspector> OpenInspector(std::shared_ptr<SimItem> item);
  std::shared_ptr<SimExplorer> ActiveExplorer();
  std::shared_ptr<SimInspector> ActiveInspector();
  std::vector<std::shared_ptr<SimExplorer>> Explorers();
  std::vector<std::shared_ptr<SimInspector>> Inspectors();
  void Select(SimExplorer& explorer, std::vector<std::shared_ptr<SimItem>> items);
  bool SwitchFolder(SimExplorer& explorer, std::shared_ptr<SimFolder> folder);
  void Activate(SimWindow& window);
  void Close(SimWindow& window);
  void Quit();
  // The host exits and starts again with the same windows: temporary command
  // bars and controls are gone, what was added without Temporary stays.
  void Restart();

  // ---- fault injection by path from the Application ----
  // "ActiveExplorer.CurrentFolder", "Session.GetDefaultFolder(9).Items",
  // "Explorers.Item(2)"; "" is the Application. No faults fire and nothing is
  // counted on the way. Throws Failure if the path doesn't lead to an object.
  std::shared_ptr<SimObject> Resolve(std::string_view path);
  // The last segment is the member: FailAt("ActiveExplorer.Selection", ...)
  // makes Selection of the active explorer fail.
  void FailAt(std::string_view memberPath, int32_t number, std::string description,
              int times = kAlways);
  // The member's next call fails, and that one only: what was set on the
  // member before goes, so that failures set often do not pile up.
  void FailNextCallOnly(std::string_view memberPath, int32_t number, std::string description);

 private:
  std::shared_ptr<SimFolder> FolderOr(std::shared_ptr<SimFolder> folder, int32_t kind);

  ContextPtr context_;
  std::shared_ptr<SimApplication> app_;
  DateValue now_;
};

}  // namespace qvx::sim
