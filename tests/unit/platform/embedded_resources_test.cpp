// The native build's resources: documents found by type, name and language
// exactly as the files hold them, pictures that name themselves and give
// their size, and 326 for whatever is not there.
#include "platform/posix/embedded_resources.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <sstream>

#include "core/variant.h"

namespace qvx::testing {
// The sample documents of tests/resources/sample, embedded by the build.
std::span<const platform::EmbeddedResource> SampleResources();
}  // namespace qvx::testing

namespace qvx::platform {
namespace {

std::string FileBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

int32_t Failed326(const std::function<void()>& call) {
  try {
    call();
  } catch (const Failure& f) {
    EXPECT_EQ(f.description(), "Resource with identifier not found");
    return f.number();
  }
  return 0;
}

TEST(EmbeddedResources, ADocumentComesByteForByteWhateverTheCaseOfTypeAndName) {
  EmbeddedResources resources(qvx::testing::SampleResources());
  const std::string file = FileBytes(QVX_TEST_RESOURCES_DIR "/sample/LINES_(CRLF).xml");
  ASSERT_FALSE(file.empty());
  for (const auto& [type, name] :
       {std::pair{"QVX_SAMPLE", "LINES_(CRLF)"}, std::pair{"qvx_sample", "Lines_(crlf)"}}) {
    SCOPED_TRACE(std::string(type) + " " + name);
    EXPECT_EQ(resources.FindData(type, name, kLanguageEnglishUs), file);
    EXPECT_EQ(LoadResData(resources, type, name), file);
  }
}

TEST(EmbeddedResources, NoResourceOfAnotherTypeNameOrLanguage) {
  EmbeddedResources resources(qvx::testing::SampleResources());
  const struct {
    const char* why;
    const char* type;
    const char* name;
    uint16_t language;
  } rows[] = {
      {"another name", "QVX_SAMPLE", "LINES", kLanguageEnglishUs},
      {"another type", "VIEWS_TASK", "LINES_(CRLF)", kLanguageEnglishUs},
      {"German", "QVX_SAMPLE", "LINES_(CRLF)", 1031},
      {"neutral", "QVX_SAMPLE", "LINES_(CRLF)", 0},
      {"empty name", "QVX_SAMPLE", "", kLanguageEnglishUs},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(resources.FindData(row.type, row.name, row.language), std::nullopt);
    EXPECT_EQ(Failed326([&] { LoadResData(resources, row.type, row.name, row.language); }),
              err::kResourceNotFound);
  }
  EXPECT_TRUE(resources.FindPicture("LINES_(CRLF)").IsNothing());  // a document is no picture
}

TEST(EmbeddedResources, TheProductsPicturesNameThemselvesAndGiveTheirSize) {
  EmbeddedResources resources(ProductResources());
  const struct {
    const char* asked;
    const char* name;
    int32_t himetric;  // 32 pixels: 847, 64 pixels: 1693 at 96 dots per inch
  } rows[] = {
      {"Report", "REPORT", 847},
      {"Withdraw", "WITHDRAW", 847},
      {"about", "ABOUT", 1693},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.asked);
    const Object picture = LoadResPicture(resources, row.asked);
    EXPECT_EQ(picture.TypeName(), "Picture");
    EXPECT_EQ(picture.Get("Name").ToText(), row.name);
    EXPECT_EQ(picture.Get("Type").ToLong(), 1);
    EXPECT_EQ(picture.Get("Width").ToLong(), row.himetric);
    EXPECT_EQ(picture.Get("Height").ToLong(), row.himetric);
  }
}

TEST(EmbeddedResources, AMissingOrDamagedPictureIsNothing) {
  static constexpr EmbeddedResource table[] = {
      {"BITMAP", "CUT", kLanguageEnglishUs, "BM\x10\x00"},
      {"BITMAP", "PNG", kLanguageEnglishUs, "\x89PNG\r\n\x1a\n0000000000000000000000"},
      {"QVX_SAMPLE", "TEXT", kLanguageEnglishUs, "text"},
  };
  EmbeddedResources resources(table);
  for (const char* name : {"CUT", "PNG", "TEXT", "Nothing"}) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(resources.FindPicture(name).IsNothing());
    EXPECT_EQ(Failed326([&] { LoadResPicture(resources, name); }), err::kResourceNotFound);
  }
}

}  // namespace
}  // namespace qvx::platform
