#include "kelifc/core/logical.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Logical, IsUnsetAndUnknownAtFirst) {
  LOGICAL value;
  EXPECT_FALSE(value.GetExists());
  EXPECT_EQ(LOGICAL_VALUE(value), LOGICAL_UNKNOWN);
  EXPECT_EQ(Text(value), "$");
}

TEST(Logical, ReadsAndWritesTheThreeValues) {
  for (const char* text : {".T.", ".F.", ".U."}) EXPECT_EQ(TextOf<LOGICAL>(text), text);
  LOGICAL value;
  EXPECT_EQ(RestOf(value, ".T.,5"), "5");
  EXPECT_EQ(LOGICAL_VALUE(value), LOGICAL_TRUE);
  value.Parse(".F.");
  EXPECT_EQ(LOGICAL_VALUE(value), LOGICAL_FALSE);
}

TEST(Logical, ReadsOtherTextAsUnknown) {
  LOGICAL value;
  EXPECT_EQ(RestOf(value, ".X.,5"), "5");
  EXPECT_TRUE(value.GetExists());
  EXPECT_EQ(LOGICAL_VALUE(value), LOGICAL_UNKNOWN);
  EXPECT_EQ(Text(value), ".U.");
  EXPECT_EQ(RestOf(value, "T,5"), "T,5");
  EXPECT_TRUE(value.GetExists());
}

TEST(Logical, WritesEveryOtherValueAsUnknown) {
  EXPECT_EQ(Text(LOGICAL(static_cast<LOGICAL_VALUE>(7))), ".U.");
}

TEST(Logical, BecomesUnsetByOmittedValues) {
  LOGICAL value(LOGICAL_TRUE);
  EXPECT_EQ(RestOf(value, "$,5"), "5");
  EXPECT_EQ(Text(value), "$");
  EXPECT_EQ(LOGICAL_VALUE(value), LOGICAL_UNKNOWN);
  EXPECT_EQ(value.Parse(nullptr), nullptr);
}

}  // namespace
}  // namespace KelIFC
