#include "export/svg/markup.h"

#include <gtest/gtest.h>

#include <limits>

namespace KelIFC::exporting::svg {
namespace {

TEST(Markup, ShortensATextToItsCharacters) {
  EXPECT_EQ(Shortened("beam", 4), "beam");
  EXPECT_EQ(Shortened("beams", 4), "bea\xE2\x80\xA6");
  EXPECT_EQ(Shortened("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", 4), "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F");
  EXPECT_EQ(Shortened("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9Fx", 4),
            "\xC3\xA4\xC3\xB6\xC3\xBC\xE2\x80\xA6");
  EXPECT_EQ(LengthOf(Shortened(std::string(10000, 'x'), 80)), 80U);
  EXPECT_EQ(Shortened("", 3), "");
}

TEST(Markup, ShortensATextThatIsNotUtf8) {
  EXPECT_EQ(LengthOf(Shortened(std::string(1000, '\x80'), 10)), 10U);
  EXPECT_EQ(Shortened("a\xFF", 4), "a\xEF\xBF\xBD");
}

TEST(Markup, PutsATextOnOneLine) { EXPECT_EQ(Shortened("a\nb\tc\rd", 10), "a b c d"); }

TEST(Markup, WritesHeightsWithSignAndThreeDigits) {
  EXPECT_EQ(HeightText(2.8), "+2.800");
  EXPECT_EQ(HeightText(-0.05), "-0.050");
  EXPECT_EQ(HeightText(0.0),
            "\xC2\xB1"
            "0.000");
  EXPECT_EQ(HeightText(-0.0001),
            "\xC2\xB1"
            "0.000");
  EXPECT_EQ(HeightText(12.0014), "+12.001");
  EXPECT_EQ(HeightText(0.9996), "+1.000");
}

TEST(Markup, WritesPathsInHundredthsOfAMillimetre) {
  // At 1:50 a metre is 20 mm; the centre of the box is at (215, 128.5).
  const Sheet sheet({{0.0, 0.0, 0.0}, {2.0, 2.0, 0.0}});
  std::string data;
  AppendPath(data, sheet, {{1.0, 1.0}, {2.0, 1.0}, {2.0, 1.5003}}, true);
  EXPECT_EQ(data, "M215 128.5 235 128.5 235 118.49Z");
  AppendPath(data, sheet, {{1.0, 1.0}, {2.0, 2.0}}, false);
  EXPECT_EQ(data, "M215 128.5 235 128.5 235 118.49ZM215 128.5 235 108.5");
}

TEST(Markup, LeavesOutPointsThatAreOneOnThePaper) {
  const Sheet sheet({{0.0, 0.0, 0.0}, {2.0, 2.0, 0.0}});
  std::string data;
  AppendPath(data, sheet, {{1.0, 1.0}, {1.00001, 1.0}, {2.0, 1.0}}, false);
  EXPECT_EQ(data, "M215 128.5 235 128.5");
  data.clear();
  AppendPath(data, sheet, {{1.0, 1.0}, {1.00001, 1.0}}, true);
  EXPECT_EQ(data, "");
}

TEST(Markup, LeavesOutALineThatIsNotFinite) {
  const Sheet sheet({{0.0, 0.0, 0.0}, {2.0, 2.0, 0.0}});
  std::string data;
  const double nan = std::numeric_limits<double>::quiet_NaN();
  AppendPath(data, sheet, {{1.0, 1.0}, {nan, 1.0}, {2.0, 1.0}}, true);
  EXPECT_EQ(data, "");
}

TEST(Markup, EscapesTexts) {
  std::string markup;
  AppendText(markup, {1.0, 2.5}, "<script>\"&'", {"small", -90.0});
  EXPECT_EQ(markup,
            "<text class=\"small\" x=\"1\" y=\"2.5\" transform=\"rotate(-90 1 2.5)\">"
            "&lt;script&gt;&quot;&amp;&#39;</text>\n");
  markup.clear();
  AppendText(markup, {1.0, 2.0}, "", {});
  EXPECT_EQ(markup, "");
}

}  // namespace
}  // namespace KelIFC::exporting::svg
