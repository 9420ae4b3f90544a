// folder add, item appointment / task / series / property / set / delete,
// explorer open / select / select-occurrence, inspector open, expect selection:
// the items a user works on and how they come to be selected.
#include <algorithm>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "core/dates.h"
#include "sim/appointment.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/items.h"
#include "sim/task_item.h"
#include "sim/user_properties.h"

namespace qvx::scenario {
namespace {

constexpr int32_t kTextProperty = 1;  // olText

std::shared_ptr<sim::SimFolder> FindFolder(const std::shared_ptr<sim::SimFolder>& root,
                                           const std::string& name) {
  if (root->name() == name) return root;
  for (const auto& child : root->folders().list()) {
    if (auto found = FindFolder(child, name)) return found;
  }
  return nullptr;
}

void CollectItems(const std::shared_ptr<sim::SimFolder>& folder,
                  std::vector<std::shared_ptr<sim::SimItem>>& out) {
  for (const auto& item : folder->items().list()) out.push_back(item);
  for (const auto& child : folder->folders().list()) CollectItems(child, out);
}

DateValue DateWord(const Args& a, size_t i) {
  std::string text = a.At(i);
  if (text == "none") return kNoneDate;
  std::replace(text.begin(), text.end(), 'T', ' ');
  DateValue date;
  if (!TextToDate(text, date)) throw UsageError("\"" + a.At(i) + "\" is not a date");
  return date;
}

// The trailing "in FOLDER" and "id ENTRYID" of the item verbs, from word `from` on.
struct Placement {
  std::shared_ptr<sim::SimFolder> folder;
  std::string entryId;
};

Placement PlacementOf(World& w, const Args& a, size_t from) {
  Placement p;
  for (size_t i = from; i < a.size(); i += 2) {
    if (a.Is(i, "in")) {
      p.folder = FolderNamed(w, a.At(i + 1));
    } else if (a.Is(i, "id")) {
      p.entryId = a.At(i + 1);
    } else {
      throw UsageError("expected \"in FOLDER\" or \"id ENTRYID\", not \"" + a.At(i) + "\"");
    }
  }
  return p;
}

void Identify(sim::SimItem& item, const Placement& p) {
  if (!p.entryId.empty()) item.SetField("EntryID", p.entryId);
}

// A word as a field value: a whole number as a Long, anything else as text.
Variant FieldValue(const std::string& word) {
  char* end = nullptr;
  const long number = std::strtol(word.c_str(), &end, 10);
  if (!word.empty() && *end == '\0') return Variant(static_cast<int32_t>(number));
  return Variant(word);
}

void AddItemVerbs(VerbTable& table) {
  table.Add("item appointment", "item appointment SUBJECT START END [in FOLDER] [id ENTRYID]",
            "a saved appointment (dates \"2026-03-02 09:00\"), in the calendar unless told",
            [](World& w, const Args& a) {
              a.Expect(3, 7);
              const Placement p = PlacementOf(w, a, 3);
              auto item =
                  w.host().AddAppointment(a.At(0), DateWord(a, 1), DateWord(a, 2), p.folder);
              Identify(*item, p);
            });
  table.Add("item task", "item task SUBJECT START|none DUE|none [in FOLDER] [id ENTRYID]",
            "a saved task, in the tasks folder unless told", [](World& w, const Args& a) {
              a.Expect(3, 7);
              const Placement p = PlacementOf(w, a, 3);
              auto item = w.host().AddTask(a.At(0), DateWord(a, 1), DateWord(a, 2), p.folder);
              Identify(*item, p);
            });
  table.Add("item series", "item series SUBJECT START END [in FOLDER] [id ENTRYID]",
            "a recurring appointment's series; its occurrences share its EntryID",
            [](World& w, const Args& a) {
              a.Expect(3, 7);
              const Placement p = PlacementOf(w, a, 3);
              auto series = w.host().AddRecurringAppointment(a.At(0), DateWord(a, 1),
                                                             DateWord(a, 2), p.folder);
              Identify(*series, p);
            });
  table.Add("item property", "item property SUBJECT NAME VALUE",
            "a text user property on the item (ProjectValue, ReportedID ...), without events",
            [](World& w, const Args& a) {
              a.Expect(3);
              ItemNamed(w, a.At(0))->UserProperties().Set(a.At(1), kTextProperty, Variant(a.At(2)));
            });
  table.Add("item set", "item set SUBJECT FIELD VALUE",
            "a field of the item (Sensitivity 2 is private), without events",
            [](World& w, const Args& a) {
              a.Expect(3);
              ItemNamed(w, a.At(0))->SetField(a.At(1), FieldValue(a.At(2)));
            });
  table.Add("item complete", "item complete SUBJECT",
            "the user marks the task complete and it is saved, at the machine's present time",
            [](World& w, const Args& a) {
              a.Expect(1);
              auto item = ItemNamed(w, a.At(0));
              const DateValue hostNow = w.host().Now();
              w.host().SetNow(w.system().Now());
              item->AsObject().Call("MarkComplete");
              item->AsObject().Call("Save");
              w.host().SetNow(hostNow);
            });
  table.Add("item delete", "item delete SUBJECT",
            "the item goes (moved or deleted elsewhere); handles to it fail from then on",
            [](World& w, const Args& a) {
              a.Expect(1);
              ItemNamed(w, a.At(0))->Delete();
            });
}

void AddWindowVerbs(VerbTable& table) {
  table.Add("folder add", "folder add NAME calendar|tasks [PARENT]",
            "a folder of appointments or tasks, under PARENT (the mailbox unless told)",
            [](World& w, const Args& a) {
              a.Expect(2, 3);
              const int32_t type = a.Choice(1, {"calendar", "tasks"}) == 0 ? 1 : 3;
              auto parent = a.size() > 2 ? FolderNamed(w, a.At(2)) : w.host().Root();
              w.host().AddFolder(parent, a.At(0), type);
            });
  table.Add("explorer open", "explorer open FOLDER",
            "the user opens an explorer on a folder: calendar, tasks, inbox or one by name",
            [](World& w, const Args& a) {
              a.Expect(1);
              w.host().OpenExplorer(FolderNamed(w, a.At(0)));
            });
  table.Add("explorer switch", "explorer switch FOLDER",
            "the user shows another folder in the active explorer; its first item is selected",
            [](World& w, const Args& a) {
              a.Expect(1);
              auto explorer = w.host().ActiveExplorer();
              if (!explorer) throw UsageError("no explorer is open");
              w.host().SwitchFolder(*explorer, FolderNamed(w, a.At(0)));
            });
  table.Add("explorer select", "explorer select [SUBJECT...]",
            "the user selects these items in the active explorer (none: an empty selection)",
            [](World& w, const Args& a) {
              auto explorer = w.host().ActiveExplorer();
              if (!explorer) throw UsageError("no explorer is open");
              std::vector<std::shared_ptr<sim::SimItem>> items;
              for (size_t i = 0; i < a.size(); ++i) items.push_back(ItemNamed(w, a.At(i)));
              w.host().Select(*explorer, std::move(items));
            });
  table.Add("explorer select-occurrence", "explorer select-occurrence SUBJECT START",
            "the user selects the occurrence of a series that starts at START",
            [](World& w, const Args& a) {
              a.Expect(2);
              auto explorer = w.host().ActiveExplorer();
              if (!explorer) throw UsageError("no explorer is open");
              auto series = std::dynamic_pointer_cast<sim::SimAppointment>(ItemNamed(w, a.At(0)));
              if (!series || series->Field("RecurrenceState").ToLong() != host::olApptMaster) {
                throw UsageError("\"" + a.At(0) + "\" is no series");
              }
              w.host().Select(*explorer, {w.host().Occurrence(*series, DateWord(a, 1))});
            });
  table.Add("inspector open", "inspector open SUBJECT", "the user opens the item in an inspector",
            [](World& w, const Args& a) {
              a.Expect(1);
              w.host().OpenInspector(ItemNamed(w, a.At(0)));
            });
  table.Add("expect selection", "expect selection [SUBJECT...]",
            "the subjects selected in the active explorer, in order", [](World& w, const Args& a) {
              auto explorer = w.host().ActiveExplorer();
              if (!explorer) throw ExpectationFailed("an explorer", "(no explorer)");
              std::string expected;
              std::string seen;
              for (size_t i = 0; i < a.size(); ++i) expected += (i ? ", " : "") + a.At(i);
              for (const auto& item : explorer->selected()) {
                seen += (seen.empty() ? "" : ", ") + item->Subject();
              }
              ExpectEqual(expected, seen);
            });
}

}  // namespace

std::shared_ptr<sim::SimFolder> FolderNamed(World& w, const std::string& name) {
  if (name == "calendar") return w.host().Calendar();
  if (name == "tasks") return w.host().Tasks();
  if (name == "inbox") return w.host().Inbox();
  auto folder = FindFolder(w.host().Root(), name);
  if (!folder) throw UsageError("no folder named \"" + name + "\"");
  return folder;
}

std::shared_ptr<sim::SimItem> ItemNamed(World& w, const std::string& subject) {
  std::vector<std::shared_ptr<sim::SimItem>> items;
  if (auto explorer = w.host().ActiveExplorer(); explorer && explorer->folder()) {
    items = explorer->folder()->items().list();
  }
  CollectItems(w.host().Root(), items);
  for (const auto& item : items) {
    if (item->Subject() == subject) return item;
  }
  throw UsageError("no item with the subject \"" + subject + "\"");
}

void RegisterSelectionVerbs(VerbTable& table) {
  AddItemVerbs(table);
  AddWindowVerbs(table);
}

}  // namespace qvx::scenario
