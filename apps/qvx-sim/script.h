// The scenario language's lines and words.
//
// A scenario is plain text, one statement a line. A line is words separated
// by blanks; a word in double quotes may hold blanks and escapes: a
// backslash before a quote, a backslash, n, r or t, or x and two hex digits
// for any byte. "#" outside quotes starts a comment. Blank lines are skipped.
// Outside quotes a backslash is an ordinary character (C:\Data stays).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qvx::scenario {

struct Statement {
  int lineNumber = 0;
  std::string text;                // the line as written, for messages
  std::vector<std::string> words;  // unquoted
};

struct ParseError {
  int lineNumber = 0;
  std::string message;
};

struct Script {
  std::string name;
  std::vector<Statement> statements;
};

// Parses a whole script; the first malformed line is the error.
// Never throws for bad input; odd bytes are taken as they are.
std::optional<ParseError> ParseScript(std::string_view text, std::string name, Script& out);

// Splits one line into words; false with a message for a malformed line.
bool SplitWords(std::string_view line, std::vector<std::string>& words, std::string& error);

}  // namespace qvx::scenario
