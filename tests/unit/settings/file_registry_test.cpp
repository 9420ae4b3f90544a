// The POSIX registry file: typed values, sharing between processes, and a
// file that is missing, cut, foreign or garbage.
#include "platform/posix/file_registry.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <random>
#include <sstream>

#include "settings_fixture.h"

namespace qvx::platform {
namespace {

using qvx::testing::kQvxKey;
using qvx::testing::TempFolder;

std::string Slurp(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

void Spill(const std::string& path, std::string_view bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

struct FileIdentity {
  ino_t inode = 0;
  timespec modified{};
  bool operator==(const FileIdentity& o) const {
    return inode == o.inode && modified.tv_sec == o.modified.tv_sec &&
           modified.tv_nsec == o.modified.tv_nsec;
  }
};

FileIdentity Identity(const std::string& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return {};
  return FileIdentity{st.st_ino, st.st_mtim};
}

// Every way of reading, through the registry calls and the direct ones.
void ReadEverything(FileRegistry& registry) {
  RegistryApi::Key key = 0;
  if (registry.OpenKey(u"Software\\Zenbrook\\QVX", kKeyRead, key) == kErrorSuccess) {
    uint32_t type = 0, size = 0;
    registry.QueryValueInfoA(key, "DBChoice", type, size);
    std::u16string buffer(16, u'\0');
    registry.QueryValueW(key, u"DBChoice", buffer);
    registry.CloseKey(key);
  }
  registry.ReadValue(kQvxKey, "DBChoice");
  registry.ListValues(kQvxKey);
  registry.KeyExists(kQvxKey);
}

// A valid file with a few values of each type.
std::string SampleFile(const std::string& path) {
  FileRegistry registry(path);
  EXPECT_TRUE(registry.SetString(kQvxKey, "DBChoice", "1"));
  EXPECT_TRUE(registry.SetString(kQvxKey, "CustomField1List", "a\r\nb\tc%d"));
  EXPECT_TRUE(registry.SetDword(kQvxKey, "Count", 7));
  EXPECT_TRUE(registry.SetBinary(kQvxKey, "Blob", std::string("\0\xff", 2)));
  return Slurp(path);
}

TEST(FileRegistry, TypedValuesRoundTrip) {
  TempFolder folder;
  FileRegistry registry(folder.File("r.txt"));
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  const std::string text = "tab\there, CR LF\r\n, 100% \x7f, Zürich, \xF0\x9F\x98\x80";
  ASSERT_TRUE(registry.SetString(kQvxKey, "Text", text));
  ASSERT_TRUE(registry.SetString(kQvxKey, "name\twith\ttabs", "x"));
  ASSERT_TRUE(registry.SetDword(kQvxKey, "Max", 0xFFFFFFFFu));
  ASSERT_TRUE(registry.SetBinary(kQvxKey, "Bytes", all));
  FileRegistry other(folder.File("r.txt"));
  EXPECT_EQ(other.ReadString(kQvxKey, "Text"), text);
  EXPECT_EQ(other.ReadString(kQvxKey, "name\twith\ttabs"), "x");
  const auto max = other.ReadValue(kQvxKey, "Max");
  ASSERT_TRUE(max.has_value());
  EXPECT_EQ(max->type, kRegDword);
  EXPECT_EQ(max->data, std::string("\xff\xff\xff\xff"));
  const auto bytes = other.ReadValue(kQvxKey, "Bytes");
  ASSERT_TRUE(bytes.has_value());
  EXPECT_EQ(bytes->type, kRegBinary);
  EXPECT_EQ(bytes->data, all);
  EXPECT_EQ(other.ReadString(kQvxKey, "Max"), std::nullopt);  // not a string
  EXPECT_EQ(other.ListValues(kQvxKey).size(), 4u);
}

TEST(FileRegistry, KeysAndNamesIgnoreCase) {
  TempFolder folder;
  FileRegistry registry(folder.File("r.txt"));
  ASSERT_TRUE(registry.SetString(kQvxKey, "DBChoice", "1"));
  ASSERT_TRUE(registry.SetString("SOFTWARE\\zenbrook\\qvx", "dbchoice", "2"));
  const auto values = registry.ListValues("software\\ZENBROOK\\Qvx");
  ASSERT_EQ(values.size(), 1u);
  EXPECT_EQ(values[0].name, "DBChoice");
  EXPECT_EQ(values[0].value.data, "2");
  EXPECT_TRUE(registry.KeyExists("Software\\Zenbrook"));
}

TEST(FileRegistry, UnstorableValuesAreRefused) {
  TempFolder folder;
  FileRegistry registry(folder.File("r.txt"));
  EXPECT_FALSE(registry.SetString(kQvxKey, "Bad", "\xC3("));
  EXPECT_FALSE(registry.SetString(kQvxKey, "\xFF", "x"));
  EXPECT_FALSE(registry.SetString("", "Name", "x"));
  EXPECT_FALSE(registry.SetValue(kQvxKey, "Short", FileRegistry::Value{kRegDword, "abc"}));
  EXPECT_FALSE(std::filesystem::exists(registry.path()));
}

TEST(FileRegistry, MissingFileReadsAsNoValuesAndIsNotCreated) {
  TempFolder folder;
  FileRegistry registry(folder.File("sub/dir/r.txt"));
  ReadEverything(registry);
  RegistryApi::Key key = 0;
  EXPECT_EQ(registry.OpenKey(u"Software\\Zenbrook\\QVX", kKeyRead, key), kErrorFileNotFound);
  EXPECT_FALSE(std::filesystem::exists(folder.File("sub")));
}

TEST(FileRegistry, FirstWriteMakesTheFoldersAndLeavesNoTemporaryFile) {
  TempFolder folder;
  FileRegistry registry(folder.File("sub/dir/r.txt"));
  ASSERT_TRUE(registry.SetString(kQvxKey, "A", "1"));
  ASSERT_TRUE(registry.SetString(kQvxKey, "B", "2"));
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder.File("sub/dir"))) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"r.txt", "r.txt.lock"}));
}

