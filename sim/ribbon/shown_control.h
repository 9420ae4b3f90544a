// What the simulated ribbon host shows of the add-in's controls, as the user
// sees it at one moment: one tree per surface (the ribbon's tabs, the
// backstage, an open context menu, a dropped dynamic menu).
//
// A control whose visibility is false is kept with `visible` false and
// nothing else: the host asks nothing more of it and shows nothing under it.
//
//   const ShownControl* box = window.Ribbon().Find("cboProjectCal");
//   if (box && box->enabled) ... box->rows[box->selectedIndex].label ...
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qvx::sim {

// One row of a drop-down, combo box or gallery.
struct ShownRow {
  std::string id;
  std::string label;
};

struct ShownControl {
  std::string kind;  // element name: "tab", "group", "button", "dropDown" ...
  std::string id;    // id, else idMso, else idQ
  bool visible = true;
  bool enabled = true;
  std::string label;
  std::string image;  // an imageMso name, "picture" for an add-in's picture, "" for none
  std::string screentip;
  std::string supertip;
  bool pressed = false;  // toggle button, check box
  std::string text;      // edit box, combo box
  std::vector<ShownRow> rows;
  int selectedIndex = -1;  // -1: no row selected
  std::vector<ShownControl> children;

  // This control or a descendant with that id that the user can see (it and
  // everything above it visible); nullptr when there is none.
  const ShownControl* Find(std::string_view controlId) const;
  // Whether any control under this one is shown.
  bool ShowsAnything() const;
};

// A readable outline of what is shown, one control a line, indented by depth:
//   group KRPExplorerCalendar "Quorvix"
//     dropDown cboProjectCal "Project" disabled rows "Alpha" "Beta" "" selected 2
std::string DescribeShown(const ShownControl& root);

}  // namespace qvx::sim
