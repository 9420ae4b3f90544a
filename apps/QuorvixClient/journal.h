// The stand-ins' journal: one line per call, appended to a file in the user's
// data folder, so that tests and demos can see what the add-in started.
//
// Path: $QVX_COMPANION_JOURNAL, else $XDG_DATA_HOME/quorvix/companion-journal.txt,
// else $HOME/.local/share/quorvix/companion-journal.txt. A line is
// "<program>\t<kind>\t<argument>\n" and goes out in ONE write to a file opened
// with O_APPEND, so that stand-ins started together never mix their lines.
// Control characters of the argument are written as \xNN.
#pragma once

#include <string>
#include <string_view>

namespace qvx::standin {

std::string JournalPath();

std::string JournalLine(std::string_view program, std::string_view kind, std::string_view argument);

// Appends the line, creating the file and its folders. False with `error` set
// if that fails.
bool AppendJournalLine(const std::string& path, std::string_view line, std::string& error);

}  // namespace qvx::standin
