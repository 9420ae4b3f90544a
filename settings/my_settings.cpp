#include "settings/my_settings.h"

#include <string_view>
#include <vector>

#include "core/dates.h"
#include "core/text.h"
#include "core/trap.h"
#include "settings/registry_entry.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

constexpr std::string_view kApp = "QVX";
constexpr std::string_view kListDelimiter = "\r\n";

std::string Read(AddinState& s, std::string_view name, std::string_view fallback) {
  return modRegistryEntry::GetRegistrySetting(s, kApp, "", name, fallback);
}

void Write(AddinState& s, std::string_view name, std::string_view text) {
  modRegistryEntry::SaveRegistrySetting(s, kApp, "", name, text);
}

template <class T>
T& Require(const std::shared_ptr<T>& object) {
  if (!object) throw Failure::Runtime(err::kObjectNotSet);
  return *object;
}

}  // namespace

void cMySettings::ReadSettings(AddinState& s) {
  Trapped(s, "MySettings.ReadSettings", [&](Line& line) {
    const auto flag = [&](Line at, int16_t& member, std::string_view name, std::string_view def) {
      line = at;
      member = Variant(Read(s, name, def)).ToInteger();
    };
    const auto text = [&](Line at, std::string& member, std::string_view name) {
      line = at;
      member = Read(s, name, "");
    };
    // Trimmed, and a stored blank falls back (unlike the default values above).
    const auto title = [&](Line at, std::string& member, std::string_view name,
                           std::string_view def, std::string_view fallback) {
      line = at;
      member = std::string(Trim(Read(s, name, def)));
      if (member.empty()) member = fallback;
    };

    flag(10, UpdateStartDateWithProjectStartDate, "UpdateStartDateWithProjectStartDate", "0");
    flag(20, UpdateAppointmentEndDateWith, "UpdateAppointmentEndDateWith", "0");
    flag(30, UpdateTaskDueDateWith, "UpdateTaskDueDateWith", "0");
    flag(40, AppointmentEndDateFrom, "AppointmentEndDateFrom", "0");
    flag(50, TaskDueDateFrom, "TaskDueDateFrom", "0");
    flag(60, AllowManagerReview, "AllowManagerReview", "0");
    flag(70, UseDefaultCalendarFolderOnly, "UseDefaultCalendarFolderOnly", "0");
    flag(80, UseDefaultTaskFolderOnly, "UseDefaultTaskFolderOnly", "0");
    flag(90, AutoCheckForUpgradeAtStartup, "AutoCheckForUpgradeAtStartup", "0");
    flag(100, ShowConfirmationWhenSyncSuccess, "ShowConfirmationWhenSyncSuccess", "0");
    flag(110, AllowTaskItems, "AllowTaskItems", "0");
    flag(120, AllowAppointmentItems, "AllowAppointmentItems", "0");
    flag(130, AllowColorCodeChange, "AllowColorCodeChange", "0");
    flag(140, AllowUpdateToReportedData, "AllowUpdateToReportedData", "0");
    flag(150, AllowWithdrawalOfReportedData, "AllowWithdrawalOfReportedData", "0");
    flag(160, AutoSyncToDB, "AutoSyncToDB", "0");
    flag(170, showCustomFieldsToolbar, "showCustomFieldsToolbar", "1");
    flag(180, showProjectTaskToolbar, "showProjectTaskToolbar", "1");
    flag(190, TagTaskToCategories, "TagTaskToCategories", "0");
    flag(200, TagProjectToCategories, "TagProjectToCategories", "0");
    flag(210, TagCustomFieldsToCategories, "TagCustomFieldsToCategories", "0");
    flag(220, AddProjectColorCodes, "AddProjectColorCodes", "0");
    flag(230, AllowPrivate, "AllowPrivate", "1");
    flag(240, AllowRecurring, "AllowRecurring", "1");
    flag(250, ReportedItemsToSubFolder, "ReportedItemsToSubFolder", "0");
    flag(260, ReportIemsOnDueDateLapsedAutomatically, "ReportIemsOnDueDateLapsedAutomatically",
         "0");
    flag(270, ReportCompletedTaskItemsAutomatically, "ReportCompletedTaskItemsAutomatically", "0");
    flag(280, MarkCompleteForReportedTasks, "MarkCompleteForReportedTasks", "0");
    flag(290, AskForConfirmationBeforeReporting, "AskForConfirmationBeforeReporting", "1");
    flag(300, DontAllowMultipleItemsReporting, "DontAllowMultipleItemsReporting", "0");
    flag(310, DontAllowChangesToReportedItem, "DontAllowChangesToReportedItem", "0");
    flag(320, EnableDefaultValueForProjectTask, "EnableDefaultValueForProjectTask", "0");
    text(330, DefaultValueForProject, "DefaultValueForProject");
    text(340, DefaultValueForTask, "DefaultValueForTask");
    flag(350, EnableDefaultValueForCustomField1, "EnableDefaultValueForCustomField1", "0");
    text(360, DefaultValueCustomField1, "DefaultValueCustomField1");
    flag(370, EnableDefaultValueForCustomField2, "EnableDefaultValueForCustomField2", "0");
    text(380, DefaultValueCustomField2, "DefaultValueCustomField2");
    flag(390, EnableDefaultValueForCustomField3, "EnableDefaultValueForCustomField3", "0");
    text(400, DefaultValueCustomField3, "DefaultValueCustomField3");
    flag(410, EnableDefaultValueForCustomField4, "EnableDefaultValueForCustomField4", "0");
    text(420, DefaultValueCustomField4, "DefaultValueCustomField4");

    // Database values: a bad one is skipped, the rest still read.
    line = 430;
    IgnoreFailure(s.err, [&] { DatabaseInfo = Read(s, "DatabaseInfo", ""); });
    IgnoreFailure(s.err, [&] { ReadDatabaseInfo(s); });
    IgnoreFailure(s.err, [&] { DBChoice = Variant(Read(s, "DBChoice", "0")).ToLong(); });
    IgnoreFailure(s.err, [&] { DBConnectionString = Read(s, "DBConnectionString", ""); });
    IgnoreFailure(s.err, [&] {
      const std::string now = DateToText(s.system().Now());
      LastReported = Variant(Read(s, "LastReported", now)).ToDate();
    });
    s.err.Clear();

    title(440, ProjectTitle, "ProjectTitle", "", "Project");
    title(450, ActivityTitle, "ActivityTitle", "", "Activity");

    line = 460;
    ProjectsTasksList = Read(s, "MyProjectsTasks", "");
    line = 470;
    Require(MyProjectsTasks).FromString(s, ProjectsTasksList);
    line = 480;
    Projects = Require(MyProjectsTasks).GetProjectsList(s);

    // Not trimmed: a stored blank title stays blank.
    line = 490;
    CustomFieldsTitle = Read(s, "CustomFieldsTitle", "Custom Fields");
    if (CustomFieldsTitle.empty()) CustomFieldsTitle = "Custom Fields";

    title(500, CustomList1Name, "CustomList1Name", "Custom Field 1", "Custom Field 1");
    title(510, CustomList2Name, "CustomList2Name", "Custom Field 2", "Custom Field 2");
    title(520, CustomList3Name, "CustomList3Name", "Custom Field 3", "Custom Field 3");
    title(530, CustomList4Name, "CustomList4Name", "Custom Field 4", "Custom Field 4");
    title(540, CustomField5Name, "CustomField5Name", "Custom Field 5", "Custom Field 5");
    title(550, CustomField6Name, "CustomField6Name", "Custom Field 6", "Custom Field 6");
    title(560, CustomField7Name, "CustomField7Name", "Custom Field 7", "Custom Field 7");
    title(570, CustomField8Name, "CustomField8Name", "Custom Field 8", "Custom Field 8");
    title(580, CustomField9Name, "CustomField9Name", "Custom Field 9", "Custom Field 9");
    title(590, CustomField10Name, "CustomField10Name", "Custom Field 10", "Custom Field 10");

    line = 600;
    Require(CustomField1List).FromString(s, Read(s, "CustomField1List", ""), kListDelimiter);
    line = 610;
    Require(CustomField2List).FromString(s, Read(s, "CustomField2List", ""), kListDelimiter);
    line = 620;
    Require(CustomField3List).FromString(s, Read(s, "CustomField3List", ""), kListDelimiter);
    line = 630;
    Require(CustomField4List).FromString(s, Read(s, "CustomField4List", ""), kListDelimiter);

    flag(640, ProjectMandatory, "ProjectMandatory", "0");
    flag(650, ActivityMandatory, "ActivityMandatory", "0");
    flag(660, CustomList1Mandatory, "CustomList1Mandatory", "0");
    flag(670, CustomList2Mandatory, "CustomList2Mandatory", "0");
    flag(680, CustomList3Mandatory, "CustomList3Mandatory", "0");
    flag(690, CustomList4Mandatory, "CustomList4Mandatory", "0");
    flag(700, CustomField5Mandatory, "CustomField5Mandatory", "0");
    flag(710, CustomField6Mandatory, "CustomField6Mandatory", "0");
    flag(720, CustomField7Mandatory, "CustomField7Mandatory", "0");
    flag(730, CustomField8Mandatory, "CustomField8Mandatory", "0");
    flag(740, CustomField9Mandatory, "CustomField9Mandatory", "0");
    flag(750, CustomField10Mandatory, "CustomField10Mandatory", "0");
    flag(760, CustomList1Active, "CustomList1Active", "0");
    flag(770, CustomList2Active, "CustomList2Active", "0");
    flag(780, CustomList3Active, "CustomList3Active", "0");
    flag(790, CustomList4Active, "CustomList4Active", "0");
    flag(800, CustomField5Active, "CustomField5Active", "0");
    flag(810, CustomField6Active, "CustomField6Active", "0");
    flag(820, CustomField7Active, "CustomField7Active", "0");
    flag(830, CustomField8Active, "CustomField8Active", "0");
    flag(840, CustomField9Active, "CustomField9Active", "0");
    flag(850, CustomField10Active, "CustomField10Active", "0");
  });
}

