#include "apps/QuorvixClient/standin_contract.h"

#include <vector>

#include "companion/section_codes.h"

namespace qvx::standin {
namespace {

std::vector<std::string_view> Fields(std::string_view text, char separator) {
  std::vector<std::string_view> fields;
  size_t start = 0;
  for (size_t i = 0; i <= text.size(); ++i) {
    if (i == text.size() || text[i] == separator) {
      fields.push_back(text.substr(start, i - start));
      start = i + 1;
    }
  }
  return fields;
}

bool AllDigits(std::string_view text) {
  if (text.empty()) return false;
  for (char c : text) {
    if (c < '0' || c > '9') return false;
  }
  return true;
}

Verdict Reject(std::string error) {
  return Verdict{"", std::move(error)};
}

Verdict CheckSection(std::string_view argument) {
  if (argument.size() > 9) return Reject("unknown section " + std::string(argument));
  int64_t section = 0;
  for (char c : argument) section = section * 10 + (c - '0');
  if (argument.size() > 1 && argument[0] == '0') {
    return Reject("a section is sent without leading zeros: " + std::string(argument));
  }
  if (!companion::IsKnownSection(section)) {
    return Reject("unknown section " + std::string(argument));
  }
  return Verdict{"section", ""};
}

}  // namespace

Verdict CheckClientArgument(std::string_view argument) {
  if (AllDigits(argument)) return CheckSection(argument);
  const std::vector<std::string_view> fields = Fields(argument, '|');
  if (fields.size() != 3) {
    return Reject("expected a section number or \"action|StoreID|entries\"");
  }
  std::string kind;
  if (fields[0] == "0") {
    kind = "report";
  } else if (fields[0] == "2") {
    kind = "withdraw";
  } else {
    return Reject("unknown action \"" + std::string(fields[0]) + "\" (0 report, 2 withdraw)");
  }
  if (fields[1].empty()) return Reject("the StoreID is empty");
  if (fields[2].empty()) return Reject("no entries");
  const std::vector<std::string_view> entries = Fields(fields[2], ',');
  for (size_t i = 0; i < entries.size(); ++i) {
    // "EntryID" alone (a completed task) or "EntryID;start".
    const std::string_view entryId = entries[i].substr(0, entries[i].find(';'));
    if (entryId.empty()) return Reject("entry " + std::to_string(i + 1) + " has no EntryID");
  }
  return Verdict{kind, ""};
}

Verdict CheckStatisticsArgument(std::string_view argument) {
  if (argument.find(' ') != std::string_view::npos) {
    return Reject("blanks must be sent as _SPACE_");
  }
  const std::vector<std::string_view> fields = Fields(argument, '|');
  if (fields.size() != 3 || fields[1] != "0") {
    return Reject("expected \"connection|0|user\"");
  }
  if (fields[0].empty()) return Reject("the connection text is empty");
  return Verdict{"statistics", ""};
}

}  // namespace qvx::standin
