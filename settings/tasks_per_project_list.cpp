#include "settings/tasks_per_project_list.h"

#include <vector>

#include "core/text.h"
#include "core/trap.h"
#include "schema/date_codecs.h"
#include "schema/value_codecs.h"
#include "settings/catalogue_text.h"

namespace qvx {

using catalogue::Decoded;
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
        std::string record;
        std::string activities;
        for (const auto& entry : dicList) {
          s.Err().Clear();
          IgnoreFailure(s.Err(),
                        [&] { record = Require(Require(entry.value).Project).ToString(s); });
          IgnoreFailure(s.Err(),
                        [&] { activities = Require(entry.value).ToString(s, ";", false); });
          IgnoreFailure(s.Err(), [&] {
            if (!result.empty()) result += catalogue::kLineBreak;
            result += record;
            result += ':';
            result += activities;
          });
        }
      });
}

void cTasksPerProjectList::FromString(FailureSink& s, std::string_view Text) {
  Trapped(s, "cTasksPerProjectList.FromString", [&](Line& line) {
    line = 10;
    const std::vector<std::string> lines = Split(Text, catalogue::kLineBreak);
    dicList = {};
    // Not reset between lines: a missing colour or date is the line before's.
    int16_t color = 0;
    DateValue start = kEmptyDate;
    DateValue finish = kEmptyDate;
    for (const std::string& text : lines) {
      line = 20;
      const std::vector<std::string> parts = Split(text, ":");
      const std::vector<std::string> fields = Split(Part(parts, 0), ",");
      line = 30;
      const std::string name = Decoded(s, Part(fields, 0));
      line = 40;
      IgnoreFailure(s.Err(), [&] { color = Variant(Part(fields, 1)).ToInteger(); });
      s.Err().Clear();
      IgnoreFailure(s.Err(),
                    [&] { start = FromQuorvixDateFormat(s, Decoded(s, Part(fields, 2))); });
      IgnoreFailure(s.Err(),
                    [&] { finish = FromQuorvixDateFormat(s, Decoded(s, Part(fields, 3))); });
      s.Err().Clear();
      line = 50;
      const std::string& activities = Part(parts, 1);
      line = 60;
      auto project = std::make_shared<cTasksPerProject>();
      cProjectClient& client = *project->Project;
      client.ListName = name;
      client.intColorCode = color;
      client.StartDate = start;
      client.FinishDate = finish;
      project->FromString(s, activities, ";");
      line = 70;
      if (!dicList.Exists(name)) dicList.Add(name, std::move(project));
    }
  });
}

}  // namespace qvx
