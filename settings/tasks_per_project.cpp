#include "settings/tasks_per_project.h"

#include <vector>

#include "core/text.h"
#include "core/trap.h"
#include "schema/date_codecs.h"
#include "schema/value_codecs.h"
#include "settings/combo_fill.h"
#include "settings/scripting_sort.h"

namespace qvx {

int16_t cTasksPerProject::getItemIndex(FailureSink& s, std::string_view Item) {
  return TrappedResult<int16_t>(
      s, "TasksPerProject.getItemIndex", [&](Line& line, int16_t& result) {
        line = 10;
        // Only the activity filed under Item's key can be named Item
        // exactly.
        size_t position = dicList.IndexOf(Item);
        if (position == dicList.npos || dicList.Entries()[position].value.Activity != Item) {
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
        result = std::string(Trim(dicList.Entries()[static_cast<size_t>(Index)].value.Activity));
      });
}

std::string cTasksPerProject::ToString(FailureSink& s, std::string_view Delimiter, bool Sort) {
  return TrappedResult<std::string>(s, "cTasksPerProject.GetString",
                                    [&](Line& line, std::string& result) {
                                      line = 10;
                                      if (Sort && dicList.Count() > 1)
                                        dicList = Scripting::Sort(dicList, 1);
                                      line = 20;
                                      AppendRecords(s, result, Delimiter);
                                    });
}

void cTasksPerProject::AppendRecords(FailureSink& s, std::string& out,
                                     std::string_view Delimiter) const {
  const size_t start = out.size();
  bool first = true;
  for (const auto& entry : dicList) {
    if (!first) out += Delimiter;
    first = false;
    entry.value.AppendTo(s, out);
  }
  // Only the whole is trimmed: leading blanks of the first name are lost.
  while (out.size() > start && out.back() == ' ') out.pop_back();
  const size_t firstKept = out.find_first_not_of(' ', start);
  out.erase(start, (firstKept == std::string::npos ? out.size() : firstKept) - start);
}

void cTasksPerProject::FromString(FailureSink& s, std::string_view Text,
                                  std::string_view Delimiter) {
  Trapped(s, "cTasksPerProject.SetString", [&](Line& line) {
    line = 10;
    dicList = {};
    if (Text.empty()) return;
    line = 20;
    dicList.Reserve(CountOf(Text, Delimiter) + 1);
    PartWalker parts(Text, Delimiter);
    for (std::string_view part; parts.Next(part);) {
      if (part.empty()) continue;
      // A part that is not empty has a first field, so the name cannot fail.
      line = 30;
      std::string_view fields[2];
      const size_t count = FirstParts(part, ",", fields);
      cTasksClient task;
      task.Activity = DecodeText(fields[0]);
      // A missing or bad due date leaves the empty date.
      line = 40;
      if (count > 1) task.DueDate = FromQuorvixDateFormat(s, DecodeText(fields[1]));
      s.Err().Clear();
      line = 50;
      dicList.TryAdd(task.Activity, std::move(task));
    }
  });
}

void cTasksPerProject::PopulateComboList(FailureSink& s, const Object& Control, std::string& Value,
                                         bool AddBlank) {
  Trapped(s, "cTasksPerProject.PopulateComboList", [&](Line& line) {
    FillComboList(s, line, Control, Value, AddBlank, dicList,
                  [](const auto& entry) -> const std::string& { return entry.value.Activity; });
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
                                        const std::string& name = entry.value.Activity;
                                        if (!name.empty()) names[next++] = name;
                                      }
                                      line = 20;
                                      result = std::string(Trim(Join(names, "\t"))) + "\t ";
                                    });
}

}  // namespace qvx
