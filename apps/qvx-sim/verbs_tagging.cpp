// tag project / activity / field / direct / shown-activity / colours,
// queue select / delete, category add, expect item-property / no-item-property /
// categories / item-date / saves / category / no-category / tagging /
// shown-activity, show item: writing tags on items, the re-entry between two items, and
// the project colours.
#include <ostream>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "core/dates.h"
#include "reporting/color_codes.h"
#include "reporting/tag_selection.h"
#include "reporting/tag_values.h"
#include "sim/categories.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/item.h"
#include "sim/items.h"
#include "sim/user_properties.h"
#include "state/addin_state.h"

namespace qvx::scenario {
namespace {

// "@selected" is the first item selected in the active explorer (an
// occurrence, say); anything else an item of that subject.
constexpr char kSelected[] = "@selected";

std::shared_ptr<sim::SimItem> Item(World& w, const std::string& subject) {
  if (subject == kSelected) {
    auto explorer = w.host().ActiveExplorer();
    if (!explorer || explorer->selected().empty()) throw UsageError("nothing is selected");
    return explorer->selected().front();
  }
  return ItemNamed(w, subject);
}

AddinState& State(World& w) {
  if (!w.HasAddin()) throw UsageError("the add-in has not been started");
  return w.addin().state();
}

std::string DateWord(const std::string& word) {
  if (word == "none") return DateToText(kNoneDate);
  std::string text = word;
  for (char& c : text) {
    if (c == 'T') c = ' ';
  }
  DateValue date;
  if (!TextToDate(text, date)) throw UsageError("\"" + word + "\" is not a date");
  return DateToText(date);
}

void AddTagVerbs(VerbTable& table) {
  table.Add("tag project", "tag project VALUE",
            "the user chooses a project on the ribbon for the current item or selection",
            [](World& w, const Args& a) {
              a.Expect(1);
              Main::TagProjectValueToItem(State(w), a.At(0));
            });
  table.Add("tag activity", "tag activity VALUE", "the user chooses an activity on the ribbon",
            [](World& w, const Args& a) {
              a.Expect(1);
              Main::TagTaskValueToItem(State(w), a.At(0));
            });
  table.Add("tag field", "tag field NUMBER VALUE",
            "the user chooses a value of custom list NUMBER (1 to 4) on the ribbon",
            [](World& w, const Args& a) {
              a.Expect(2);
              Main::TagCustomFieldValueToItem(State(w), static_cast<int16_t>(a.Int(0)), a.At(1));
            });
  table.Add("tag direct", "tag direct PROPERTY VALUE SHOWN",
            "a bar showing the item SHOWN (\"-\" for none) writes PROPERTY on what is selected",
            [](World& w, const Args& a) {
              a.Expect(3);
              const std::string shown = a.At(2) == "-" ? "" : Item(w, a.At(2))->EntryId();
              Actions::GetCurrentSelectedItem(State(w), a.At(0), a.At(1), shown);
            });
  table.Add("tag shown-activity", "tag shown-activity VALUE",
            "the activity the explorer's ribbon shows now (\"\" for none)",
            [](World& w, const Args& a) {
              a.Expect(1);
              State(w).ribbon.explorer.SELECTED_ACTIVITY_VALUE = a.At(0);
            });
  table.Add("tag colours", "tag colours", "loads the projects' colours into the categories",
            [](World& w, const Args& a) {
              a.Expect(0);
              LoadProjectColorCodesToOutlook(State(w));
            });
}

void AddHostVerbs(VerbTable& table) {
  table.Add("queue select", "queue select [SUBJECT...]",
            "a selection change that waits until the add-in lets messages through",
            [](World& w, const Args& a) {
              auto explorer = w.host().ActiveExplorer();
              if (!explorer) throw UsageError("no explorer is open");
              std::vector<std::shared_ptr<sim::SimItem>> items;
              for (size_t i = 0; i < a.size(); ++i) items.push_back(Item(w, a.At(i)));
              sim::Outlook& host = w.host();
              host.Pending().Post([&host, explorer, items] { host.Select(*explorer, items); });
            });
  table.Add("queue delete", "queue delete SUBJECT",
            "the item goes while the add-in lets messages through", [](World& w, const Args& a) {
              a.Expect(1);
              auto item = Item(w, a.At(0));
              w.host().Pending().Post([item] { item->Delete(); });
            });
  table.Add("category add", "category add NAME COLOUR",
            "a category in the session's master list (COLOUR as OlCategoryColor)",
            [](World& w, const Args& a) {
              a.Expect(2);
              w.host().AddCategory(a.At(0), a.Int(1));
            });
}

void AddExpectVerbs(VerbTable& table) {
  table.Add("expect item-property", "expect item-property SUBJECT NAME VALUE",
            "the item's user property as text (SUBJECT @selected: the first selected)",
            [](World& w, const Args& a) {
              a.Expect(3);
              auto property = Item(w, a.At(0))->UserProperties().Find(a.At(1));
              if (!property) throw ExpectationFailed(Shown(a.At(2)), "(no such property)");
              ExpectEqual(a.At(2), property->value().ToText());
            });
  table.Add("expect no-item-property", "expect no-item-property SUBJECT NAME",
            "the item has no user property of that name", [](World& w, const Args& a) {
              a.Expect(2);
              auto property = Item(w, a.At(0))->UserProperties().Find(a.At(1));
              if (property)
                throw ExpectationFailed("(no property)", Shown(property->value().ToText()));
            });
  table.Add("expect categories", "expect categories SUBJECT TEXT", "the item's Categories text",
            [](World& w, const Args& a) {
              a.Expect(2);
              ExpectEqual(a.At(1), Item(w, a.At(0))->Field("Categories").ToText());
            });
  table.Add("expect item-date", "expect item-date SUBJECT FIELD DATE",
            "a date field (Start, End, StartDate, DueDate): \"2026-03-02 09:00\" or none",
            [](World& w, const Args& a) {
              a.Expect(3);
              ExpectEqual(DateWord(a.At(2)), DateToText(Item(w, a.At(0))->Field(a.At(1)).ToDate()));
            });
  table.Add("expect saves", "expect saves SUBJECT COUNT",
            "how often the item was saved since it was made", [](World& w, const Args& a) {
              a.Expect(2);
              ExpectEqual(a.At(1), std::to_string(Item(w, a.At(0))->saveCount()));
            });
  table.Add("expect category", "expect category NAME COLOUR",
            "the master list holds the category in that colour", [](World& w, const Args& a) {
              a.Expect(2);
              auto category = w.host().FindCategory(a.At(0));
              if (!category) throw ExpectationFailed(a.At(1), "(no such category)");
              ExpectEqual(a.At(1), std::to_string(category->color()));
            });
  table.Add("expect no-category", "expect no-category NAME",
            "the master list has no category of that name", [](World& w, const Args& a) {
              a.Expect(1);
              if (auto category = w.host().FindCategory(a.At(0))) {
                throw ExpectationFailed("(no category)", std::to_string(category->color()));
              }
            });
  table.Add("expect tagging", "expect tagging in-progress|idle",
            "whether the add-in counts a project change as still being written",
            [](World& w, const Args& a) {
              a.Expect(1);
              a.Choice(0, {"in-progress", "idle"});
              ExpectEqual(a.At(0), State(w).tagging.blnTaggingInProgress ? "in-progress" : "idle");
            });
  table.Add("expect shown-activity", "expect shown-activity TEXT",
            "the activity the explorer's ribbon shows", [](World& w, const Args& a) {
              a.Expect(1);
              ExpectEqual(a.At(0), State(w).ribbon.explorer.SELECTED_ACTIVITY_VALUE);
            });
}

}  // namespace

void AddShowVerbs(VerbTable& table) {
  table.Add("show item", "show item SUBJECT",
            "prints the item's dates, categories and user properties", [](World& w, const Args& a) {
              a.Expect(1);
              if (w.out == nullptr) throw UsageError("no output");
              std::ostream& out = *w.out;
              const auto item = Item(w, a.At(0));
              out << "  item " << Shown(item->Subject()) << "\n";
              for (const char* field : {"Start", "End", "StartDate", "DueDate"}) {
                try {
                  const Variant date = item->Field(field);
                  if (date.IsEmpty()) continue;  // the other class's dates
                  out << "    " << field << " " << DateToText(date.ToDate()) << "\n";
                } catch (const Failure&) {
                  // Not a field of this class.
                }
              }
              out << "    Categories " << Shown(item->Field("Categories").ToText()) << "\n";
              for (const auto& property : item->UserProperties().list()) {
                out << "    " << property->name() << " " << Shown(property->value().ToText())
                    << "\n";
              }
            });
}

void RegisterTaggingVerbs(VerbTable& table) {
  AddTagVerbs(table);
  AddHostVerbs(table);
  AddExpectVerbs(table);
  AddShowVerbs(table);
}

}  // namespace qvx::scenario
