// cMySettings: the one in-memory record of the add-in's settings.
//
// Everything the administrator and the companion program decide, read from
// the registry key "Software\Zenbrook\QVX" (application "QVX", no section),
// one REG_SZ value a member, and read directly by every part of the add-in.
// The add-in only ever calls ReadSettings; the save operations are the other
// half of the contract with the companion, which writes the same values.
//
// Text forms: flags are 16-bit integers as decimal text (non-zero is set, the
// program's own True is -1); DBChoice is decimal text; LastReported is the
// date's default text form ("1/2/2026 3:04:05 PM"), which reads back
// unchanged; the custom lists are their items joined by CR LF; "DatabaseInfo"
// is Server|Database|IntegratedSecurity|UserName|Password, nothing escaped.
//
// Each operation traps its failure, reports it under "MySettings.<name>" and
// ends; members not reached keep their earlier values.
//
//   s.main.objMySettings->ReadSettings(s);
//   if (s.main.objMySettings->AllowPrivate != 0) { ... }
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "core/variant.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project_list.h"

namespace qvx {

class AddinState;

class cMySettings {
 public:
  int32_t DBChoice = 0;
  std::string DBConnectionString;
  DateValue LastReported{};
  int16_t AllowPrivate = 0;
  int16_t AllowRecurring = 0;
  int16_t ReportedItemsToSubFolder = 0;
  int16_t ReportIemsOnDueDateLapsedAutomatically = 0;  // spelled so in the registry
  int16_t ReportCompletedTaskItemsAutomatically = 0;
  int16_t MarkCompleteForReportedTasks = 0;
  int16_t AskForConfirmationBeforeReporting = 0;
  int16_t DontAllowMultipleItemsReporting = 0;
  int16_t DontAllowChangesToReportedItem = 0;
  std::string Server;  // these five live only inside "DatabaseInfo"
  std::string Database;
  std::string UserName;
  std::string Password;
  int16_t IntegratedSecurity = 0;
  std::string ProjectsTasksList;  // the catalogue text as last read or saved
  std::shared_ptr<cTasksPerProjectList> MyProjectsTasks = std::make_shared<cTasksPerProjectList>();
  std::shared_ptr<cSingleList> Projects;  // nothing until the first ReadSettings
  std::shared_ptr<cSingleList> CustomField1List = std::make_shared<cSingleList>();
  std::shared_ptr<cSingleList> CustomField2List = std::make_shared<cSingleList>();
  std::shared_ptr<cSingleList> CustomField3List = std::make_shared<cSingleList>();
  std::shared_ptr<cSingleList> CustomField4List = std::make_shared<cSingleList>();
  std::string CustomList1Name;
  std::string CustomList2Name;
  std::string CustomList3Name;
  std::string CustomList4Name;
  std::string CustomField5Name;
  std::string CustomField6Name;
  std::string CustomField7Name;
  std::string CustomField8Name;
  std::string CustomField9Name;
  std::string CustomField10Name;
  std::string ProjectTitle;
  std::string ActivityTitle;
  int16_t ProjectMandatory = 0;
  int16_t ActivityMandatory = 0;
  int16_t ProjectTaskCustomizable = 0;  // neither stored nor read
  std::string CustomFieldsTitle;
  int16_t CustomList1Mandatory = 0;
  int16_t CustomList2Mandatory = 0;
  int16_t CustomList3Mandatory = 0;
  int16_t CustomList4Mandatory = 0;
  int16_t CustomField5Mandatory = 0;
  int16_t CustomField6Mandatory = 0;
  int16_t CustomField7Mandatory = 0;
  int16_t CustomField8Mandatory = 0;
  int16_t CustomField9Mandatory = 0;
  int16_t CustomField10Mandatory = 0;
  int16_t CustomList1Active = 0;
  int16_t CustomList2Active = 0;
  int16_t CustomList3Active = 0;
  int16_t CustomList4Active = 0;
  int16_t CustomField5Active = 0;
  int16_t CustomField6Active = 0;
  int16_t CustomField7Active = 0;
  int16_t CustomField8Active = 0;
  int16_t CustomField9Active = 0;
  int16_t CustomField10Active = 0;
  int16_t CustomField1Customizable = 0;  // the four: neither stored nor read
  int16_t CustomField2Customizable = 0;
  int16_t CustomField3Customizable = 0;
  int16_t CustomField4Customizable = 0;
  int16_t AutoSyncToDB = 0;
  int16_t showCustomFieldsToolbar = 0;
  int16_t showProjectTaskToolbar = 0;
  int16_t TagTaskToCategories = 0;
  int16_t TagProjectToCategories = 0;
  int16_t TagCustomFieldsToCategories = 0;
  int16_t AddProjectColorCodes = 0;
  int16_t EnableDefaultValueForProjectTask = 0;
  std::string DefaultValueForProject;
  std::string DefaultValueForTask;
  int16_t EnableDefaultValueForCustomField1 = 0;
  std::string DefaultValueCustomField1;
  int16_t EnableDefaultValueForCustomField2 = 0;
  std::string DefaultValueCustomField2;
  int16_t EnableDefaultValueForCustomField3 = 0;
  std::string DefaultValueCustomField3;
  int16_t EnableDefaultValueForCustomField4 = 0;
  std::string DefaultValueCustomField4;
  int16_t AllowTaskItems = 0;
  int16_t AllowAppointmentItems = 0;
  int16_t AllowColorCodeChange = 0;
  int16_t AllowUpdateToReportedData = 0;
  int16_t AllowWithdrawalOfReportedData = 0;
  int16_t UpdateStartDateWithProjectStartDate = 0;
  int16_t UpdateAppointmentEndDateWith = 0;
  int16_t UpdateTaskDueDateWith = 0;
  int16_t AppointmentEndDateFrom = 0;  // a choice, compared with 1
  int16_t TaskDueDateFrom = 0;         // a choice, compared with 1
  int16_t AllowManagerReview = 0;
  int16_t UseDefaultCalendarFolderOnly = 0;
  int16_t UseDefaultTaskFolderOnly = 0;
  int16_t AutoCheckForUpgradeAtStartup = 0;
  int16_t ShowConfirmationWhenSyncSuccess = 0;

  // Writes the members the administrator decides: titles, names and three flags.
  void SaveAdminSettingsOnly(AddinState& s);
  // Writes every stored member but AllowManagerReview; refreshes ProjectsTasksList.
  void SaveSettings(AddinState& s);
  // Refreshes every stored member from the registry, with the defaults of absent values.
  void ReadSettings(AddinState& s);
  // Parses the "DatabaseInfo" text last read into the five database members.
  void ReadDatabaseInfo(AddinState& s);
  // Builds the "DatabaseInfo" text from the five members, keeps and returns it.
  std::string WriteDatabaseInfo(AddinState& s);

 private:
  std::string DatabaseInfo;
};

}  // namespace qvx
