#include "kelifc/core/text/reference_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "kelifc/core/text/number_text.h"

namespace KelIFC {
namespace {

TEST(ReferenceText, EndsAfterTheDigits) {
  std::uint32_t number = 0;
  const char* const text = "#123,#4";
  EXPECT_EQ(ReadPlainReference(text, number), text + 4);
  EXPECT_EQ(number, 123U);
  const char* const zero = "#0";
  EXPECT_EQ(ReadPlainReference(zero, number), zero + 2);
  EXPECT_EQ(number, 0U);
}

TEST(ReferenceText, HasOneToNineDigits) {
  std::uint32_t number = 0;
  EXPECT_NE(ReadPlainReference("#999999999", number), nullptr);
  EXPECT_EQ(number, 999999999U);
  EXPECT_EQ(ReadPlainReference("#1000000000", number), nullptr);
  EXPECT_EQ(ReadPlainReference("#", number), nullptr);
}

TEST(ReferenceText, HasNothingElseBeforeTheDigits) {
  std::uint32_t number = 0;
  for (const char* text : {"", "1", " #1", "# 1", "#-1", "#+1", "##1", "#x", "#\xB2", "$"}) {
    EXPECT_EQ(ReadPlainReference(text, number), nullptr) << text;
  }
}

TEST(ReferenceText, HasTheNumberThatReadIntegerReturns) {
  std::mt19937 random(19);
  constexpr char kCharacters[] = "0123456789012345678901234567890123456789 -+,)x";
  int count = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string text = "#";
    for (std::size_t length = random() % 13; length > 0; --length) {
      text += kCharacters[random() % (sizeof kCharacters - 1)];
    }
    std::uint32_t number = 0;
    const char* const end = ReadPlainReference(text.c_str(), number);
    if (end == nullptr) continue;
    const char* expectedEnd = nullptr;
    ASSERT_EQ(static_cast<std::int32_t>(number), ReadInteger(text.c_str() + 1, &expectedEnd));
    ASSERT_EQ(end, expectedEnd) << text;
    ++count;
  }
  EXPECT_GT(count, 5000);
}

}  // namespace
}  // namespace KelIFC
