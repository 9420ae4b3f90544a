// The customUI documents: which ribbon id gets which document, the exact
// text of the fragments, and the ids each context carries.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "ribbon/custom_ui.h"
#include "ribbon/explorer_markup.h"
#include "ribbon/inspector_markup.h"
#include "ribbon/ribbon_callbacks.h"
#include "settings/my_settings.h"
#include "unit/ribbon/ribbon_documents.h"
#include "unit/ribbon/ribbon_test_util.h"

namespace qvx::testing {
namespace {

using scenario::World;

constexpr const char* kSuffixes[] = {
    "Cal", "CalTable", "Task", "Appointment", "RecurringAppointment", "TaskList", "TaskDaily"};

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

class RibbonDocumentMarkup : public ::testing::Test {
 protected:
  AddinState& s() { return world.addin().state(); }
  World world;
};

TEST_F(RibbonDocumentMarkup, TheRibbonIdChoosesTheDocument) {
  ConnectAddin(world);
  const std::string explorer = world.addin().GetCustomUI("Microsoft.Outlook.Explorer");
  const std::string appointment = world.addin().GetCustomUI("Microsoft.Outlook.Appointment");
  EXPECT_TRUE(explorer.starts_with(
      "<customUI xmlns=\"http://schemas.microsoft.com/office/2009/07/customui\" "
      "onLoad=\"OnLoad\"><ribbon><tabs>"));
  EXPECT_TRUE(
      Contains(appointment, "<tab idMso=\"TabAppointment\"><group id=\"KRPAppointmentInspector\""));
  // A meeting request shows the appointment's groups; the task's document is
  // in TheTaskInspectorDocumentIsExact.
  EXPECT_EQ(world.addin().GetCustomUI("Microsoft.Outlook.MeetingRequest.Read"), appointment);
  // Every other id, however near, gets no ribbon and no complaint.
  for (const char* id : {"Microsoft.Outlook.Mail.Read", "Microsoft.Outlook.Mail.Compose",
                         "Microsoft.Outlook.Contact", "Microsoft.Outlook.MeetingRequest.Send",
                         "microsoft.outlook.explorer", "Microsoft.Outlook.Explorer ", "",
                         "Microsoft.Outlook.Tasks"}) {
    SCOPED_TRACE(id);
    EXPECT_EQ(world.addin().GetCustomUI(id), "");
  }
  EXPECT_TRUE(world.ui().MessageBoxes().empty());
  EXPECT_TRUE(ErrorReports(world).empty());
  EXPECT_FALSE(s().err.pending());
}

TEST_F(RibbonDocumentMarkup, AnUnknownBuildContextIsShownAndAnswersNothing) {
  ConnectAddin(world);
  EXPECT_EQ(fncBuildUI(s(), "Mail"), "");
  ASSERT_EQ(world.ui().MessageBoxes().size(), 1u);
  EXPECT_EQ(world.ui().MessageBoxes()[0].text, "Mail");
  EXPECT_EQ(world.ui().MessageBoxes()[0].title, "Quorvix Client Addin");
}

// The inspector document, whole, as the host has always been given it.
TEST_F(RibbonDocumentMarkup, TheTaskInspectorDocumentIsExact) {
  world.registry().SetString(scenario::kSettingsKey, "CustomFieldsTitle", "Billing");
  ConnectAddin(world);
  const std::string drop =
      "getItemLabel=\"GetItemLabel\" getItemCount=\"GetItemCount\"  getLabel=\"getLabel\" "
      "sizeString=\"AAAAAAAAAAAAAAAAAAAA\" onAction=\"OnActionDropDown\" "
      "getSelectedItemIndex=\"GetSelectedItemIndex\"   getEnabled=\"GetEnabled\"/>";
  std::string fields;
  for (const char* n : {"1", "2", "3", "4"}) {
    fields += std::string("<dropDown id=\"cboField") + n + "\" getVisible=\"GetCustomField" + n +
              "Visibility\" getItemLabel=\"GetItemLabel\" getItemCount=\"GetItemCount\" "
              "getLabel=\"getLabel\" sizeString=\"AAAAAAAAAAAAAAAAAAAA\" "
              "onAction=\"OnActionDropDown\" getSelectedItemIndex=\"GetSelectedItemIndex\" "
              "getEnabled=\"GetEnabled\"/>";
  }
  const std::string expected =
      "<customUI xmlns=\"http://schemas.microsoft.com/office/2006/01/customui\" "
      "onLoad=\"OnLoad\" loadImage=\"getImages\"><ribbon><tabs><tab idMso=\"TabTask\">"
      "<group id=\"KRPTaskInspector\" label=\"Quorvix\" getVisible=\"GetGroupVisibility\" "
      "insertBeforeMso=\"GroupActions\"><box id=\"box1\"  boxStyle=\"vertical\">"
      "<dropDown id=\"cboProject\" " +
      drop + "<dropDown id=\"cboTask\" " + drop +
      "<button id=\"cmdStaticFields\" size=\"normal\" label=\"All Project Fields...\" "
      "onAction=\"SubExecuteAction\" imageMso=\"GroupVirtualListActions\"/></box>"
      "<button id=\"cmdReport\" getVisible=\"GetReportButtonVisibleInspector\" size=\"large\" "
      "getLabel=\"GetLabel\" onAction=\"SubExecuteAction\" imageMso=\"GanttDataImport\"/>"
      "<button id=\"cmdWithdrawReport\" getVisible=\"GetWithdrawButtonVisibleInspector\" "
      "size=\"large\" getLabel=\"GetLabel\" onAction=\"SubExecuteAction\" "
      "imageMso=\"GanttDataExport\"/></group>"
      "<group label=\"Quorvix - Billing\" id=\"KRPInspectorCustomFieldsGroupTask\" "
      "getVisible=\"ShowCustomFields\" insertBeforeMso=\"GroupActions\">" +
      fields + "</group> </tab></tabs></ribbon></customUI>";
  EXPECT_EQ(world.addin().GetCustomUI("Microsoft.Outlook.Task"), expected);
}

// Only a host of major version 12 shows the add-in's own pictures (version 16
// is in the exact document above).
TEST_F(RibbonDocumentMarkup, TheInspectorsImagesFollowTheHostVersion) {
  struct Row {
    const char* version;
    const char* report;
    const char* withdraw;
    const char* fields;
  };
  for (const Row& row : {
           Row{"12.0.6425.1000", "image=\"Report\"", "image=\"Withdraw\"",
               "imageMso=\"ViewsFormView\""},
           Row{"11.0.5510", "imageMso=\"GanttDataImport\"", "imageMso=\"GanttDataExport\"",
               "imageMso=\"GroupVirtualListActions\""},
       }) {
    SCOPED_TRACE(row.version);
    World w;
    ConnectAddin(w, row.version);
    const std::string ui = GetInspectorRibbonUI(w.addin().state());
    EXPECT_TRUE(Contains(ui, "onAction=\"SubExecuteAction\" " + std::string(row.report) + "/>"));
    EXPECT_TRUE(Contains(ui, "onAction=\"SubExecuteAction\" " + std::string(row.withdraw) + "/>"));
    EXPECT_TRUE(Contains(ui, "onAction=\"SubExecuteAction\" " + std::string(row.fields) + "/>"));
    // The picture hook is in every inspector document, used or not.
    EXPECT_TRUE(Contains(w.addin().GetCustomUI("Microsoft.Outlook.Appointment"),
                         "onLoad=\"OnLoad\" loadImage=\"getImages\">"));
  }
}

// Each explorer id family holds each of the seven suffixes exactly once; the
// context menu entries exist for the calendar and the task list only.
TEST_F(RibbonDocumentMarkup, TheExplorerDocumentHoldsEachContextOncePerFamily) {
  ConnectAddin(world);
  const auto tree =
      sim::ParseRibbonMarkup(world.addin().GetCustomUI("Microsoft.Outlook.Explorer"), "customUI");
  ASSERT_TRUE(tree.has_value());
  std::vector<std::string> ids;
  CollectIds(*tree, ids);
  // The plain sync id is the backstage task's; an id given twice is refused
  // by the host (RibbonDocuments.EveryDocumentIsAcceptedOrEmptyForWantOfSettings).
  const auto count = [&](const std::string& id) { return std::count(ids.begin(), ids.end(), id); };
  for (const char* stem :
       {"box1", "cboProject", "cboTask", "cboField1", "cboField2", "cboField3", "cboField4",
        "cmdReport", "cmdWithdrawReport", "cmdStaticFields", "dnViews", "sep1000",
        "cmdSyncProjectSettings", "cmdKRPGap1", "cmdContextReport", "cmdContextWithdrawReport"}) {
    const bool menuEntry = std::string_view(stem).starts_with("cmdKRP") ||
                           std::string_view(stem).starts_with("cmdContext");
    for (const char* suffix : kSuffixes) {
      const bool inMenus = std::string(suffix) == "Cal" || std::string(suffix) == "Task";
      EXPECT_EQ(count(std::string(stem) + suffix), !menuEntry || inMenus ? 1 : 0) << stem << suffix;
    }
    EXPECT_EQ(count(stem), std::string(stem) == "cmdSyncProjectSettings" ? 1 : 0) << stem;
  }
}

TEST_F(RibbonDocumentMarkup, ExplorerFragmentsAreExact) {
  ConnectAddin(world);
  const std::string explorer = world.addin().GetCustomUI("Microsoft.Outlook.Explorer");
  EXPECT_TRUE(Contains(explorer,
                       "<ribbon><tabs><tab idMso=\"TabCalendar\"><group label=\"Quorvix\" "
                       "id=\"KRPExplorerCalendar\" getVisible=\"GetGroupVisibility\" "
                       "insertBeforeMso=\"GroupCalendarNew\"><box id=\"box1Cal\"  "
                       "boxStyle=\"vertical\"><dropDown id=\"cboProjectCal\" "
                       "getVisible=\"GetVisible\" getItemLabel=\"GetItemLabel\""));
  // The recurring appointment's main group shows whenever its tab does.
  EXPECT_TRUE(Contains(explorer,
                       "<tabSet idMso=\"TabSetReccurringAppointment\"><tab "
                       "idMso=\"TabRecurringAppointment\"><group label=\"Quorvix\" "
                       "id=\"KRPExplorerRecurringAppointment\" "
                       "insertBeforeMso=\"GroupRecurringAppointmentActions\">"));
  EXPECT_TRUE(Contains(explorer,
                       "<group label=\"Quorvix - Custom Fields\" getVisible=\"ShowCustomFields\" "
                       "id=\"KRPCustomFieldsGroupTaskDaily\" insertBeforeMso=\"GroupTaskOpen\">"));
  EXPECT_TRUE(Contains(explorer,
                       "</contextualTabs></ribbon><backstage><tab "
                       "id=\"QuorvixClientMenuBackStage\" label=\"Quorvix Client\" "
                       "insertAfterMso=\"TabHelp\">"));
  EXPECT_TRUE(Contains(explorer,
                       "<task id=\"cmdMyProjectsTasks\" label=\"My Project and Activity Lists\" "
                       "imageMso=\"ManageGlobalTemplate\" isDefinitive=\"false\" "
                       "onAction=\"SubExecuteAction\"/>"));
  EXPECT_TRUE(explorer.ends_with(
      "</tab></backstage><contextMenus><contextMenu idMso=\"ContextMenuCalendarItem\">" +
      GetContextMenuRibbonUI("Cal") + "</contextMenu><contextMenu idMso=\"ContextMenuTaskItem\">" +
      GetContextMenuRibbonUI("Task") + "</contextMenu></contextMenus></customUI>"));
  EXPECT_EQ(GetContextMenuRibbonUI("Task"),
            "<menuSeparator  id=\"cmdKRPGap1Task\"/><button id=\"cmdContextReportTask\" "
            "imageMso=\"GanttDataImport\" getVisible=\"GetReportButtonVisible\" "
            "getLabel=\"GetLabel\" onAction=\"SubExecuteAction\"/><button "
            "id=\"cmdContextWithdrawReportTask\" imageMso=\"GanttDataExport\" "
            "getVisible=\"GetWithdrawButtonVisible\" getLabel=\"GetLabel\" "
            "onAction=\"SubExecuteAction\"/>");
  const std::string common = GetCommonRibbonUI(s(), "Task");
  EXPECT_TRUE(Contains(common,
                       "<dynamicMenu id=\"dnViewsTask\"  label=\"Views\" "
                       "getContent=\"GetContentXML\" invalidateContentOnDrop=\"true\" "
                       "imageMso=\"WatchWindow\"/></box><button id=\"cmdReportTask\" "
                       "getVisible=\"GetReportButtonVisible\" size=\"large\""));
  EXPECT_TRUE(common.ends_with(
      "<separator id=\"sep1000Task\"/><button id=\"cmdWithdrawReportTask\" "
      "getVisible=\"GetWithdrawButtonVisible\" size=\"normal\" getLabel=\"GetLabel\" "
      "onAction=\"SubExecuteAction\" imageMso=\"GanttDataExport\"/><button "
      "id=\"cmdStaticFieldsTask\"  size=\"normal\" label=\"All Project Fields...\" "
      "onAction=\"SubExecuteAction\" imageMso=\"GroupVirtualListActions\" /><button "
      "id=\"cmdSyncProjectSettingsTask\" size=\"normal\" label=\"Sync Project Settings\" "
      "imageMso=\"ArrangeByRecurrence\" onAction=\"SubExecuteAction\"/>"));
  // Without a suffix there is no views menu.
  EXPECT_FALSE(Contains(GetCommonRibbonUI(s(), ""), "dynamicMenu"));
  EXPECT_TRUE(Contains(GetCommonRibbonUI(s(), ""), "<box id=\"box1\"  boxStyle=\"vertical\">"));
}

TEST_F(RibbonDocumentMarkup, TheCustomFieldsAnchorFollowsTheSuffix) {
  ConnectAddin(world);
  struct Row {
    const char* suffix;
    const char* anchor;
  };
  for (const Row& row :
       {Row{"Cal", "GroupCalendarNew"}, Row{"CalTable", "GroupCalendarNew"},
        Row{"Task", "GroupTasksNew"}, Row{"Appointment", "GroupAppointmentActions"},
        Row{"RecurringAppointment", "GroupRecurringAppointmentActions"},
        Row{"TaskList", "GroupTaskOpen"}, Row{"TaskDaily", "GroupTaskOpen"},
        Row{"", "GroupActions"}, Row{"cal", "GroupActions"}}) {
    SCOPED_TRACE(row.suffix);
    EXPECT_TRUE(GetCustomFieldsRibbonUI(s(), row.suffix)
                    .starts_with(std::string("<group label=\"Quorvix - Custom Fields\" "
                                             "getVisible=\"ShowCustomFields\" "
                                             "id=\"KRPCustomFieldsGroup") +
                                 row.suffix + "\" insertBeforeMso=\"" + row.anchor + "\">"));
  }
}

// Without settings the inspector keeps its main group and stays well formed;
// the explorer's backstage needs the titles, so its document fails whole and
// the failure is reported once, under the explorer's label.
TEST_F(RibbonDocumentMarkup, WithoutSettingsTheCustomFieldsGroupIsLeftOut) {
  ConnectAddin(world);
  s().main.objMySettings.reset();
  const std::string task = world.addin().GetCustomUI("Microsoft.Outlook.Task");
  EXPECT_TRUE(sim::ParseRibbonMarkup(task, "customUI").has_value());
  EXPECT_TRUE(Contains(task, "</group> </tab></tabs></ribbon></customUI>"));
  EXPECT_FALSE(Contains(task, "KRPInspectorCustomFieldsGroup"));
  EXPECT_EQ(GetCustomFieldsRibbonUI(s(), "Cal"), "");
  EXPECT_TRUE(ErrorReports(world).empty());
  EXPECT_EQ(world.addin().GetCustomUI("Microsoft.Outlook.Explorer"), "");
  const std::vector<std::string> reports = ErrorReports(world);
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_TRUE(Contains(reports[0], "Addin.ExplorerUI"));
  EXPECT_FALSE(s().err.pending());
}

// Nothing is escaped: a title with markup characters reaches the host as it
// stands, and a host that takes all or nothing then shows no add-in ribbon.
TEST_F(RibbonDocumentMarkup, ATitleIsBakedInUnescaped) {
  struct Row {
    const char* title;
    bool accepted;
  };
  for (const Row& row : {Row{"Billing & Hours", false}, Row{"a < b", false},
                         Row{"the \"big\" one", false}, Row{"it's > fine", true}}) {
    SCOPED_TRACE(row.title);
    World w;
    w.registry().SetString(scenario::kSettingsKey, "CustomFieldsTitle", row.title);
    ConnectAddin(w);
    for (const std::string& id : AnsweredRibbonIds()) {
      const std::string markup = w.addin().GetCustomUI(id);
      EXPECT_TRUE(Contains(markup, std::string("<group label=\"Quorvix - ") + row.title + "\""));
      EXPECT_EQ(sim::ParseRibbonMarkup(markup, "customUI").has_value(), row.accepted) << id;
    }
  }
}

// The title is read when the document is built: a later change shows only in
// the next document.
TEST_F(RibbonDocumentMarkup, TheTitleIsReadWhenTheDocumentIsBuilt) {
  ConnectAddin(world);
  const std::string before = world.addin().GetCustomUI("Microsoft.Outlook.Appointment");
  s().main.Settings().CustomFieldsTitle = "Later";
  EXPECT_TRUE(Contains(before, "label=\"Quorvix - Custom Fields\""));
  EXPECT_TRUE(Contains(world.addin().GetCustomUI("Microsoft.Outlook.Appointment"),
                       "label=\"Quorvix - Later\""));
}

// The documents of every case are accepted by the host as they are.
TEST(RibbonDocuments, EveryDocumentIsAcceptedOrEmptyForWantOfSettings) {
  for (const RibbonDocument& d : EveryRibbonDocument()) {
    SCOPED_TRACE(d.name);
    if (d.markup.empty()) {
      EXPECT_TRUE(d.name.starts_with("no-settings-"));
      EXPECT_EQ(d.ribbonId, "Microsoft.Outlook.Explorer");
      continue;
    }
    EXPECT_TRUE(sim::ParseRibbonMarkup(d.markup, "customUI").has_value());
  }
}

}  // namespace
}  // namespace qvx::testing

