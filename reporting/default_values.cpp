#include "reporting/default_values.h"

#include "core/failure.h"
#include "settings/my_settings.h"

namespace qvx {
namespace {

struct ListDefault {
  int16_t active;
  int16_t enabled;
  const std::string& value;
};

// The default of one custom list: only while the list is active and its
// default is switched on.
template <class Pick>
std::string CustomListDefault(AddinState& s, std::string_view label, Pick pick) {
  return TrappedResult<std::string>(s, label, [&](Line& line, std::string& out) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    const auto [active, enabled, value] = pick(settings);
    line = 20;
    if (active != 0 && enabled != 0) out = value;
  });
}

}  // namespace

std::string GetDefaultProjectValue(AddinState& s) {
  return TrappedResult<std::string>(s, "GetDefaultProjectValue", [&](Line& line, std::string& out) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    line = 20;
    if (settings.EnableDefaultValueForProjectTask != 0) out = settings.DefaultValueForProject;
  });
}

std::string GetDefaultActivityValue(AddinState& s) {
  return TrappedResult<std::string>(s, "GetDefaultActivityValue",
                                    [&](Line& line, std::string& out) {
                                      line = 10;
                                      const cMySettings& settings = s.main.Settings();
                                      line = 20;
                                      if (settings.EnableDefaultValueForProjectTask != 0)
                                        out = settings.DefaultValueForTask;
                                    });
}

std::string GetDefaultField1Value(AddinState& s) {
  return CustomListDefault(s, "GetDefaultField1Value", [](const cMySettings& m) {
    return ListDefault{m.CustomList1Active, m.EnableDefaultValueForCustomField1,
                       m.DefaultValueCustomField1};
  });
}

std::string GetDefaultField2Value(AddinState& s) {
  return CustomListDefault(s, "GetDefaultField2Value", [](const cMySettings& m) {
    return ListDefault{m.CustomList2Active, m.EnableDefaultValueForCustomField2,
                       m.DefaultValueCustomField2};
  });
}

std::string GetDefaultField3Value(AddinState& s) {
  return CustomListDefault(s, "GetDefaultField3Value", [](const cMySettings& m) {
    return ListDefault{m.CustomList3Active, m.EnableDefaultValueForCustomField3,
                       m.DefaultValueCustomField3};
  });
}

std::string GetDefaultField4Value(AddinState& s) {
  return CustomListDefault(s, "GetDefaultField4Value", [](const cMySettings& m) {
    return ListDefault{m.CustomList4Active, m.EnableDefaultValueForCustomField4,
                       m.DefaultValueCustomField4};
  });
}

}  // namespace qvx
