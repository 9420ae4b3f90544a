#include "settings/tasks_per_project_list.h"

#include "core/text.h"
#include "core/trap.h"
#include "schema/date_codecs.h"
#include "schema/value_codecs.h"
#include "settings/catalogue_text.h"

namespace qvx {

using catalogue::Part;
using catalogue::Require;

std::shared_ptr<cSingleList> cTasksPerProjectList::GetProjectsList(FailureSink& s) {
  using Result = std::shared_ptr<cSingleList>;
  return TrappedResult<Result>(
      s, "cTasksPerProjectList.GetProjectsList", [&](Line& line, Result& result) {
        line = 10;
        result = std::make_shared<cSingleList>();
        cSingleList& list = *result;
        line = 20;
        std::string name;
        for (const auto& entry : dicList) {
          IgnoreFailure(s.Err(), [&] { name = Require(Require(entry.value).Project).ListName; });
          IgnoreFailure(s.Err(), [&] {
            if (!name.empty() && !list.dicList.Exists(name)) list.dicList.Add(name, name);
          });
        }
      });
}

std::string cTasksPerProjectList::ToString(FailureSink& s) {
  return TrappedResult<std::string>(
      s, "cTasksPerProjectList.ToString", [&](Line& line, std::string& result) {
        line = 10;
        // Where the last line's record and activities stand in the result: a
        // project that cannot be written repeats what was written before.
        size_t recordAt = 0, recordSize = 0, activitiesAt = 0, activitiesSize = 0;
        for (const auto& entry : dicList) {
          s.Err().Clear();
          IgnoreFailure(s.Err(), [&] {
            const cTasksPerProject* project = entry.value.get();
            const cProjectClient* client = project ? project->Project.get() : nullptr;
            std::string record, activities;
            if (!client) record = result.substr(recordAt, recordSize);
            if (!project) activities = result.substr(activitiesAt, activitiesSize);
            if (!result.empty()) result += catalogue::kLineBreak;
            recordAt = result.size();
            if (client) {
              client->AppendTo(s, result);
            } else {
              result += record;
            }
            recordSize = result.size() - recordAt;
            result += ':';
            activitiesAt = result.size();
            if (project) {
              project->AppendRecords(s, result, ";");
            } else {
              result += activities;
            }
            activitiesSize = result.size() - activitiesAt;
            if (!client) throw Failure::Runtime(err::kObjectNotSet);  // left pending
          });
        }
      });
}

void cTasksPerProjectList::FromString(FailureSink& s, std::string_view Text) {
  Trapped(s, "cTasksPerProjectList.FromString", [&](Line& line) {
    line = 10;
    dicList = {};
    if (!Text.empty()) dicList.Reserve(CountOf(Text, catalogue::kLineBreak) + 1);
    // Not reset between lines: a missing colour or date is the line before's.
    int16_t color = 0;
    DateValue start = kEmptyDate;
    DateValue finish = kEmptyDate;
    PartWalker lines(Text, catalogue::kLineBreak);
    for (std::string_view text; lines.Next(text);) {
      line = 20;
      std::string_view parts[2];
      const size_t partCount = FirstParts(text, ":", parts);
      std::string_view fields[4];
      const size_t count = FirstParts(Part(parts, partCount, 0), ",", fields);
      line = 30;
      std::string name = DecodeText(Part(fields, count, 0));
      line = 40;
      if (count > 1) IgnoreFailure(s.Err(), [&] { color = TextToInteger(fields[1]); });
      s.Err().Clear();
      if (count > 2) start = FromQuorvixDateFormat(s, DecodeText(fields[2]));
      if (count > 3) finish = FromQuorvixDateFormat(s, DecodeText(fields[3]));
      s.Err().Clear();
      line = 50;
      const std::string_view activities = Part(parts, partCount, 1);
      line = 60;
      auto project = std::make_shared<cTasksPerProject>();
      cProjectClient& client = *project->Project;
      client.intColorCode = color;
      client.StartDate = start;
      client.FinishDate = finish;
      project->FromString(s, activities, ";");
      line = 70;
      client.ListName = std::move(name);
      dicList.TryAdd(client.ListName, std::move(project));
    }
  });
}

}  // namespace qvx
