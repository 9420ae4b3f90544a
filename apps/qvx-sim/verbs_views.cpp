// view add / edit, views load, expect views / current-view / view /
// view-headings / view-filter / folder-fields / items-made, show views: the
// views of a folder, what their documents show, and the fields they need.
#include <ostream>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "sim/documents/view_document.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/views.h"
#include "state/addin_state.h"
#include "views/view_names.h"
#include "views/view_provisioning.h"

namespace qvx::scenario {
namespace {

std::shared_ptr<sim::SimView> ViewNamed(World& w, const std::string& folder,
                                        const std::string& name) {
  auto view = FolderNamed(w, folder)->views().Find(name);
  if (!view) throw ExpectationFailed("a view \"" + name + "\" in " + folder, "none");
  return view;
}

sim::ViewElement DocumentOf(const sim::SimView& view) {
  auto doc = sim::ParseViewDocument(view.xml());
  if (!doc) throw ExpectationFailed("a view document", Shown(view.xml()));
  return *doc;
}

// The user-property namespace and the quotes around a property, as scripts
// leave them out.
std::string Unqualified(std::string_view text) {
  return Replace(
      Replace(text,
              "http://schemas.microsoft.com/mapi/string/{00020329-0000-0000-C000-000000000046}/",
              ""),
      "\"", "");
}

std::vector<std::string> HeadingsOf(const sim::ViewElement& doc) {
  std::vector<std::string> headings;
  for (const auto* column : doc.Children("column")) {
    if (!column->Child("name")) headings.push_back(column->ChildText("heading"));
  }
  return headings;
}

void AddUserVerbs(VerbTable& table) {
  table.Add("view add", "view add FOLDER NAME [calendar]",
            "the user makes a view of their own in the folder (a table unless told)",
            [](World& w, const Args& a) {
              a.Expect(2, 3);
              const int32_t type = a.Is(2, "calendar") ? host::olCalendarView : host::olTableView;
              FolderNamed(w, a.At(0))->views().Add(a.At(1), type, 0);
            });
  table.AddExact("view edit", "view edit FOLDER NAME TEXT",
                 "the user changes the view by hand: its document becomes TEXT", 3,
                 [](World& w, const Args& a) { ViewNamed(w, a.At(0), a.At(1))->SetXml(a.At(2)); });
  table.Add("views load", "views load NAME",
            "the add-in provisions and applies the catalogue view NAME (placeholders allowed) "
            "in the active explorer's folder, as a click on its button does; reaches past the "
            "user's side",
            [](World& w, const Args& a) {
              a.Expect(1);
              if (!w.HasAddin()) throw UsageError("the add-in has not been started");
              auto explorer = w.host().ActiveExplorer();
              if (!explorer || !explorer->folder()) throw UsageError("no explorer is open");
              AddinState& s = w.addin().state();
              const std::string name = GetActualViewName(s, a.At(0));
              LoadView(s, explorer->folder()->AsObject(), name, GetViewResName(s, name));
            });
}

void AddExpectVerbs(VerbTable& table) {
  table.Add("expect views", "expect views FOLDER [NAME...]",
            "the folder's views, in the host's order", [](World& w, const Args& a) {
              a.Expect(1, 100);
              std::vector<std::string> names;
              for (const auto& v : FolderNamed(w, a.At(0))->views().list()) {
                names.push_back(v->name());
              }
              ExpectWords(Rest(a, 1), names);
            });
  table.Add("expect current-view", "expect current-view FOLDER NAME",
            "the view the folder shows (the last applied)", [](World& w, const Args& a) {
              a.Expect(2);
              auto current = FolderNamed(w, a.At(0))->views().current();
              ExpectEqual(a.At(1), current ? current->name() : "");
            });
  table.Add("expect view", "expect view FOLDER NAME FIELD VALUE",
            "one thing of a view: `type` (table or calendar), `saves`, `applies`, `viewname` "
            "(its document's own name)",
            [](World& w, const Args& a) {
              a.Expect(4);
              const auto view = ViewNamed(w, a.At(0), a.At(1));
              switch (a.Choice(2, {"type", "saves", "applies", "viewname"})) {
                case 0:
                  ExpectEqual(a.At(3),
                              view->viewType() == host::olCalendarView ? "calendar" : "table");
                  break;
                case 1:
                  ExpectEqual(a.At(3), std::to_string(view->saves()));
                  break;
                case 2:
                  ExpectEqual(a.At(3), std::to_string(view->applies()));
                  break;
                default:
                  ExpectEqual(a.At(3), DocumentOf(*view).ChildText("viewname"));
              }
            });
  table.Add("expect view-headings", "expect view-headings FOLDER NAME [HEADING...]",
            "the column headings of the view's document, in order (the check-box column "
            "without a heading is left out)",
            [](World& w, const Args& a) {
              a.Expect(2, 100);
              ExpectWords(Rest(a, 2), HeadingsOf(DocumentOf(*ViewNamed(w, a.At(0), a.At(1)))));
            });
  table.Add("expect view-filter", "expect view-filter FOLDER NAME TEXT",
            "the view document's filter, user properties by their names alone and without "
            "quotes (`ReportedID IS NULL`); \"\" for none",
            [](World& w, const Args& a) {
              a.Expect(3);
              const auto doc = DocumentOf(*ViewNamed(w, a.At(0), a.At(1)));
              const sim::ViewElement* filter = doc.Child("filter");
              ExpectEqual(a.At(2), filter ? Unqualified(filter->text) : "");
            });
  table.Add("expect folder-fields", "expect folder-fields FOLDER [NAME...]",
            "the folder's field list (what UserProperties.Add(..., True) entered), in order",
            [](World& w, const Args& a) {
              a.Expect(1, 100);
              std::vector<std::string> names;
              for (const auto& f : FolderNamed(w, a.At(0))->fields()) names.push_back(f.name);
              ExpectWords(Rest(a, 1), names);
            });
  table.Add("expect items-made", "expect items-made FOLDER COUNT",
            "how many items were made in the folder by Items.Add, kept or deleted",
            [](World& w, const Args& a) {
              a.Expect(2);
              ExpectEqual(a.At(1), std::to_string(FolderNamed(w, a.At(0))->itemsMade()));
            });
}

}  // namespace

void RegisterViewVerbs(VerbTable& table) {
  AddUserVerbs(table);
  AddExpectVerbs(table);
  table.Add("show views", "show views FOLDER",
            "prints the folder's views: the one shown marked *, and of each document its "
            "filter and column headings",
            [](World& w, const Args& a) {
              a.Expect(1);
              if (w.out == nullptr) throw UsageError("no output");
              const auto folder = FolderNamed(w, a.At(0));
              for (const auto& view : folder->views().list()) {
                *w.out << (view == folder->views().current() ? "  * " : "    ") << view->name()
                       << "\n";
                const auto doc = sim::ParseViewDocument(view->xml());
                if (!doc) continue;
                if (const sim::ViewElement* filter = doc->Child("filter")) {
                  *w.out << "      filter " << Unqualified(filter->text) << "\n";
                }
                const std::vector<std::string> headings = HeadingsOf(*doc);
                if (!headings.empty()) *w.out << "      columns " << Joined(headings) << "\n";
              }
            });
}

}  // namespace qvx::scenario
