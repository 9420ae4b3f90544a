// The catalogue text as the code before the single-pass reading did it, kept
// beside the benchmarks as the yardstick: Split into copied lines, parts and
// fields, each value through a Variant and the three-step decode, one shared
// object per activity, and a case-folded key copy in a node-based index.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/dates.h"
#include "core/text.h"
#include "core/trap.h"
#include "core/variant.h"
#include "schema/date_codecs.h"
#include "schema/value_codecs.h"
#include "settings/tasks_per_project_list.h"

namespace qvx::bench {

template <class Value>
struct ReferenceDictionary {
  std::vector<std::pair<std::string, Value>> entries;
  std::unordered_map<std::string, size_t> index;
  bool TryAdd(const std::string& key, Value value) {
    std::string folded = FoldCase(key);
    if (index.count(folded) != 0) return false;
    index.emplace(std::move(folded), entries.size());
    entries.emplace_back(key, std::move(value));
    return true;
  }
};

struct ReferenceActivity {
  std::string name;
  DateValue due = kEmptyDate;
};
struct ReferenceProject {
  std::string name;
  int16_t colour = 0;
  DateValue start = kEmptyDate, finish = kEmptyDate;
  ReferenceDictionary<std::shared_ptr<ReferenceActivity>> activities;
};
using ReferenceCatalogue = ReferenceDictionary<std::shared_ptr<ReferenceProject>>;

inline std::string ReferenceDecode(const std::string& field) {
  if (field.find('_') == std::string::npos) return field;
  std::string text = Variant(field).ToText();
  text = Replace(text, "_COLON_", ":");
  text = Replace(text, "_SCOLON_", ";");
  return Replace(text, "_COMMA_", ",");
}

inline DateValue ReferenceDate(FailureSink& s, const std::string& text) {
  if (Trim(text).empty()) return kEmptyDate;
  const std::vector<std::string> parts = Split(text, "-");
  if (parts.size() < 3) return kEmptyDate;
  return Quietly(s.Err(),
                 [&] {
                   return DateSerial(Variant(parts[0]).ToInteger(), Variant(parts[1]).ToInteger(),
                                     Variant(parts[2]).ToInteger());
                 })
      .value_or(kEmptyDate);
}

inline void ReferenceFromString(FailureSink& s, std::string_view text, ReferenceCatalogue& out) {
  out = {};
  int16_t colour = 0;
  DateValue start = kEmptyDate, finish = kEmptyDate;
  for (const std::string& line : Split(text, "\r\n")) {
    const std::vector<std::string> parts = Split(line, ":");
    const std::vector<std::string> fields = Split(parts.at(0), ",");
    auto project = std::make_shared<ReferenceProject>();
    project->name = ReferenceDecode(fields.at(0));
    IgnoreFailure(s.Err(), [&] { colour = Variant(fields.at(1)).ToInteger(); });
    if (fields.size() > 2) start = ReferenceDate(s, ReferenceDecode(fields[2]));
    if (fields.size() > 3) finish = ReferenceDate(s, ReferenceDecode(fields[3]));
    s.Err().Clear();
    project->colour = colour;
    project->start = start;
    project->finish = finish;
    for (const std::string& part : Split(parts.at(1), ";")) {
      if (part.empty()) continue;
      const std::vector<std::string> activity = Split(part, ",");
      auto task = std::make_shared<ReferenceActivity>();
      task->name = ReferenceDecode(activity[0]);
      if (activity.size() > 1) task->due = ReferenceDate(s, ReferenceDecode(activity[1]));
      project->activities.TryAdd(task->name, task);
    }
    out.TryAdd(project->name, project);
  }
}

inline std::string ReferenceEncode(FailureSink& s, const std::string& text) {
  if (text.find_first_of(":;,") == std::string::npos) return text;
  return EncodeValue(s, Variant(text));
}

inline std::string ReferenceDateText(FailureSink& s, DateValue date) {
  return IsNoDateYear(DecomposeDate(date).year) ? std::string() : ToQuorvixDateFormat(s, date);
}

inline std::string ReferenceToString(FailureSink& s, const ReferenceCatalogue& catalogue) {
  std::string result;
  for (const auto& [key, project] : catalogue.entries) {
    const std::string record =
        ReferenceEncode(s, project->name) + "," + std::to_string(project->colour) + "," +
        ReferenceDateText(s, project->start) + "," + ReferenceDateText(s, project->finish);
    std::vector<std::string> records;
    for (const auto& [name, task] : project->activities.entries) {
      records.push_back(ReferenceEncode(s, task->name) + "," + ReferenceDateText(s, task->due));
    }
    if (!result.empty()) result += "\r\n";
    result += record + ":" + std::string(Trim(Join(records, ";")));
  }
  return result;
}

// The catalogue and the former code behind one face, so that one benchmark
// measures either on the same text.
struct Ours {
  using Tree = cTasksPerProjectList;
  static void Read(FailureSink& s, std::string_view text, Tree& tree) { tree.FromString(s, text); }
  static std::string Write(FailureSink& s, Tree& tree) { return tree.ToString(s); }
  static size_t Count(const Tree& tree) { return tree.dicList.Count(); }
};
struct Former {
  using Tree = ReferenceCatalogue;
  static void Read(FailureSink& s, std::string_view text, Tree& tree) {
    ReferenceFromString(s, text, tree);
  }
  static std::string Write(FailureSink& s, Tree& tree) { return ReferenceToString(s, tree); }
  static size_t Count(const Tree& tree) { return tree.entries.size(); }
};

}  // namespace qvx::bench
