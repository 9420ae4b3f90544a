#include "sim/ribbon/shown_control.h"

namespace qvx::sim {
namespace {

std::string Quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

void Describe(const ShownControl& c, int depth, std::string& out) {
  if (!c.visible) return;
  out.append(static_cast<size_t>(depth) * 2, ' ');
  out += c.kind;
  if (!c.id.empty()) out += " " + c.id;
  if (!c.label.empty()) out += " " + Quoted(c.label);
  if (!c.enabled) out += " disabled";
  if (c.pressed) out += " pressed";
  if (!c.image.empty()) out += " image " + c.image;
  if (!c.text.empty()) out += " text " + Quoted(c.text);
  if (!c.rows.empty()) {
    out += " rows";
    for (const ShownRow& row : c.rows) out += " " + Quoted(row.label);
  }
  if (c.selectedIndex >= 0) out += " selected " + std::to_string(c.selectedIndex);
  out += "\n";
  for (const ShownControl& child : c.children) Describe(child, depth + 1, out);
}

}  // namespace

const ShownControl* ShownControl::Find(std::string_view controlId) const {
  if (!visible) return nullptr;
  if (id == controlId) return this;
  for (const ShownControl& child : children) {
    if (const ShownControl* found = child.Find(controlId)) return found;
  }
  return nullptr;
}

bool ShownControl::ShowsAnything() const {
  for (const ShownControl& child : children) {
    if (child.visible) return true;
  }
  return false;
}

std::string DescribeShown(const ShownControl& root) {
  std::string out;
  for (const ShownControl& child : root.children) Describe(child, 0, out);
  return out;
}

}  // namespace qvx::sim
