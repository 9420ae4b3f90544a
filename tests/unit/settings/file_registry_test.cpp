// The POSIX registry file: typed values, sharing between processes, the two
// hives, keys that close themselves, and a
// file that is missing, cut, foreign or garbage.
#include "platform/posix/file_registry.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <iterator>

#include "settings_fixture.h"

namespace qvx::platform {
namespace {

using qvx::testing::FileBytes;
using qvx::testing::kQvxKey;
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

// Every way of reading, through the registry calls and the direct ones, finds nothing.
void ExpectNoValues(FileRegistry& registry) {
  RegistryApi::Key key = 0;
  EXPECT_EQ(OpenQvx(registry, key), kErrorFileNotFound);
  EXPECT_FALSE(registry.ReadValue(kQvxKey, "DBChoice").has_value());
  EXPECT_TRUE(registry.ListValues(kQvxKey).empty());
  EXPECT_FALSE(registry.KeyExists(kQvxKey));
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
    return FileBytes(folder.File("sample.txt"));
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
      {"invalid UTF-8", "QVX registry 1\nvalue\tSoftware\tA\t1\t\xC3(\nend\n"},
      {"dword too big", "QVX registry 1\nvalue\tSoftware\tA\t4\t4294967296\nend\n"},
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
    ExpectNoValues(registry);
    if (!row.bytes) {
      EXPECT_FALSE(std::filesystem::exists(folder.File("sub")));
      continue;
    }
    EXPECT_EQ(FileBytes(path), *row.bytes);
    EXPECT_TRUE(Identity(path) == before);
    if (row.name.starts_with("cut")) {
      ASSERT_TRUE(registry.SetString(kQvxKey, "A", "1"));
      EXPECT_EQ(registry.ListValues(kQvxKey).size(), 1u);
    } else if (row.name == "foreign text") {
      EXPECT_FALSE(registry.SetString(kQvxKey, "A", "1"));
      RegistryApi::Key key = 0;
      EXPECT_EQ(registry.CreateKey(Hive::CurrentUser, u"Software\\Zenbrook\\QVX", key),
                kErrorAccessDenied);
      EXPECT_EQ(FileBytes(path), *row.bytes);
    }
  }
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
  const std::tuple<const char*, uint32_t, long> cases[] = {
      {"Zürich \xF0\x9F\x98\x80", 10, kErrorSuccess},  // the text as held, terminated
      {"ab", 5, kErrorSuccess},                        // shrunk since asked: padded
      {"abcd", 4, kErrorSuccess},                      // grown by one: cut
      {"abcdef", 4, kErrorMoreData},
  };
  for (const auto& [written, units, result] : cases) {
    ASSERT_TRUE(companion.SetString(kQvxKey, "Value", written));
    std::string utf8 = "unchanged", wide = "unchanged";
    EXPECT_EQ(addin.QueryValueUtf8(key, "value", units, utf8), result) << written;
    EXPECT_EQ(addin.RegistryApi::QueryValueUtf8(key, "value", units, wide), result);
    EXPECT_EQ(utf8, wide);
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
  uint32_t type = 0, size = 0;
  ASSERT_EQ(registry.QueryValueInfoA(key, "name", type, size), kErrorSuccess);
  EXPECT_EQ(type, kRegSz);
  EXPECT_EQ(size, 6u);  // with the terminator
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
  EXPECT_EQ(registry.CloseKey(key), kErrorInvalidHandle);  // closed as often as opened
  EXPECT_EQ(registry.QueryValueW(key, u"Name", fits), kErrorInvalidHandle);
  EXPECT_EQ(registry.SetStringValue(key, u"Name", u"x"), kErrorInvalidHandle);
  EXPECT_EQ(registry.CloseKey(999), kErrorInvalidHandle);
  EXPECT_EQ(registry.SetStringValue(999, u"Name", u"x"), kErrorInvalidHandle);
  const std::filesystem::directory_iterator files(folder.File("sub/dir"));
  EXPECT_EQ(std::distance(begin(files), end(files)), 2);  // its lock, and no temporary file
}

}  // namespace
}  // namespace qvx::platform
