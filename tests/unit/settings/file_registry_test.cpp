// The POSIX registry file: typed values, sharing between processes, the two
// hives, keys that close themselves, and a
// file that is missing, cut, foreign or garbage.
#include "platform/posix/file_registry.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>

#include "settings_fixture.h"

namespace qvx::platform {
namespace {

using qvx::testing::kQvxKey;
using qvx::testing::Slurp;
using qvx::testing::TempFolder;

void Spill(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Opens the settings key for reading.
long OpenQvx(FileRegistry& registry, RegistryApi::Key& key) {
  return registry.OpenKey(Hive::CurrentUser, u"Software\\Zenbrook\\QVX", kKeyRead, key);
}

// The inode and modification time: a rewrite changes one or the other.
std::pair<ino_t, std::pair<time_t, long>> Identity(const std::string& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return {};
  return {st.st_ino, {st.st_mtim.tv_sec, st.st_mtim.tv_nsec}};
}

// Every way of reading, through the registry calls and the direct ones.
void ReadEverything(FileRegistry& registry) {
  RegistryApi::Key key = 0;
  if (OpenQvx(registry, key) == kErrorSuccess) {
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

// The add-in's registry and the companion's, on one file.
struct FileRegistryTest : ::testing::Test {
  TempFolder folder;
  FileRegistry addin{folder.File("r.txt")};
  FileRegistry companion{folder.File("r.txt")};
};

TEST_F(FileRegistryTest, TypedValuesRoundTripAndNamesIgnoreCase) {
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  const std::string text = "tab\there, CR LF\r\n, 100% \x7f, Zürich, \xF0\x9F\x98\x80";
  ASSERT_TRUE(addin.SetString(kQvxKey, "Text", text));
  ASSERT_TRUE(addin.SetString(kQvxKey, "name\twith\ttabs", "x"));
  ASSERT_TRUE(addin.SetString("SOFTWARE\\zenbrook\\qvx", "NAME\tWITH\tTABS", "y"));
  ASSERT_TRUE(addin.SetDword(kQvxKey, "Max", 0xFFFFFFFFu));
  ASSERT_TRUE(addin.SetBinary(kQvxKey, "Bytes", all));
  EXPECT_EQ(companion.ReadString(kQvxKey, "Text"), text);
  const auto values = companion.ListValues("software\\ZENBROOK\\Qvx");
  ASSERT_EQ(values.size(), 4u);
  EXPECT_EQ(values[1].name, "name\twith\ttabs");  // the first spelling stays
  EXPECT_EQ(values[1].value.data, "y");
  EXPECT_EQ(values[2].value.type, kRegDword);
  EXPECT_EQ(values[2].value.data, std::string("\xff\xff\xff\xff"));
  EXPECT_EQ(values[3].value.type, kRegBinary);
  EXPECT_EQ(values[3].value.data, all);
  EXPECT_EQ(companion.ReadString(kQvxKey, "Max"), std::nullopt);  // not a string
  EXPECT_TRUE(companion.KeyExists("Software\\Zenbrook"));
}

TEST_F(FileRegistryTest, UnstorableValuesAreRefused) {
  EXPECT_FALSE(addin.SetString(kQvxKey, "Bad", "\xC3("));
  EXPECT_FALSE(addin.SetString(kQvxKey, "\xFF", "x"));
  EXPECT_FALSE(addin.SetString("", "Name", "x"));
  EXPECT_FALSE(addin.SetValue(kQvxKey, "Short", FileRegistry::Value{kRegDword, "abc"}));
  EXPECT_FALSE(std::filesystem::exists(addin.path()));
}

// A file that is missing, cut anywhere, foreign or damaged reads as no values,
// and a read never writes it; a write replaces a cut file but no foreign one.
TEST(FileRegistry, UnreadableFilesReadAsNoValuesAndAreNeverRewrittenByReads) {
  TempFolder folder;
  const std::string valid = [&] {
    FileRegistry sample(folder.File("sample.txt"));
    EXPECT_TRUE(sample.SetString(kQvxKey, "DBChoice", "1"));
    EXPECT_TRUE(sample.SetString(kQvxKey, "CustomField1List", "a\r\nb\tc%d"));
    EXPECT_TRUE(sample.SetDword(kQvxKey, "Count", 7));
    EXPECT_TRUE(sample.SetBinary(kQvxKey, "Blob", std::string("\0\xff", 2)));
    return Slurp(folder.File("sample.txt"));
  }();
  struct Row {
    std::string name;
    std::optional<std::string> bytes;  // nothing: no file
  };
  std::vector<Row> rows = {
      {"missing", std::nullopt},
      {"text after the end", valid + "value\tx\ty\t1\tz\n"},
      {"other version", "QVX registry 2\nend\n"},
      {"foreign text", "[HKEY_CURRENT_USER\\Software\\Zenbrook\\QVX]\n\"DBChoice\"=\"1\"\n"},
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
  for (size_t length = 0; length < valid.size(); ++length) {
    rows.push_back({"cut at " + std::to_string(length), valid.substr(0, length)});
  }
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string path = folder.File("sub/r.txt");
    std::filesystem::remove_all(folder.File("sub"));
    if (row.bytes) {
      std::filesystem::create_directory(folder.File("sub"));
      Spill(path, *row.bytes);
    }
    const auto before = Identity(path);
    FileRegistry registry(path);
    ReadEverything(registry);
    RegistryApi::Key key = 0;
    EXPECT_EQ(OpenQvx(registry, key), kErrorFileNotFound);
    EXPECT_TRUE(registry.ListValues(kQvxKey).empty());
    EXPECT_FALSE(registry.KeyExists(kQvxKey));
    if (!row.bytes) {
      EXPECT_FALSE(std::filesystem::exists(folder.File("sub")));
      continue;
    }
    EXPECT_EQ(Slurp(path), *row.bytes);
    EXPECT_TRUE(Identity(path) == before);
    if (row.name.starts_with("cut")) {
      ASSERT_TRUE(registry.SetString(kQvxKey, "A", "1"));
      EXPECT_EQ(registry.ListValues(kQvxKey).size(), 1u);
    } else if (row.name == "foreign text") {
      EXPECT_FALSE(registry.SetString(kQvxKey, "A", "1"));
      EXPECT_EQ(registry.CreateKey(Hive::CurrentUser, u"Software\\Zenbrook\\QVX", key),
                kErrorAccessDenied);
      EXPECT_EQ(Slurp(path), *row.bytes);
    }
  }
}

TEST(FileRegistry, SomethingOtherThanAFileReadsAsNoValues) {
  TempFolder folder;
  const std::string fifo = folder.File("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  std::filesystem::create_directory(folder.File("dir"));
  for (const std::string& path : {fifo, folder.File("dir")}) {
    FileRegistry registry(path);
    ReadEverything(registry);  // must not block
    EXPECT_FALSE(registry.SetString(kQvxKey, "A", "1"));
  }
  EXPECT_TRUE(std::filesystem::is_directory(folder.File("dir")));
}

// Each reader sees every write of the other at once, whether its copy of the
// file counts as settled at once (a write must then change the file's stamp)
// or only later (the file is read again until then).
TEST(FileRegistry, WritersShareTheFile) {
  for (const std::chrono::nanoseconds settle :
       {std::chrono::nanoseconds(0), std::chrono::nanoseconds(std::chrono::hours(1))}) {
    TempFolder folder;
    FileRegistry addin(folder.File("r.txt"));
    FileRegistry companion(folder.File("r.txt"));
    addin.SetSettleTime(settle);
    companion.SetSettleTime(settle);
    ASSERT_TRUE(companion.SetString(kQvxKey, "DBChoice", "1"));
    RegistryApi::Key key = 0;
    ASSERT_EQ(OpenQvx(addin, key), kErrorSuccess);
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
    for (int i = 0; i < 20; ++i) {
      ASSERT_TRUE(addin.SetString(kQvxKey, "A" + std::to_string(i), "a"));
      ASSERT_TRUE(companion.SetString(kQvxKey, "B" + std::to_string(i), "b"));
    }
    EXPECT_EQ(addin.ListValues(kQvxKey).size(), 42u);
  }
}

// The UTF-8 read of a text value answers as the wide read converted would,
// for each value the companion writes after the add-in's last read.
TEST_F(FileRegistryTest, Utf8ReadIsTheWideReadAndSeesEachNewWrite) {
  addin.SetSettleTime(std::chrono::nanoseconds(0));
  ASSERT_TRUE(companion.SetString(kQvxKey, "Value", "first"));
  RegistryApi::Key key = 0;
  ASSERT_EQ(OpenQvx(addin, key), kErrorSuccess);
  const struct {
    const char* written;
    uint32_t units;  // 0: as QueryValueInfoA reports after the write
    long result;
  } cases[] = {
      {"Zürich \xF0\x9F\x98\x80", 0, kErrorSuccess},  // the text as held
      {"ab", 5, kErrorSuccess},                       // shrunk since asked: padded
      {"abcd", 4, kErrorSuccess},                     // grown by one: cut
      {"abcdef", 4, kErrorMoreData},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.written);
    ASSERT_TRUE(companion.SetString(kQvxKey, "Value", c.written));
    uint32_t type = 0, units = c.units;
    if (units == 0) {
      ASSERT_EQ(addin.QueryValueInfoA(key, "Value", type, units), kErrorSuccess);
    }
    std::string utf8 = "unchanged", wide = "unchanged";
    EXPECT_EQ(addin.QueryValueUtf8(key, "value", units, utf8), c.result);
    EXPECT_EQ(addin.RegistryApi::QueryValueUtf8(key, "value", units, wide), c.result);
    EXPECT_EQ(utf8, wide);
    if (c.units == 0) {
      EXPECT_EQ(utf8, c.written);
    }
  }
  EXPECT_EQ(addin.CloseKey(key), kErrorSuccess);
}

TEST_F(FileRegistryTest, ReadsTheFileAgainOnlyWhenItChanged) {
  addin.SetSettleTime(std::chrono::nanoseconds(0));
  ASSERT_TRUE(companion.SetString(kQvxKey, "DBChoice", "1"));
  for (int i = 0; i < 50; ++i) EXPECT_EQ(addin.ReadString(kQvxKey, "DBChoice"), "1");
  EXPECT_EQ(addin.FileReads(), 1u);
  ASSERT_TRUE(companion.SetString(kQvxKey, "DBChoice", "2"));
  for (int i = 0; i < 50; ++i) EXPECT_EQ(addin.ReadString(kQvxKey, "DBChoice"), "2");
  EXPECT_EQ(addin.FileReads(), 2u);
  // Its own write of an unchanged file reads nothing, before or after.
  ASSERT_TRUE(addin.SetString(kQvxKey, "DBChoice", "3"));
  EXPECT_EQ(addin.ReadString(kQvxKey, "DBChoice"), "3");
  EXPECT_EQ(addin.FileReads(), 2u);
  ASSERT_EQ(std::filesystem::remove(folder.File("r.txt")), true);
  EXPECT_EQ(addin.ReadString(kQvxKey, "DBChoice"), std::nullopt);
}

TEST(FileRegistry, RegistryCallResults) {
  TempFolder folder;
  const std::string path = folder.File("sub/dir/r.txt");  // the first write makes the folders
  FileRegistry registry(path);
  RegistryApi::Key key = 0;
  ASSERT_EQ(registry.CreateKey(Hive::CurrentUser, u"Software\\Zenbrook\\QVX", key), kErrorSuccess);
  EXPECT_TRUE(registry.KeyExists(kQvxKey));
  ASSERT_EQ(registry.SetStringValue(key, u"Name", u"hello"), kErrorSuccess);
  ASSERT_EQ(registry.SetStringValue(key, u"Empty", u""), kErrorSuccess);
  uint32_t type = 0, size = 0;
  ASSERT_EQ(registry.QueryValueInfoA(key, "name", type, size), kErrorSuccess);
  EXPECT_EQ(type, kRegSz);
  EXPECT_EQ(size, 6u);  // with the terminator
  ASSERT_EQ(registry.QueryValueInfoA(key, "Empty", type, size), kErrorSuccess);
  EXPECT_EQ(size, 0u);
  std::u16string small(4, u'\0');
  EXPECT_EQ(registry.QueryValueW(key, u"Name", small), kErrorMoreData);
  std::u16string fits(5, u'\0');
  EXPECT_EQ(registry.QueryValueW(key, u"Name", fits), kErrorSuccess);
  EXPECT_EQ(fits, u"hello");
  // Creating an existing key or storing an unchanged value writes nothing.
  const auto before = Identity(path);
  RegistryApi::Key again = 0;
  ASSERT_EQ(registry.CreateKey(Hive::CurrentUser, u"Software\\Zenbrook\\QVX", again),
            kErrorSuccess);
  ASSERT_TRUE(registry.SetString(kQvxKey, "Name", "hello"));
  EXPECT_TRUE(Identity(path) == before);
  EXPECT_EQ(registry.CloseKey(again), kErrorSuccess);
  EXPECT_EQ(registry.CloseKey(key), kErrorSuccess);
  EXPECT_EQ(registry.OpenHandles(), 0u);
  EXPECT_EQ(registry.CloseKey(0), kErrorInvalidHandle);
  EXPECT_EQ(registry.CloseKey(999), kErrorInvalidHandle);
  EXPECT_EQ(registry.QueryValueInfoA(999, "Name", type, size), kErrorInvalidHandle);
  EXPECT_EQ(registry.SetStringValue(999, u"Name", u"x"), kErrorInvalidHandle);
  std::vector<std::string> names;  // and no temporary file is left
  for (const auto& entry : std::filesystem::directory_iterator(folder.File("sub/dir"))) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"r.txt", "r.txt.lock"}));
}

TEST(FileRegistry, DefaultLocationFollowsTheEnvironment) {
  std::vector<std::pair<const char*, std::optional<std::string>>> saved;
  for (const char* name : {"QVX_REGISTRY_FILE", "XDG_DATA_HOME", "HOME"}) {
    const char* v = std::getenv(name);
    saved.emplace_back(name, v ? std::optional<std::string>(v) : std::nullopt);
  }
  ::setenv("HOME", "/home/jane", 1);
  ::unsetenv("XDG_DATA_HOME");
  ::unsetenv("QVX_REGISTRY_FILE");
  EXPECT_EQ(FileRegistry::DefaultLocation(), "/home/jane/.local/share/quorvix/registry.txt");
  ::setenv("XDG_DATA_HOME", "/data/jane", 1);
  EXPECT_EQ(FileRegistry::DefaultLocation(), "/data/jane/quorvix/registry.txt");
  ::setenv("QVX_REGISTRY_FILE", "/tmp/shared-registry.txt", 1);
  EXPECT_EQ(FileRegistry().path(), "/tmp/shared-registry.txt");
  for (const auto& [name, value] : saved) {
    value ? ::setenv(name, value->c_str(), 1) : ::unsetenv(name);
  }
}

TEST_F(FileRegistryTest, TheMachineHiveIsASecondFileBesideTheUsersOwn) {
  EXPECT_EQ(addin.path(Hive::LocalMachine), folder.File("machine-registry.txt"));
  const std::string key = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
  ASSERT_TRUE(addin.SetString(key, "PATH", "C:\\msinfo32.exe", Hive::LocalMachine));
  ASSERT_TRUE(addin.SetString(kQvxKey, "DBChoice", "1"));
  EXPECT_EQ(addin.ReadString(key, "PATH", Hive::LocalMachine), "C:\\msinfo32.exe");
  EXPECT_FALSE(addin.KeyExists(key));  // not in the user's hive
  EXPECT_FALSE(addin.KeyExists(kQvxKey, Hive::LocalMachine));
  EXPECT_EQ(Slurp(folder.File("r.txt")).find("MSINFO"), std::string::npos);
  EXPECT_NE(Slurp(folder.File("machine-registry.txt")).find("QVX registry 1\n"),
            std::string::npos);  // the same format
  // Read through the registry calls by the about box: about_key_value_test.

  // Another process sees the same machine file.
  EXPECT_EQ(companion.ReadString(key, "PATH", Hive::LocalMachine), "C:\\msinfo32.exe");
}

}  // namespace
}  // namespace qvx::platform