namespace qvx::testing {
namespace {

void CollectCallbacks(const sim::MarkupElement& e, std::set<std::string>& names) {
  for (const auto& [attribute, value] : e.attributes) {
    const bool bindsCallback = attribute == "onLoad" || attribute == "loadImage" ||
                               attribute == "onAction" || attribute.starts_with("get");
    if (bindsCallback) names.insert(value);
  }
  for (const sim::MarkupElement& child : e.children) CollectCallbacks(child, names);
}

// Every name the documents and the views menus bind is a callback of the
// add-in's.
TEST(RibbonDocuments, EveryBoundCallbackIsInTheTable) {
  std::set<std::string> missing;
  size_t bound = 0;
  const auto collect = [&](const std::vector<RibbonDocument>& documents, std::string_view root) {
    for (const RibbonDocument& d : documents) {
      const auto tree = sim::ParseRibbonMarkup(d.markup, root);
      if (!tree) continue;
      std::set<std::string> names;
      CollectCallbacks(*tree, names);
      bound += names.size();
      for (const std::string& name : names) {
        if (!FindRibbonCallback(name)) missing.insert(name);
      }
    }
  };
  collect(EveryRibbonDocument(), "customUI");
  collect(EveryViewsMenuDocument(), "menu");
  EXPECT_GT(bound, 0u);
  EXPECT_EQ(missing, std::set<std::string>{});
}

// Each of the seven views menus holds what dnViewsCal holds (its entries,
// the prepared views under the titles of now, a line, then the folder's own
// views, are in views_menu.qvx), each entry tagged with its label; any other
// control gets an empty menu.
TEST(RibbonDocuments, EveryViewsMenuHoldsTheSameEntriesTaggedWithTheirLabels) {
  const std::vector<RibbonDocument> documents = EveryViewsMenuDocument();
  ASSERT_EQ(documents[0].ribbonId, "dnViewsCal");
  for (const RibbonDocument& d : documents) {
    SCOPED_TRACE(d.name);
    const auto menu = sim::ParseRibbonMarkup(d.markup, "menu");
    ASSERT_TRUE(menu.has_value());
    const bool viewsMenu = d.ribbonId.starts_with("dnViews");
    EXPECT_EQ(menu->children.size(), viewsMenu ? 16u : 0u);
    if (viewsMenu) {
      EXPECT_EQ(d.markup, documents[0].markup);
    }
    for (const sim::MarkupElement& e : menu->children) {
      const std::string* label = e.Attribute("label");
      const std::string* tag = e.Attribute("tag");
      EXPECT_EQ(tag ? *tag : "", label ? *label : "");
    }
  }
}

}  // namespace
}  // namespace qvx::testing
