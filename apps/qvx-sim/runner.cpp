#include "apps/qvx-sim/runner.h"

#include <cerrno>
#include <cstdlib>

#include "apps/qvx-sim/world.h"

namespace qvx::scenario {

const std::string& Args::At(size_t i) const {
  if (i >= words_.size()) throw UsageError("too few words; usage: " + usage_);
  return words_[i];
}

int Args::Int(size_t i) const {
  const std::string& word = At(i);
  char* end = nullptr;
  errno = 0;
  const long value = std::strtol(word.c_str(), &end, 0);
  if (word.empty() || *end != '\0' || errno == ERANGE || value < INT32_MIN || value > INT32_MAX) {
    throw UsageError("\"" + word + "\" is not a whole number; usage: " + usage_);
  }
  return static_cast<int>(value);
}

void Args::Expect(size_t n, size_t m) const {
  if (words_.size() < n || words_.size() > m) throw UsageError("usage: " + usage_);
}

size_t Args::Choice(size_t i, const std::vector<std::string>& choices) const {
  const std::string& word = At(i);
  for (size_t k = 0; k < choices.size(); ++k) {
    if (choices[k] == word) return k;
  }
  std::string list;
  for (const auto& c : choices) list += (list.empty() ? "" : ", ") + c;
  throw UsageError("\"" + word + "\" is not one of " + list + "; usage: " + usage_);
}

bool Args::Is(size_t i, const std::string& word) const {
  return i < words_.size() && words_[i] == word;
}

void VerbTable::Add(std::string name, std::string usage, std::string help, VerbHandler handler) {
  std::string key = name;
  verbs_[key] = Verb{std::move(name), std::move(usage), std::move(help), std::move(handler)};
}

void VerbTable::AddExact(std::string name, std::string usage, std::string help, size_t count,
                         VerbHandler handler) {
  Add(std::move(name), std::move(usage), std::move(help),
      [count, handler = std::move(handler)](World& w, const Args& a) {
        a.Expect(count);
        handler(w, a);
      });
}

const Verb* VerbTable::Find(const std::vector<std::string>& words, size_t& taken) const {
  std::string key;
  const Verb* best = nullptr;
  for (size_t n = 0; n < words.size() && n < 4; ++n) {
    key += (n ? " " : "") + words[n];
    auto it = verbs_.find(key);
    if (it != verbs_.end()) {
      best = &it->second;
      taken = n + 1;
    }
  }
  return best;
}

int RunScript(const Script& script, const VerbTable& verbs, std::ostream& out, std::ostream& err) {
  World world;
  world.out = &out;
  for (const Statement& statement : script.statements) {
    const auto where = [&] {
      return script.name + ":" + std::to_string(statement.lineNumber) + ": " + statement.text;
    };
    size_t taken = 0;
    const Verb* verb = verbs.Find(statement.words, taken);
    if (!verb) {
      err << where() << "\n  unknown statement \"" << statement.words[0] << "\"\n";
      return 2;
    }
    try {
      Args args(std::vector<std::string>(statement.words.begin() + static_cast<long>(taken),
                                         statement.words.end()),
                verb->usage);
      verb->handler(world, args);
    } catch (const ExpectationFailed& e) {
      err << where() << "\n  expected: " << e.expected << "\n  seen:     " << e.seen << "\n";
      return 1;
    } catch (const UsageError& e) {
      err << where() << "\n  " << e.what() << "\n";
      return 2;
    } catch (const std::exception& e) {
      err << where() << "\n  error: " << e.what() << "\n";
      return 2;
    }
  }
  world.Finish();
  out << script.name << ": " << script.statements.size() << " statements, all held\n";
  return 0;
}

}  // namespace qvx::scenario
