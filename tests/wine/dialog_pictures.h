// Brings up one of the add-in's dialogs by name and waits until it is closed;
// for the pictures of the documentation. Returns the program's exit code.
#pragma once

#include <string>

namespace qvx::winetest {

int ShowDialog(const std::string& name);

}  // namespace qvx::winetest
