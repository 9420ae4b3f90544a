#include "settings/tasks_per_project.h"

#include <vector>

#include "core/text.h"
#include "core/trap.h"
#include "schema/date_codecs.h"
#include "schema/value_codecs.h"
#include "settings/catalogue_text.h"
#include "settings/combo_fill.h"
#include "settings/scripting_sort.h"

namespace qvx {

using catalogue::Decoded;
using catalogue::Part;
using catalogue::Require;

int16_t cTasksPerProject::getItemIndex(FailureSink& s, std::string_view Item) {
  return TrappedResult<int16_t>(s, "TasksPerProject.getItemIndex",
                                [&](Line& line, int16_t& result) {
                                  line = 10;
                                  // Only the activity filed under Item's key can be named Item
                                  // exactly.
                                  size_t position = dicList.IndexOf(Item);
                                  if (position == dicList.npos ||
                                      Require(dicList.Entries()[position].value).Activity != Item) {
                                    position = dicList.Count();
                                  }
                                  line = 20;
                                  if (position > 32767) throw Failure::Runtime(err::kOverflow);
                                  result = static_cast<int16_t>(position);
                                });
}

std::string cTasksPerProject::GetItem(FailureSink& s, int16_t Index) {
  return TrappedResult<std::string>(
      s, "TasksPerProject.GetItem", [&](Line& line, std::string& result) {
        line = 10;
        if (Index < 0 || static_cast<size_t>(Index) >= dicList.Count()) return;
        line = 20;
        result = std::string(
            Trim(Require(dicList.Entries()[static_cast<size_t>(Index)].value).Activity));
      });
}

std::string cTasksPerProject::ToString(FailureSink& s, std::string_view Delimiter, bool Sort) {
  return TrappedResult<std::string>(s, "cTasksPerProject.GetString",
                                    [&](Line& line, std::string& result) {
                                      line = 10;
                                      if (Sort && dicList.Count() > 1)
                                        dicList = Scripting::Sort(dicList, 1);
                                      line = 20;
                                      std::vector<std::string> records;
                                      records.reserve(dicList.Count());
                                      for (const auto& entry : dicList)
                                        records.push_back(Require(entry.value).ToString(s));
                                      line = 30;
                                      // Only the whole is trimmed: leading blanks of the first name
                                      // are lost.
                                      result = std::string(Trim(Join(records, Delimiter)));
                                    });
}

void cTasksPerProject::FromString(FailureSink& s, std::string_view Text,
                                  std::string_view Delimiter) {
  Trapped(s, "cTasksPerProject.SetString", [&](Line& line) {
    line = 10;
    dicList = {};
    if (Text.empty()) return;
    line = 20;
    const std::vector<std::string> parts = Split(Text, Delimiter);
    bool ignoring = false;  // from the first due date on, failures are ignored
    std::vector<std::string> fields;
    for (const std::string& part : parts) {
      if (part.empty()) continue;
      auto task = std::make_shared<cTasksClient>();
      const auto name = [&] {
        fields = Split(part, ",");
        task->Activity = Decoded(s, Part(fields, 0));
      };
      if (ignoring) {
        IgnoreFailure(s.Err(), name);
      } else {
        line = 30;
        name();
      }
      ignoring = true;
      line = 40;
      IgnoreFailure(s.Err(),
                    [&] { task->DueDate = FromQuorvixDateFormat(s, Decoded(s, Part(fields, 1))); });
      s.Err().Clear();
      line = 50;
      IgnoreFailure(s.Err(), [&] {
        if (!dicList.Exists(task->Activity)) dicList.Add(task->Activity, task);
      });
    }
  });
}

void cTasksPerProject::PopulateComboList(FailureSink& s, const Object& Control, std::string& Value,
                                         bool AddBlank) {
  Trapped(s, "cTasksPerProject.PopulateComboList", [&](Line& line) {
    FillComboList(
        s, line, Control, Value, AddBlank, dicList,
        [](const auto& entry) -> const std::string& { return Require(entry.value).Activity; });
  });
}

std::string cTasksPerProject::ToStringTab(FailureSink& s) {
  return TrappedResult<std::string>(s, "cTasksPerProject.GetString",
                                    [&](Line& line, std::string& result) {
                                      line = 10;
                                      // Skipped names leave their slots empty at the end: one more
                                      // tab each.
                                      std::vector<std::string> names(dicList.Count());
                                      size_t next = 0;
                                      for (const auto& entry : dicList) {
                                        const std::string& name = Require(entry.value).Activity;
                                        if (!name.empty()) names[next++] = name;
                                      }
                                      line = 20;
                                      result = std::string(Trim(Join(names, "\t"))) + "\t ";
                                    });
}

}  // namespace qvx