void cMySettings::SaveSettings(AddinState& s) {
  Trapped(s, "MySettings.SaveSettings", [&](Line& line) {
    const auto flag = [&](Line at, std::string_view name, int16_t value) {
      line = at;
      Write(s, name, std::to_string(value));
    };
    const auto text = [&](Line at, std::string_view name, std::string_view value) {
      line = at;
      Write(s, name, value);
    };
    const auto list = [&](Line at, std::string_view name, const std::shared_ptr<cSingleList>& l) {
      line = at;
      Write(s, name, Require(l).ToString(s, kListDelimiter, false));
    };

    flag(10, "UpdateStartDateWithProjectStartDate", UpdateStartDateWithProjectStartDate);
    flag(20, "UpdateAppointmentEndDateWith", UpdateAppointmentEndDateWith);
    flag(30, "UpdateTaskDueDateWith", UpdateTaskDueDateWith);
    flag(40, "AppointmentEndDateFrom", AppointmentEndDateFrom);
    flag(50, "TaskDueDateFrom", TaskDueDateFrom);
    flag(60, "UseDefaultCalendarFolderOnly", UseDefaultCalendarFolderOnly);
    flag(70, "UseDefaultTaskFolderOnly", UseDefaultTaskFolderOnly);
    flag(80, "AllowTaskItems", AllowTaskItems);
    flag(90, "AllowAppointmentItems", AllowAppointmentItems);
    flag(100, "AllowColorCodeChange", AllowColorCodeChange);
    flag(110, "AllowUpdateToReportedData", AllowUpdateToReportedData);
    flag(120, "AllowWithdrawalOfReportedData", AllowWithdrawalOfReportedData);
    flag(130, "AutoCheckForUpgradeAtStartup", AutoCheckForUpgradeAtStartup);
    flag(140, "ShowConfirmationWhenSyncSuccess", ShowConfirmationWhenSyncSuccess);
    flag(150, "AllowPrivate", AllowPrivate);
    flag(160, "AllowRecurring", AllowRecurring);
    flag(170, "ReportedItemsToSubFolder", ReportedItemsToSubFolder);
    flag(180, "ReportIemsOnDueDateLapsedAutomatically", ReportIemsOnDueDateLapsedAutomatically);
    flag(190, "ReportCompletedTaskItemsAutomatically", ReportCompletedTaskItemsAutomatically);
    flag(200, "MarkCompleteForReportedTasks", MarkCompleteForReportedTasks);
    flag(210, "AskForConfirmationBeforeReporting", AskForConfirmationBeforeReporting);
    flag(220, "DontAllowMultipleItemsReporting", DontAllowMultipleItemsReporting);
    flag(230, "DontAllowChangesToReportedItem", DontAllowChangesToReportedItem);
    text(240, "DatabaseInfo", WriteDatabaseInfo(s));
    text(250, "DBConnectionString", DBConnectionString);
    text(260, "DBChoice", std::to_string(DBChoice));
    text(270, "LastReported", DateToText(LastReported));
    text(280, "ProjectTitle", ProjectTitle);
    text(290, "ActivityTitle", ActivityTitle);
    line = 300;
    ProjectsTasksList = Require(MyProjectsTasks).ToString(s);
    text(310, "MyProjectsTasks", ProjectsTasksList);
    text(320, "CustomFieldsTitle", CustomFieldsTitle);
    text(330, "CustomList1Name", CustomList1Name);
    text(340, "CustomList2Name", CustomList2Name);
    text(350, "CustomList3Name", CustomList3Name);
    text(360, "CustomList4Name", CustomList4Name);
    text(370, "CustomField5Name", CustomField5Name);
    text(380, "CustomField6Name", CustomField6Name);
    text(390, "CustomField7Name", CustomField7Name);
    text(400, "CustomField8Name", CustomField8Name);
    text(410, "CustomField9Name", CustomField9Name);
    text(420, "CustomField10Name", CustomField10Name);
    list(430, "CustomField1List", CustomField1List);
    list(440, "CustomField2List", CustomField2List);
    list(450, "CustomField3List", CustomField3List);
    list(460, "CustomField4List", CustomField4List);
    flag(470, "ProjectMandatory", ProjectMandatory);
    flag(480, "ActivityMandatory", ActivityMandatory);
    flag(490, "CustomList1Mandatory", CustomList1Mandatory);
    flag(500, "CustomList2Mandatory", CustomList2Mandatory);
    flag(510, "CustomList3Mandatory", CustomList3Mandatory);
    flag(520, "CustomList4Mandatory", CustomList4Mandatory);
    flag(530, "CustomField5Mandatory", CustomField5Mandatory);
    flag(540, "CustomField6Mandatory", CustomField6Mandatory);
    flag(550, "CustomField7Mandatory", CustomField7Mandatory);
    flag(560, "CustomField8Mandatory", CustomField8Mandatory);
    flag(570, "CustomField9Mandatory", CustomField9Mandatory);
    flag(580, "CustomField10Mandatory", CustomField10Mandatory);
    flag(590, "CustomList1Active", CustomList1Active);
    flag(600, "CustomList2Active", CustomList2Active);
    flag(610, "CustomList3Active", CustomList3Active);
    flag(620, "CustomList4Active", CustomList4Active);
    flag(630, "CustomField5Active", CustomField5Active);
    flag(640, "CustomField6Active", CustomField6Active);
    flag(650, "CustomField7Active", CustomField7Active);
    flag(660, "CustomField8Active", CustomField8Active);
    flag(670, "CustomField9Active", CustomField9Active);
    flag(680, "CustomField10Active", CustomField10Active);
    flag(690, "AutoSyncToDB", AutoSyncToDB);
    flag(700, "showCustomFieldsToolbar", showCustomFieldsToolbar);
    flag(710, "showProjectTaskToolbar", showProjectTaskToolbar);
    flag(720, "TagTaskToCategories", TagTaskToCategories);
    flag(730, "TagProjectToCategories", TagProjectToCategories);
    flag(740, "TagCustomFieldsToCategories", TagCustomFieldsToCategories);
    flag(750, "AddProjectColorCodes", AddProjectColorCodes);
    flag(760, "EnableDefaultValueForProjectTask", EnableDefaultValueForProjectTask);
    text(770, "DefaultValueForProject", DefaultValueForProject);
    text(780, "DefaultValueForTask", DefaultValueForTask);
    flag(790, "EnableDefaultValueForCustomField1", EnableDefaultValueForCustomField1);
    text(800, "DefaultValueCustomField1", DefaultValueCustomField1);
    flag(810, "EnableDefaultValueForCustomField2", EnableDefaultValueForCustomField2);
    text(820, "DefaultValueCustomField2", DefaultValueCustomField2);
    flag(830, "EnableDefaultValueForCustomField3", EnableDefaultValueForCustomField3);
    text(840, "DefaultValueCustomField3", DefaultValueCustomField3);
    flag(850, "EnableDefaultValueForCustomField4", EnableDefaultValueForCustomField4);
    text(860, "DefaultValueCustomField4", DefaultValueCustomField4);
  });
}

