#include "kelifc/core/integer.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Integer, IsUnsetAtFirst) {
  const INTEGER value;
  EXPECT_FALSE(value.GetExists());
  EXPECT_EQ(value, 0);
  EXPECT_EQ(Text(value), "$");
}

TEST(Integer, ReadsAndWritesANumber) {
  INTEGER value;
  EXPECT_EQ(RestOf(value, " -12 ,5"), "5");
  EXPECT_EQ(value, -12);
  EXPECT_EQ(Text(value), "-12");
}

TEST(Integer, ReadsNonNumericTextAsZero) {
  INTEGER value;
  EXPECT_EQ(RestOf(value, "abc,7"), "7");
  EXPECT_TRUE(value.GetExists());
  EXPECT_EQ(value, 0);
}

TEST(Integer, ReadsTheIntegerPartOfARealNumber) {
  INTEGER value;
  EXPECT_EQ(RestOf(value, "3.9,7"), "7");
  EXPECT_EQ(value, 3);
}

TEST(Integer, ReadsANumberOutOfRangeAsTheNearestBound) {
  EXPECT_EQ(TextOf<INTEGER>("99999999999"), "2147483647");
  EXPECT_EQ(TextOf<INTEGER>("-99999999999"), "-2147483648");
}

TEST(Integer, BecomesUnsetByOmittedValues) {
  INTEGER value(4);
  EXPECT_EQ(RestOf(value, "$,5"), "5");
  EXPECT_EQ(Text(value), "$");
  value = 4;
  EXPECT_EQ(RestOf(value, "*"), "(null)");
  EXPECT_EQ(Text(value), "$");
  value = 4;
  EXPECT_EQ(value.Parse(nullptr), nullptr);
  EXPECT_EQ(Text(value), "$");
}

}  // namespace
}  // namespace KelIFC
