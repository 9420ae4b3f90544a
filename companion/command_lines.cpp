#include "companion/command_lines.h"

#include "core/text.h"

namespace qvx::companion {

std::string ReportEntry(std::string_view entryId, std::string_view start) {
  std::string entry(entryId);
  entry += ';';
  entry += start;
  return entry;
}

std::string ReportCommand(std::string_view storeId, const std::vector<std::string>& entries) {
  return "0|" + std::string(storeId) + "|" + Join(entries, ",");
}

std::string AutomaticReportCommand(std::string_view storeId, std::string_view entryId) {
  return "0|" + std::string(storeId) + "|" + std::string(entryId);
}

std::string WithdrawCommand(std::string_view storeId, std::string_view entryId,
                            std::string_view start) {
  return "2|" + std::string(storeId) + "|" + ReportEntry(entryId, start);
}

std::string OccurrenceStartText(const Variant& start) {
  return start.ToText();
}

std::string FileDatabaseConnection(std::string_view folder) {
  if (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) {
    folder.remove_suffix(1);
  }
  return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + std::string(folder) + "\\Quorvix.mdb";
}

std::string StatisticsCommand(std::string_view connection, std::string_view userName) {
  // The tool turns "_SPACE_" back into blanks, in the connection text too.
  return Replace(std::string(connection) + "|0|" + std::string(userName), " ", "_SPACE_");
}

}  // namespace qvx::companion
