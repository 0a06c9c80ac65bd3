#include "export/view/base64.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "tests/export/view/decoded_page.h"

namespace KelIFC::exporting {
namespace {

std::string Encoded(std::string_view bytes, std::size_t step = 1000) {
  std::string text;
  Base64Writer writer([&](std::string_view digits) { text += digits; });
  for (std::size_t at = 0; at < bytes.size(); at += step) writer.Write(bytes.substr(at, step));
  writer.Finish();
  return text;
}

TEST(Base64, WritesTheVectorsOfTheStandard) {
  for (const auto& [bytes, text] :
       {std::pair("", ""), std::pair("f", "Zg=="), std::pair("fo", "Zm8="),
        std::pair("foo", "Zm9v"), std::pair("foob", "Zm9vYg=="), std::pair("foobar", "Zm9vYmFy")}) {
    EXPECT_EQ(Encoded(bytes), text);
  }
  EXPECT_EQ(Encoded("\xFF\xEF\xFE"), "/+/+");
}

TEST(Base64, DoesNotDependOnHowTheBytesAreCut) {
  std::string bytes;
  for (int i = 0; i < 1000; i++) bytes += static_cast<char>(i * 7 % 256);
  const std::string whole = Encoded(bytes);
  EXPECT_EQ(BytesOfBase64(whole), bytes);
  for (const std::size_t step : {1U, 2U, 3U, 4U, 5U, 7U, 100U, 999U}) {
    EXPECT_EQ(Encoded(bytes, step), whole) << step;
  }
}

TEST(Base64, IsOneLine) {
  const std::string text = Encoded(std::string(200'001, '\xFF'), 200'001);
  EXPECT_EQ(text.size(), 266'668U);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 0);
  EXPECT_EQ(BytesOfBase64(text), std::string(200'001, '\xFF'));
}

}  // namespace
}  // namespace KelIFC::exporting
