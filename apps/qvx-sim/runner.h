// The scenario runner: a table of verbs and the loop that runs a script.
//
// A verb is one or more leading words ("registry set", "expect launch");
// the longest match wins. Each subsystem's verbs live in a file of their own
// (verbs_*.cpp) and register themselves through RegisterAllVerbs.
#pragma once

#include <functional>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "apps/qvx-sim/script.h"

namespace qvx::scenario {

class World;

// A failed expectation: what was expected and what was seen.
class ExpectationFailed : public std::runtime_error {
 public:
  ExpectationFailed(std::string expected, std::string seen)
      : std::runtime_error("expectation failed"),
        expected(std::move(expected)),
        seen(std::move(seen)) {}
  std::string expected;
  std::string seen;
};

// A statement that does not fit its verb (wrong words, bad number).
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The words after the verb, with checked access.
class Args {
 public:
  Args(std::vector<std::string> words, std::string usage)
      : words_(std::move(words)), usage_(std::move(usage)) {}
  size_t size() const { return words_.size(); }
  const std::string& At(size_t i) const;
  int Int(size_t i) const;
  // Exactly n words, or n to m.
  void Expect(size_t n) const { Expect(n, n); }
  void Expect(size_t n, size_t m) const;
  // The word at i must be one of `choices`; returns its index.
  size_t Choice(size_t i, const std::vector<std::string>& choices) const;
  // Whether the word at i exists and equals `word`.
  bool Is(size_t i, const std::string& word) const;

 private:
  std::vector<std::string> words_;
  std::string usage_;
};

using VerbHandler = std::function<void(World&, const Args&)>;

struct Verb {
  std::string name;   // "registry set"
  std::string usage;  // "registry set NAME VALUE"
  std::string help;   // one line
  VerbHandler handler;
};

class VerbTable {
 public:
  void Add(std::string name, std::string usage, std::string help, VerbHandler handler);
  // A verb of exactly `count` words: with more or fewer the statement is a
  // usage error and `handler` does not run.
  void AddExact(std::string name, std::string usage, std::string help, size_t count,
                VerbHandler handler);
  // The longest verb that the words start with, and how many words it took.
  const Verb* Find(const std::vector<std::string>& words, size_t& taken) const;
  const std::map<std::string, Verb>& All() const { return verbs_; }

 private:
  std::map<std::string, Verb> verbs_;
};

// Registers every verb of every subsystem.
void RegisterAllVerbs(VerbTable& table);

// Runs a script in a fresh world; prints failures to `err`. 0 when all held.
int RunScript(const Script& script, const VerbTable& verbs, std::ostream& out, std::ostream& err);

}  // namespace qvx::scenario
