#include "apps/qvx-sim/script.h"

namespace qvx::scenario {

bool SplitWords(std::string_view line, std::vector<std::string>& words, std::string& error) {
  words.clear();
  size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if (c == ' ' || c == '\t' || c == '\r') {
      ++i;
      continue;
    }
    if (c == '#') break;
    std::string word;
    if (c == '"') {
      ++i;
      bool closed = false;
      while (i < line.size()) {
        const char d = line[i++];
        if (d == '"') {
          closed = true;
          break;
        }
        if (d != '\\') {
          word += d;
          continue;
        }
        if (i >= line.size()) break;
        const char e = line[i++];
        switch (e) {
          case 'n':
            word += '\n';
            break;
          case 'r':
            word += '\r';
            break;
          case 't':
            word += '\t';
            break;
          case '"':
          case '\\':
            word += e;
            break;
          case 'x': {
            // Two hex digits: any byte, for odd input.
            const auto hex = [](char h) {
              if (h >= '0' && h <= '9') return h - '0';
              if (h >= 'a' && h <= 'f') return h - 'a' + 10;
              if (h >= 'A' && h <= 'F') return h - 'A' + 10;
              return -1;
            };
            const int high = i < line.size() ? hex(line[i]) : -1;
            const int low = i + 1 < line.size() ? hex(line[i + 1]) : -1;
            if (high < 0 || low < 0) {
              error = "\\x needs two hex digits in a quoted word";
              return false;
            }
            word += static_cast<char>(high * 16 + low);
            i += 2;
            break;
          }
          default:
            error = std::string("unknown escape \\") + e + " in a quoted word";
            return false;
        }
      }
      if (!closed) {
        error = "a quoted word is not closed";
        return false;
      }
      if (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') {
        error = "a quoted word must be followed by a blank";
        return false;
      }
    } else {
      while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') {
        if (line[i] == '"') {
          error = "a quote inside a word";
          return false;
        }
        word += line[i++];
      }
    }
    words.push_back(std::move(word));
  }
  return true;
}

std::optional<ParseError> ParseScript(std::string_view text, std::string name, Script& out) {
  out.name = std::move(name);
  out.statements.clear();
  int lineNumber = 0;
  size_t pos = 0;
  while (pos <= text.size()) {
    const size_t end = text.find('\n', pos);
    const std::string_view line =
        text.substr(pos, end == std::string_view::npos ? std::string_view::npos : end - pos);
    ++lineNumber;
    Statement statement;
    std::string error;
    if (!SplitWords(line, statement.words, error)) return ParseError{lineNumber, error};
    if (!statement.words.empty()) {
      statement.lineNumber = lineNumber;
      statement.text = std::string(line);
      if (!statement.text.empty() && statement.text.back() == '\r') statement.text.pop_back();
      out.statements.push_back(std::move(statement));
    }
    if (end == std::string_view::npos) break;
    pos = end + 1;
  }
  return std::nullopt;
}

}  // namespace qvx::scenario
