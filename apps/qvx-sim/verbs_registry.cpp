// registry set / set-machine / set-dword / set-binary / file / expect / expect-absent
#include <fstream>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"

namespace qvx::scenario {
namespace {

// "Name" is a value of the settings key; "Sub\Key\Name" names its key.
struct ValuePath {
  std::string key;
  std::string name;
};

ValuePath PathOf(const std::string& word) {
  const size_t slash = word.rfind('\\');
  if (slash == std::string::npos) return {kSettingsKey, word};
  return {word.substr(0, slash), word.substr(slash + 1)};
}

void Written(bool ok, const std::string& what) {
  if (!ok) throw UsageError("the registry file refused " + what);
}

}  // namespace

void RegisterRegistryVerbs(VerbTable& table) {
  table.Add("registry set", "registry set NAME TEXT",
            "writes a text value (REG_SZ) under Software\\Zenbrook\\QVX, or KEY\\NAME",
            [](World& w, const Args& a) {
              a.Expect(2);
              const ValuePath p = PathOf(a.At(0));
              Written(w.registry().SetString(p.key, p.name, a.At(1)), a.At(0));
            });
  table.Add("registry set-machine", "registry set-machine KEY\\NAME TEXT",
            "writes a text value (REG_SZ) under HKEY_LOCAL_MACHINE", [](World& w, const Args& a) {
              a.Expect(2);
              const ValuePath p = PathOf(a.At(0));
              Written(w.registry().SetString(p.key, p.name, a.At(1), platform::Hive::LocalMachine),
                      a.At(0));
            });
  table.Add("registry set-dword", "registry set-dword NAME NUMBER",
            "writes a REG_DWORD value (not a string, for the store's type check)",
            [](World& w, const Args& a) {
              a.Expect(2);
              const ValuePath p = PathOf(a.At(0));
              Written(w.registry().SetDword(p.key, p.name, static_cast<uint32_t>(a.Int(1))),
                      a.At(0));
            });
  table.Add("registry set-binary", "registry set-binary NAME BYTES",
            "writes a REG_BINARY value holding the bytes of the word", [](World& w, const Args& a) {
              a.Expect(2);
              const ValuePath p = PathOf(a.At(0));
              Written(w.registry().SetBinary(p.key, p.name, a.At(1)), a.At(0));
            });
  table.Add("registry file", "registry file TEXT",
            "replaces the registry file by the raw text (damaged or foreign files)",
            [](World& w, const Args& a) {
              a.Expect(1);
              std::ofstream out(w.registry().path(), std::ios::binary | std::ios::trunc);
              out << a.At(0);
              if (!out) throw UsageError("cannot write " + w.registry().path());
            });
  table.Add("registry expect", "registry expect NAME TEXT", "the value is a text equal to TEXT",
            [](World& w, const Args& a) {
              a.Expect(2);
              const ValuePath p = PathOf(a.At(0));
              const auto value = w.registry().ReadValue(p.key, p.name);
              const auto text = w.registry().ReadString(p.key, p.name);
              if (!value) throw ExpectationFailed(Shown(a.At(1)), "(absent)");
              if (!text) throw ExpectationFailed(Shown(a.At(1)), "(not a text value)");
              ExpectEqual(a.At(1), *text);
            });
  table.Add("registry expect-absent", "registry expect-absent NAME", "the value does not exist",
            [](World& w, const Args& a) {
              a.Expect(1);
              const ValuePath p = PathOf(a.At(0));
              if (const auto text = w.registry().ReadString(p.key, p.name)) {
                throw ExpectationFailed("(absent)", Shown(*text));
              }
              if (w.registry().ReadValue(p.key, p.name)) {
                throw ExpectationFailed("(absent)", "(a value of another type)");
              }
            });
}

}  // namespace qvx::scenario
