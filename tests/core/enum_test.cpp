#include "kelifc/core/enum.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Enum, IsUnsetAtFirst) { EXPECT_FALSE(ENUM().GetExists()); }

TEST(Enum, ReadsTheTextBetweenTwoDots) {
  ENUM value;
  EXPECT_EQ(RestOf(value, " .Not_Defined., 5"), " 5");
  EXPECT_TRUE(value.GetExists());
  EXPECT_EQ(value, "Not_Defined");
  EXPECT_EQ(RestOf(value, "x.a b.y)"), "(null)");
  EXPECT_EQ(value, "a b");
  EXPECT_EQ(RestOf(value, "..,5"), "5");
  EXPECT_TRUE(value.GetExists());
  EXPECT_EQ(value, "");
}

TEST(Enum, ReadsOverACommaBetweenTheDots) {
  ENUM value;
  EXPECT_EQ(RestOf(value, ".a,b.,5"), "5");
  EXPECT_EQ(value, "a,b");
}

TEST(Enum, DoesNotMoveIfACommaPrecedesTheDot) {
  ENUM value;
  value.Parse(".F.");
  EXPECT_EQ(RestOf(value, ",.T."), ",.T.");
  EXPECT_FALSE(value.GetExists());
  EXPECT_EQ(value, "");
}

TEST(Enum, DoesNotMoveIfADotIsMissing) {
  ENUM value;
  EXPECT_EQ(RestOf(value, "T,5"), "T,5");
  EXPECT_EQ(RestOf(value, ".T,5"), ".T,5");
  EXPECT_EQ(RestOf(value, ""), "");
  EXPECT_FALSE(value.GetExists());
}

TEST(Enum, BecomesUnsetByOmittedValues) {
  ENUM value;
  value.Parse(".F.");
  EXPECT_EQ(RestOf(value, "$,.T."), ".T.");
  EXPECT_FALSE(value.GetExists());
  EXPECT_EQ(value.Parse(nullptr), nullptr);
  EXPECT_FALSE(value.GetExists());
}

}  // namespace
}  // namespace KelIFC