void cMySettings::SaveAdminSettingsOnly(AddinState& s) {
  Trapped(s, "MySettings.SaveAdminSettingsOnly", [&](Line& line) {
    const auto text = [&](Line at, std::string_view name, std::string_view value) {
      line = at;
      Write(s, name, value);
    };
    text(10, "ProjectTitle", ProjectTitle);
    text(20, "ActivityTitle", ActivityTitle);
    text(30, "CustomList1Name", CustomList1Name);
    text(40, "CustomList2Name", CustomList2Name);
    text(50, "CustomList3Name", CustomList3Name);
    text(60, "CustomList4Name", CustomList4Name);
    text(70, "CustomField5Name", CustomField5Name);
    text(80, "CustomField6Name", CustomField6Name);
    text(90, "CustomField7Name", CustomField7Name);
    text(100, "CustomField8Name", CustomField8Name);
    text(110, "CustomField9Name", CustomField9Name);
    text(120, "CustomField10Name", CustomField10Name);
    text(130, "AllowManagerReview", std::to_string(AllowManagerReview));
    text(140, "AllowAppointmentItems", std::to_string(AllowAppointmentItems));
    text(150, "AllowTaskItems", std::to_string(AllowTaskItems));
  });
}

void cMySettings::ReadDatabaseInfo(AddinState& s) {
  Trapped(s, "MySettings.ReadDatabaseInfo", [&](Line& line) {
    line = 10;
    if (DatabaseInfo.empty()) return;
    line = 20;
    const std::vector<std::string> parts = Split(DatabaseInfo, "|");
    if (parts.size() <= 1) return;
    // Fewer than five parts fail at the first missing one, after the others.
    const auto part = [&](size_t at) -> const std::string& {
      if (at >= parts.size()) throw Failure::Runtime(err::kSubscriptOutOfRange);
      return parts[at];
    };
    line = 30;
    Server = part(0);
    line = 40;
    Database = part(1);
    line = 50;
    IntegratedSecurity = Variant(part(2)).ToInteger();
    line = 60;
    UserName = part(3);
    line = 70;
    Password = part(4);
  });
}

std::string cMySettings::WriteDatabaseInfo(AddinState& s) {
  return TrappedResult<std::string>(
      s, "MySettings.WriteDatabaseInfo", [&](Line& line, std::string& result) {
        line = 10;
        DatabaseInfo = Server + "|" + Database + "|" + std::to_string(IntegratedSecurity) + "|" +
                       UserName + "|" + Password;
        line = 20;
        result = DatabaseInfo;
      });
}

}  // namespace qvx
