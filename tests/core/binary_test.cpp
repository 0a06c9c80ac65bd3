#include "kelifc/core/binary.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Binary, IsUnsetAtFirst) {
  EXPECT_FALSE(BINARY<2>().GetExists());
  EXPECT_EQ(Text(BINARY<2>()), "$");
}

TEST(Binary, ReadsAndWritesItsBits) {
  BINARY<2> value;
  EXPECT_EQ(RestOf(value, " \"01\" ,5"), "5");
  EXPECT_EQ(Text(value), "\"01\"");
}

TEST(Binary, FillsAShortTextWithZerosAndIgnoresExtraBits) {
  EXPECT_EQ(TextOf<BINARY<4>>("\"1\""), "\"1000\"");
  EXPECT_EQ(TextOf<BINARY<2>>("\"10111\""), "\"10\"");
  EXPECT_EQ(TextOf<BINARY<3>>("\"x1y\""), "\"010\"");
  EXPECT_EQ(TextOf<BINARY<2>>("\"\""), "\"00\"");
}

TEST(Binary, DoesNotMoveWithoutABitText) {
  for (const char* text : {"1,\"11\"", "\"11,5", "11", ""}) {
    BINARY<2> value;
    EXPECT_EQ(RestOf(value, text), text);
    EXPECT_TRUE(value.GetExists());
    EXPECT_EQ(Text(value), "\"00\"");
  }
}

TEST(Binary, BecomesUnsetByOmittedValues) {
  BINARY<2> value;
  value.Parse("\"11\"");
  EXPECT_EQ(RestOf(value, "$,5"), "5");
  EXPECT_EQ(Text(value), "$");
  EXPECT_EQ(value.Parse(nullptr), nullptr);
  EXPECT_EQ(Text(value), "$");
}

}  // namespace
}  // namespace KelIFC
