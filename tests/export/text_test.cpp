#include "export/text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <string>

namespace KelIFC::exporting {
namespace {

std::string Number(double value) {
  std::string text;
  AppendNumber(text, value);
  return text;
}

std::string Rounded(double value, int decimals) {
  std::string text;
  AppendRounded(text, value, decimals);
  return text;
}

TEST(Number, ReadsAsTheSameDouble) {
  for (const double value : {0.1, -1.0 / 3, 1e-300, 1.7976931348623157e308, 5e-324, 0.0}) {
    EXPECT_EQ(std::strtod(Number(value).c_str(), nullptr), value);
  }
  EXPECT_EQ(Number(0.1), "0.1");
}

TEST(Number, IsEmptyIfItIsNotFinite) {
  EXPECT_EQ(Number(std::numeric_limits<double>::quiet_NaN()), "");
  EXPECT_EQ(Number(-std::numeric_limits<double>::infinity()), "");
  EXPECT_EQ(Rounded(std::numeric_limits<double>::infinity(), 2), "");
}

TEST(RoundedNumber, HasNoTrailingZeros) {
  EXPECT_EQ(Rounded(1.25, 3), "1.25");
  EXPECT_EQ(Rounded(100, 2), "100");
  EXPECT_EQ(Rounded(100, 0), "100");
  EXPECT_EQ(Rounded(0.0004, 3), "0");
  EXPECT_EQ(Rounded(-0.0004, 3), "0");
  EXPECT_EQ(Rounded(-0.5, 1), "-0.5");
}

TEST(RoundedNumber, HasRoomForTheLargestDouble) {
  EXPECT_EQ(Rounded(-std::numeric_limits<double>::max(), 99).size(), 310U);
}

TEST(Utf8, IsMadeValid) {
  EXPECT_EQ(ValidUtf8("a\xC3\xA4"), "a\xC3\xA4");
  EXPECT_EQ(ValidUtf8("a\xE4z"), "a\xEF\xBF\xBDz");
  EXPECT_EQ(ValidUtf8(""), "");
}

TEST(XmlTextOf, HasNoMarkup) {
  EXPECT_EQ(XmlText("<b a=\"x\" c='y'>&</b>"),
            "&lt;b a=&quot;x&quot; c=&#39;y&#39;&gt;&amp;&lt;/b&gt;");
}

TEST(XmlTextOf, HasNoCharacterThatXmlForbids) {
  EXPECT_EQ(XmlText(std::string_view("a\0\x1B\n\xFFz", 6)),
            "a\xEF\xBF\xBD\xEF\xBF\xBD\n\xEF\xBF\xBDz");
}

TEST(NamePart, HasOnlySafeCharacters) {
  EXPECT_EQ(FileNamePart("Level 1/../x"), "Level-1----x");
  EXPECT_EQ(FileNamePart("Gesch\xC3\xB6ss_2"), "Gesch-ss_2");
  EXPECT_EQ(FileNamePart(""), "unnamed");
  EXPECT_EQ(FileNamePart(std::string(100, 'a')).size(), 40U);
}

}  // namespace
}  // namespace KelIFC::exporting