TEST(FileRegistry, UnreadableFilesReadAsNoValuesAndAreNeverRewrittenByReads) {
  TempFolder folder;
  const std::string valid = SampleFile(folder.File("sample.txt"));
  std::string garbage;
  std::mt19937 random(20260314);
  for (int i = 0; i < 4096; ++i) garbage += static_cast<char>(random() & 0xFF);
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {
      {"empty", ""},
      {"cut before the end", valid.substr(0, valid.size() - 4)},
      {"cut in the header", valid.substr(0, 7)},
      {"no final line break", valid.substr(0, valid.size() - 1)},
      {"text after the end", valid + "value\tx\ty\t1\tz\n"},
      {"other version", "QVX registry 2\nend\n"},
      {"foreign text", "[HKEY_CURRENT_USER\\Software\\Zenbrook\\QVX]\n\"DBChoice\"=\"1\"\n"},
      {"binary garbage", garbage},
      {"NUL bytes", std::string(64, '\0')},
      {"bad escape", "QVX registry 1\nvalue\tSoftware\tA\t1\t%zz\nend\n"},
      {"raw control byte", "QVX registry 1\nvalue\tSoftware\tA\t1\ta\rb\nend\n"},
      {"invalid UTF-8", "QVX registry 1\nvalue\tSoftware\tA\t1\t\xC3(\nend\n"},
      {"escaped invalid UTF-8", "QVX registry 1\nvalue\tSoftware\tA\t1\t%ff\nend\n"},
      {"dword too big", "QVX registry 1\nvalue\tSoftware\tA\t4\t4294967296\nend\n"},
      {"odd hex", "QVX registry 1\nvalue\tSoftware\tA\t3\tabc\nend\n"},
      {"unknown record", "QVX registry 1\nvalues\tSoftware\nend\n"},
      {"empty key path", "QVX registry 1\nkey\t\nend\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string path = folder.File("r.txt");
    Spill(path, row.bytes);
    const FileIdentity before = Identity(path);
    FileRegistry registry(path);
    ReadEverything(registry);
    EXPECT_TRUE(registry.ListValues(kQvxKey).empty());
    EXPECT_FALSE(registry.KeyExists(kQvxKey));
    EXPECT_EQ(Slurp(path), row.bytes);
    EXPECT_TRUE(Identity(path) == before);
  }
}

TEST(FileRegistryFormat, EveryCutOfAValidFileHasNoValues) {
  TempFolder folder;
  const std::string valid = SampleFile(folder.File("sample.txt"));
  regfile::Contents contents;
  for (size_t length = 0; length < valid.size(); ++length) {
    ASSERT_NE(regfile::Parse(valid.substr(0, length), contents), regfile::Verdict::Valid)
        << "cut at " << length;
    ASSERT_EQ(contents.keys.Count(), 0u);
  }
  ASSERT_EQ(regfile::Parse(valid, contents), regfile::Verdict::Valid);
  EXPECT_EQ(regfile::Serialize(contents), valid);
}

TEST(FileRegistryFormat, AnyChangedByteGivesAVerdictAndValidTextRoundTrips) {
  TempFolder folder;
  const std::string valid = SampleFile(folder.File("sample.txt"));
  regfile::Contents contents;
  for (size_t at = 0; at < valid.size(); ++at) {
    for (const char odd : {'\0', '\t', '\n', '%', 'k', '\x80', '\xff'}) {
      std::string bytes = valid;
      bytes[at] = odd;
      if (regfile::Parse(bytes, contents) == regfile::Verdict::Valid) {
        regfile::Contents again;
        ASSERT_EQ(regfile::Parse(regfile::Serialize(contents), again), regfile::Verdict::Valid);
        ASSERT_EQ(regfile::Serialize(again), regfile::Serialize(contents));
      } else {
        ASSERT_EQ(contents.keys.Count(), 0u);
      }
    }
  }
}

TEST(FileRegistry, ChangedBytesInTheFileAreNeverRewrittenByReads) {
  TempFolder folder;
  const std::string valid = SampleFile(folder.File("sample.txt"));
  const std::string path = folder.File("r.txt");
  FileRegistry registry(path);
  for (size_t at = 0; at < valid.size(); at += 11) {
    for (const char odd : {'\0', '\xff'}) {
      std::string bytes = valid;
      bytes[at] = odd;
      Spill(path, bytes);
      ReadEverything(registry);
      ASSERT_EQ(Slurp(path), bytes) << "byte " << at;
    }
  }
}

TEST(FileRegistry, ForeignFileIsNeverOverwritten) {
  TempFolder folder;
  const std::string path = folder.File("r.txt");
  const std::string foreign = "my notes\n";
  Spill(path, foreign);
  FileRegistry registry(path);
  EXPECT_FALSE(registry.SetString(kQvxKey, "A", "1"));
  RegistryApi::Key key = 0;
  EXPECT_EQ(registry.CreateKey(u"Software\\Zenbrook\\QVX", key), kErrorAccessDenied);
  EXPECT_EQ(Slurp(path), foreign);
}

TEST(FileRegistry, DamagedFileOfThisFormatIsReplacedByAWrite) {
  TempFolder folder;
  const std::string valid = SampleFile(folder.File("sample.txt"));
  for (const size_t cut : {valid.size() / 2, size_t{7}, size_t{14}, valid.size() - 1}) {
    SCOPED_TRACE(cut);
    const std::string path = folder.File("r.txt");
    Spill(path, valid.substr(0, cut));
    FileRegistry registry(path);
    ASSERT_TRUE(registry.SetString(kQvxKey, "A", "1"));
    EXPECT_EQ(registry.ReadString(kQvxKey, "A"), "1");
    EXPECT_EQ(registry.ListValues(kQvxKey).size(), 1u);
  }
}

TEST(FileRegistry, SomethingOtherThanAFileReadsAsNoValues) {
  TempFolder folder;
  const std::string fifo = folder.File("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  FileRegistry overPipe(fifo);
  ReadEverything(overPipe);  // must not block
  EXPECT_FALSE(overPipe.SetString(kQvxKey, "A", "1"));
  std::filesystem::create_directory(folder.File("dir"));
  FileRegistry overFolder(folder.File("dir"));
  ReadEverything(overFolder);
  EXPECT_FALSE(overFolder.SetString(kQvxKey, "A", "1"));
  EXPECT_TRUE(std::filesystem::is_directory(folder.File("dir")));
}

TEST(FileRegistry, AnotherWritersChangeIsSeenThroughAnOpenHandle) {
  TempFolder folder;
  FileRegistry addin(folder.File("r.txt"));
  FileRegistry companion(folder.File("r.txt"));
  ASSERT_TRUE(companion.SetString(kQvxKey, "DBChoice", "1"));
  RegistryApi::Key key = 0;
  ASSERT_EQ(addin.OpenKey(u"Software\\Zenbrook\\QVX", kKeyRead, key), kErrorSuccess);
  uint32_t type = 0, size = 0;
  EXPECT_EQ(addin.QueryValueInfoA(key, "AutoSyncToDB", type, size), kErrorFileNotFound);
  ASSERT_TRUE(companion.SetString(kQvxKey, "AutoSyncToDB", "-1"));
  ASSERT_TRUE(companion.SetString(kQvxKey, "DBChoice", "2"));  // same size, new text
  ASSERT_EQ(addin.QueryValueInfoA(key, "AutoSyncToDB", type, size), kErrorSuccess);
  EXPECT_EQ(size, 3u);
  std::u16string buffer(2, u'\0');
  ASSERT_EQ(addin.QueryValueW(key, u"DBChoice", buffer), kErrorSuccess);
  EXPECT_EQ(buffer[0], u'2');
  EXPECT_EQ(addin.CloseKey(key), kErrorSuccess);
}

TEST(FileRegistry, WritersKeepEachOthersValues) {
  TempFolder folder;
  FileRegistry first(folder.File("r.txt"));
  FileRegistry second(folder.File("r.txt"));
  for (int i = 0; i < 20; ++i) {
    ASSERT_TRUE(first.SetString(kQvxKey, "A" + std::to_string(i), "a"));
    ASSERT_TRUE(second.SetString(kQvxKey, "B" + std::to_string(i), "b"));
  }
  EXPECT_EQ(first.ListValues(kQvxKey).size(), 40u);
}

TEST(FileRegistry, RegistryCallResults) {
  TempFolder folder;
  FileRegistry registry(folder.File("r.txt"));
  RegistryApi::Key key = 0;
  ASSERT_EQ(registry.CreateKey(u"Software\\Zenbrook\\QVX", key), kErrorSuccess);
  EXPECT_TRUE(registry.KeyExists(kQvxKey));
  EXPECT_TRUE(registry.ListValues(kQvxKey).empty());
  ASSERT_EQ(registry.SetStringValue(key, u"Name", u"hello"), kErrorSuccess);
  ASSERT_EQ(registry.SetStringValue(key, u"Empty", u""), kErrorSuccess);
  uint32_t type = 0, size = 0;
  ASSERT_EQ(registry.QueryValueInfoA(key, "name", type, size), kErrorSuccess);
  EXPECT_EQ(type, kRegSz);
  EXPECT_EQ(size, 6u);
  ASSERT_EQ(registry.QueryValueInfoA(key, "Empty", type, size), kErrorSuccess);
  EXPECT_EQ(size, 0u);
  std::u16string small(4, u'\0');
  EXPECT_EQ(registry.QueryValueW(key, u"Name", small), kErrorMoreData);
  std::u16string fits(5, u'\0');
  EXPECT_EQ(registry.QueryValueW(key, u"Name", fits), kErrorSuccess);
  EXPECT_EQ(fits, u"hello");
  EXPECT_EQ(registry.CloseKey(key), kErrorSuccess);
  EXPECT_EQ(registry.OpenHandles(), 0u);
  EXPECT_EQ(registry.CloseKey(0), kErrorInvalidHandle);
  EXPECT_EQ(registry.CloseKey(999), kErrorInvalidHandle);
  EXPECT_EQ(registry.QueryValueInfoA(999, "Name", type, size), kErrorInvalidHandle);
  EXPECT_EQ(registry.SetStringValue(999, u"Name", u"x"), kErrorInvalidHandle);
}

TEST(FileRegistry, CreatingAnExistingKeyWritesNothing) {
  TempFolder folder;
  const std::string path = folder.File("r.txt");
  FileRegistry registry(path);
  ASSERT_TRUE(registry.SetString(kQvxKey, "A", "1"));
  const FileIdentity before = Identity(path);
  RegistryApi::Key key = 0;
  ASSERT_EQ(registry.CreateKey(u"Software\\Zenbrook\\QVX", key), kErrorSuccess);
  ASSERT_TRUE(registry.SetString(kQvxKey, "A", "1"));  // unchanged value
  EXPECT_TRUE(Identity(path) == before);
  registry.CloseKey(key);
}

TEST(FileRegistry, DefaultLocationFollowsTheEnvironment) {
  struct Saved {
    const char* name;
    std::optional<std::string> value;
  };
  std::vector<Saved> saved;
  for (const char* name : {"QVX_REGISTRY_FILE", "XDG_DATA_HOME", "HOME"}) {
    const char* v = std::getenv(name);
    saved.push_back({name, v ? std::optional<std::string>(v) : std::nullopt});
  }
  ::setenv("HOME", "/home/jane", 1);
  ::unsetenv("XDG_DATA_HOME");
  ::unsetenv("QVX_REGISTRY_FILE");
  EXPECT_EQ(FileRegistry::DefaultLocation(), "/home/jane/.local/share/quorvix/registry.txt");
  ::setenv("XDG_DATA_HOME", "/data/jane", 1);
  EXPECT_EQ(FileRegistry::DefaultLocation(), "/data/jane/quorvix/registry.txt");
  ::setenv("QVX_REGISTRY_FILE", "/tmp/shared-registry.txt", 1);
  EXPECT_EQ(FileRegistry::DefaultLocation(), "/tmp/shared-registry.txt");
  EXPECT_EQ(FileRegistry().path(), "/tmp/shared-registry.txt");
  for (const Saved& s : saved) {
    if (s.value) {
      ::setenv(s.name, s.value->c_str(), 1);
    } else {
      ::unsetenv(s.name);
    }
  }
}

}  // namespace
}  // namespace qvx::platform
