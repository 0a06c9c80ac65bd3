#include "kelifc/core/boolean.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Boolean, IsUnsetAtFirst) {
  EXPECT_FALSE(BOOLEAN().GetExists());
  EXPECT_EQ(Text(BOOLEAN()), "$");
}

TEST(Boolean, ReadsOneTextAsTrue) {
  BOOLEAN value;
  EXPECT_EQ(RestOf(value, " .T. ,5"), "5");
  EXPECT_TRUE(value);
  EXPECT_EQ(Text(value), ".T.");
}

TEST(Boolean, ReadsEveryOtherTextAsFalse) {
  for (const char* text : {".F.,5", ".U.,5", ".TRUE.,5", ".t.,5"}) {
    BOOLEAN value(true);
    EXPECT_EQ(RestOf(value, text), "5");
    EXPECT_TRUE(value.GetExists());
    EXPECT_FALSE(value);
    EXPECT_EQ(Text(value), ".F.");
  }
}

TEST(Boolean, DoesNotMoveAtTextThatIsNotAnEnumerator) {
  BOOLEAN value;
  EXPECT_EQ(RestOf(value, "1,5"), "1,5");
  EXPECT_TRUE(value.GetExists());
  EXPECT_FALSE(value);
}

TEST(Boolean, BecomesUnsetByOmittedValues) {
  BOOLEAN value(true);
  EXPECT_EQ(RestOf(value, "*,5"), "5");
  EXPECT_EQ(Text(value), "$");
  EXPECT_FALSE(value);
  value = true;
  EXPECT_EQ(value.Parse(nullptr), nullptr);
  EXPECT_EQ(Text(value), "$");
}

}  // namespace
}  // namespace KelIFC
