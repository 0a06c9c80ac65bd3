#include "kelifc/core/real.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>
#include <string>

#include "kelifc/core/text/write_tolerance.h"

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Real, IsUnsetAtFirst) {
  const REAL value;
  EXPECT_FALSE(value.GetExists());
  EXPECT_EQ(value, 0.0);
  EXPECT_EQ(Text(value), "$");
}

TEST(Real, ExistsOnceANumberIsAssigned) {
  REAL value;
  value = 2.5;
  EXPECT_TRUE(value.GetExists());
  EXPECT_EQ(Text(value), "2.5");
  EXPECT_TRUE(REAL(0.0).GetExists());
}

TEST(Real, CopiesNumberAndMark) {
  REAL value(2.5);
  value = REAL();
  EXPECT_EQ(Text(value), "$");
}

TEST(Real, ReadsUpToTheComma) {
  REAL value;
  EXPECT_EQ(RestOf(value, " 1.5 mm , 2"), " 2");
  EXPECT_EQ(value, 1.5);
}

TEST(Real, ReadsTheLastValueOfARecord) {
  REAL value;
  EXPECT_EQ(RestOf(value, "1.5)"), "(null)");
  EXPECT_TRUE(value.GetExists());
  EXPECT_EQ(value, 1.5);
}

TEST(Real, ReadsNonNumericTextAsZero) {
  REAL value;
  EXPECT_EQ(RestOf(value, "abc,7"), "7");
  EXPECT_TRUE(value.GetExists());
  EXPECT_EQ(value, 0.0);
  EXPECT_EQ(RestOf(value, ""), "(null)");
  EXPECT_TRUE(value.GetExists());
}

TEST(Real, SkipsBlanksAroundAnOmittedValue) {
  REAL value(1.0);
  EXPECT_EQ(RestOf(value, "  $ ,5"), "5");
  EXPECT_FALSE(value.GetExists());
}

TEST(Real, IsUnsetByOmittedValuesAtTheEnd) {
  for (const char* text : {"$", "*", "$)", " *"}) {
    REAL value(1.0);
    EXPECT_EQ(RestOf(value, text), "(null)");
    EXPECT_FALSE(value.GetExists());
    EXPECT_EQ(value, 0.0);
  }
}

TEST(Real, IsUnsetByANullCursor) {
  REAL value(1.0);
  EXPECT_EQ(value.Parse(nullptr), nullptr);
  EXPECT_FALSE(value.GetExists());
  EXPECT_EQ(value, 0.0);
}

TEST(Real, WritesZeroForWhatIsWithinTheTolerance) {
  EXPECT_EQ(Text(REAL(0.001)), "0.");
  EXPECT_EQ(Text(REAL(-0.001)), "0.");
  EXPECT_EQ(Text(REAL(0.0005)), "0.");
  EXPECT_EQ(Text(REAL(-0.0)), "0.");
  EXPECT_EQ(Text(REAL(0.0011)), "0.0011");
  EXPECT_EQ(Text(REAL(-0.0011)), "-0.0011");
}

TEST(Real, WritesByTheToleranceOfTheProcess) {
  const double before = GetWriteTolerance();
  SetWriteTolerance(0.0);
  EXPECT_EQ(Text(REAL(0.0005)), "0.0005");
  EXPECT_EQ(Text(REAL(1e-11)), "0.");
  SetWriteTolerance(-1.0);
  EXPECT_EQ(Text(REAL(0.0)), "0.");
  SetWriteTolerance(10.0);
  EXPECT_EQ(Text(REAL(9.5)), "0.");
  SetWriteTolerance(before);
}

TEST(Real, WritesAPointAfterIntegers) {
  EXPECT_EQ(Text(REAL(100.0)), "100.");
  EXPECT_EQ(Text(REAL(2.0)), "2.");
  EXPECT_EQ(Text(REAL(-0.25)), "-0.25");
}

TEST(Real, WritesLargeNumbersWithoutExponent) {
  const std::string text = Text(REAL(1e308));
  EXPECT_EQ(text.size(), 310U);
  EXPECT_EQ(text.find('e'), std::string::npos);
  EXPECT_EQ(text.back(), '.');
}

TEST(Real, CarriesInfinity) {
  REAL value;
  value.Parse("inf");
  EXPECT_EQ(Text(value), "       inf.");
  value.Parse("1e999,");
  EXPECT_EQ(value, std::numeric_limits<double>::infinity());
  REAL back;
  back.Parse(Text(REAL(-std::numeric_limits<double>::infinity())).c_str());
  EXPECT_EQ(back, -std::numeric_limits<double>::infinity());
}

/// A locale that writes numbers such as 1.234,5.
class CommaPunctuation : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Real, HasADecimalPointInEveryLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const std::locale comma(std::locale::classic(), new CommaPunctuation);
  const std::locale classic = std::locale::global(comma);
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  }
  EXPECT_EQ(Text(REAL(12345.5)), "12345.5");
  EXPECT_EQ(TextOf<REAL>("2.5"), "2.5");
  EXPECT_EQ(TextOf<REAL>("2,5"), "2.");
  std::locale::global(classic);
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace KelIFC
