#include "export/view/gzip.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "tests/export/view/decoded_page.h"

namespace KelIFC::exporting {
namespace {

std::string Packed(std::string_view bytes, std::size_t step) {
  std::string packed;
  const std::unique_ptr<ByteFilter> gzip = MakeGzip([&](std::string_view part) { packed += part; });
  for (std::size_t at = 0; at < bytes.size(); at += step) gzip->Write(bytes.substr(at, step));
  gzip->Finish();
  return packed;
}

class Gzip : public testing::Test {
 protected:
  void SetUp() override {
    if (!MakeGzip([](std::string_view) {})) GTEST_SKIP() << "this build has no zlib";
  }
};

TEST_F(Gzip, ExpandsToTheSameBytes) {
  std::string bytes;
  for (unsigned i = 0; i < 500'000; i++) bytes += static_cast<char>(i * i % 251);
  EXPECT_EQ(ExpandedGzip(Packed(bytes, 9'973)), bytes);
  EXPECT_EQ(ExpandedGzip(Packed(bytes, bytes.size())), bytes);
  EXPECT_EQ(ExpandedGzip(Packed("", 1)), "");
}

TEST_F(Gzip, HasNoTimeAndNoSystemInItsHeader) {
  const std::string packed = Packed("bytes", 5);
  EXPECT_EQ(packed.substr(0, 4), std::string_view("\x1F\x8B\x08\x00", 4));
  EXPECT_EQ(packed.substr(4, 4), std::string(4, '\0'));
  EXPECT_EQ(packed[9], '\xFF');
}

}  // namespace
}  // namespace KelIFC::exporting
