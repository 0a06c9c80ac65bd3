#include "export/saf/cell_text.h"

#include <gtest/gtest.h>

namespace KelIFC::exporting::saf {
namespace {

TEST(CellText, KeepsWhatACellCanHold) {
  const std::string text = "=1+1 <b>&\"'\n\tStahl\u00fctte \U0001F600";
  EXPECT_EQ(CellText(text).text, text);
  EXPECT_FALSE(CellText(text).isShortened);
}

TEST(CellText, ReplacesControlCharactersAndBytesThatAreNoUtf8) {
  EXPECT_EQ(CellText(std::string("a\0b\x1B\rc\x7F\xC2\x85", 9)).text,
            "a\uFFFD"
            "b\uFFFD\uFFFD"
            "c\uFFFD\uFFFD");
  EXPECT_EQ(CellText("\xFF\uFFFE").text, "\uFFFD\uFFFD");
}

TEST(CellText, EscapesWhatLooksLikeAnEscapedCharacter) {
  EXPECT_EQ(CellText("_x0041_").text, "_x005F_x0041_");
  EXPECT_EQ(CellText("_x0041").text, "_x0041");
  EXPECT_EQ(CellText("_xGG41_").text, "_xGG41_");
  EXPECT_EQ(CellText("_x0041_x0042_").text, "_x005F_x0041_x005F_x0042_");
}

TEST(CellText, IsShortenedToTheLimitOfACell) {
  const std::string fits(kLongestCell, 'a');
  EXPECT_EQ(CellText(fits).text, fits);
  const FittedText shortened = CellText(fits + "b");
  EXPECT_EQ(shortened.text, fits);
  EXPECT_TRUE(shortened.isShortened);
}

TEST(CellText, CountsUnitsOfUtf16) {
  std::string text;
  for (std::size_t i = 0; i < kLongestCell / 2 + 1; ++i) text += "\U0001F600";  // 2 units each
  const FittedText shortened = CellText(text);
  EXPECT_EQ(shortened.text.size(), kLongestCell / 2 * 4);
  EXPECT_TRUE(shortened.isShortened);
}

TEST(ObjectName, HasNoSeparatorsOfListsAndNoOuterSpaces) {
  EXPECT_EQ(ObjectName(" a;b\tc\n ").text, "a,b c");
  EXPECT_EQ(ObjectName(" \r\n").text, "");
}

TEST(ObjectName, IsShortenedToItsOwnLimit) {
  const FittedText shortened = ObjectName(std::string(10'000, 'a'));
  EXPECT_EQ(shortened.text, std::string(kLongestName, 'a'));
  EXPECT_TRUE(shortened.isShortened);
}

}  // namespace
}  // namespace KelIFC::exporting::saf
