// The native build's resources where the add-in depends on their failures:
// nothing of another type, name or language, no picture from what is not one,
// and 326 for each. Documents and pictures found are proven by the views and
// about box scenarios.
#include "platform/posix/embedded_resources.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/variant.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::testing {
// The sample documents of tests/resources/sample, embedded by the build.
std::span<const platform::EmbeddedResource> SampleResources();
}  // namespace qvx::testing

namespace qvx::platform {
namespace {

// The number of the failure `call` raises, with the description that goes with 326.
int32_t Failed326(const std::function<void()>& call) {
  const Failure failure = sim::testing::FailureOf(call);
  EXPECT_EQ(failure.description(), "Resource with identifier not found");
  return failure.number();
}

TEST(EmbeddedResources, NoResourceOfAnotherTypeNameOrLanguage) {
  EmbeddedResources resources(qvx::testing::SampleResources());
  ASSERT_TRUE(resources.FindData("qvx_sample", "Lines_(crlf)", kLanguageEnglishUs));  // case-blind
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
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(resources.FindData(row.type, row.name, row.language), std::nullopt);
    EXPECT_EQ(Failed326([&] { LoadResData(resources, row.type, row.name, row.language); }),
              err::kResourceNotFound);
  }
  EXPECT_TRUE(resources.FindPicture("LINES_(CRLF)").IsNothing());  // a document is no picture
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
