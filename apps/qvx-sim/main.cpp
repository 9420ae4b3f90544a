// qvx-sim: runs scenario scripts against the add-in in a simulated host.
//
//   qvx-sim run FILE...   runs each script; exit 0 when every one held
//   qvx-sim demo          runs the built-in demo
//   qvx-sim verbs         lists the verbs of the scenario language
//   qvx-sim soak SEED OPERATIONS [FAULT-PERCENT]
//                         random user actions while host members fail
#include <fstream>
#include <iostream>
#include <sstream>

#include "apps/qvx-sim/demo_script.h"
#include "apps/qvx-sim/runner.h"
#include "apps/qvx-sim/script.h"
#include "apps/qvx-sim/soak.h"

namespace {

using qvx::scenario::Script;

constexpr char kUsage[] =
    "usage: qvx-sim run FILE...   run scenario scripts\n"
    "       qvx-sim demo          run the built-in demo\n"
    "       qvx-sim verbs         list the scenario language's verbs\n"
    "       qvx-sim soak SEED OPERATIONS [FAULT-PERCENT]\n"
    "                             random user actions while host members fail\n";

// 0 held, 1 an expectation failed, 2 the script is malformed or unreadable.
int RunText(std::string_view text, const std::string& name, const qvx::scenario::VerbTable& verbs) {
  Script script;
  if (const auto error = qvx::scenario::ParseScript(text, name, script)) {
    std::cerr << name << ":" << error->lineNumber << ": " << error->message << "\n";
    return 2;
  }
  return qvx::scenario::RunScript(script, verbs, std::cout, std::cerr);
}

int RunFiles(int argc, char** argv, const qvx::scenario::VerbTable& verbs) {
  int worst = 0;
  for (int i = 2; i < argc; ++i) {
    std::ifstream in(argv[i], std::ios::binary);
    if (!in) {
      std::cerr << argv[i] << ": cannot read the file\n";
      worst = 2;
      continue;
    }
    std::stringstream text;
    text << in.rdbuf();
    worst = std::max(worst, RunText(text.str(), argv[i], verbs));
  }
  return worst;
}

int ListVerbs(const qvx::scenario::VerbTable& verbs) {
  for (const auto& [name, verb] : verbs.All()) {
    std::cout << verb.usage << "\n    " << verb.help << "\n";
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    qvx::scenario::VerbTable verbs;
    qvx::scenario::RegisterAllVerbs(verbs);
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "run" && argc > 2) return RunFiles(argc, argv, verbs);
    if (command == "demo" && argc == 2) return RunText(qvx::scenario::DemoScript(), "demo", verbs);
    if (command == "verbs" && argc == 2) return ListVerbs(verbs);
    if (command == "soak" && (argc == 4 || argc == 5)) {
      qvx::scenario::SoakOptions options;
      options.seed = static_cast<uint32_t>(std::stoul(argv[2]));
      options.operations = std::stol(argv[3]);
      if (argc == 5) options.faultPercent = std::stoi(argv[4]);
      return qvx::scenario::RunSoak(options, verbs, std::cout, std::cerr);
    }
    std::cerr << kUsage;
    return command == "--help" || command == "-h" ? 0 : 2;
  } catch (const std::exception& e) {
    std::cerr << "qvx-sim: " << e.what() << "\n";
    return 2;
  }
}
