// The fourteen prepared views: the name each is stored under (with the
// placeholders "[PROJECT]" and "[ACTIVITY]" for the configured titles), its
// button on the views pop-up of the command bar, and its entry in the ribbon's
// views menu (one has none).
//
//   for (const PreparedView& view : kPreparedViews) AddButton(view.button, view.name);
#pragma once

#include <array>
#include <string_view>

namespace qvx {

struct PreparedView {
  std::string_view name;
  std::string_view button;
  std::string_view menuEntry;  // empty: not in the views menu
};

inline constexpr std::array<PreparedView, 14> kPreparedViews = {{
    {"Reported ID", "cmdViewByReportedID", "cmdDefinedView1"},
    {"Reported State", "cmdViewByReportedState", "cmdDefinedView2"},
    {"[PROJECT] and [ACTIVITY]", "cmdViewByProjectAndTask", "cmdDefinedView3"},
    {"[PROJECT]", "cmdViewByProject", "cmdDefinedView4"},
    {"[ACTIVITY]", "cmdViewByTask", "cmdDefinedView5"},
    {"Reported Date (Filtered)", "cmdViewByReportedDate", ""},
    {"Due Date", "cmdViewByDueDate", "cmdDefinedView6"},
    {"Items without [PROJECT] (Filtered)", "cmdViewByEmptyProject", "cmdDefinedView7"},
    {"Items without [ACTIVITY] (Filtered)", "cmdViewByEmptyTask", "cmdDefinedView8"},
    {"Items without [PROJECT] and [ACTIVITY] (Filtered)", "cmdViewByEmptyProjectTask",
     "cmdDefinedView9"},
    {"Reported Items (Filtered)", "cmdViewByReportedItems", "cmdDefinedView10"},
    {"Unreported Items (Filtered)", "cmdViewByUnreportedItems", "cmdDefinedView11"},
    {"Calendar view of Reported Items (Filtered)", "cmdViewByReportedItemsCal", "cmdDefinedView12"},
    {"Calendar view of Unreported Items (Filtered)", "cmdViewByUnreportedItemsCal",
     "cmdDefinedView13"},
}};

}  // namespace qvx
