#include "kelifc/core/text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

// These functions must return the same as those of the C library, so the tests compare the results.
// They run in the classic locale.

namespace KelIFC {
namespace {

std::uint64_t BitsOf(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

/// The C libraries of some systems differ for text that is not a number, and in the end of a NaN.
/// There the tests do not compare with the library; the expected results are those of the common
/// libraries.
bool IsOracle([[maybe_unused]] const std::string& text, [[maybe_unused]] const char* end) {
#ifdef _WIN32
  return end != text.c_str() && text.find_first_of("nN") == std::string::npos;
#else
  return true;
#endif
}

void ExpectAsStrtod(const std::string& text) {
  char* expectedEnd = nullptr;
  const double expected = std::strtod(text.c_str(), &expectedEnd);
  if (!IsOracle(text, expectedEnd)) return;
  const char* end = nullptr;
  const double value = ReadReal(text.c_str(), &end);
  EXPECT_EQ(end - text.c_str(), expectedEnd - text.c_str()) << '"' << text << '"';
  if (std::isnan(expected)) {
    EXPECT_TRUE(std::isnan(value)) << text;
    EXPECT_EQ(std::signbit(value), std::signbit(expected)) << text;
  } else {
    EXPECT_EQ(BitsOf(value), BitsOf(expected)) << '"' << text << "\" gave " << value;
  }
}

TEST(NumberText, ReadsRealsAsTheStandardLibraryDoes) {
  for (const char* text : {"1.5)",
                           "abc,7",
                           "",
                           " ",
                           "-",
                           "+",
                           ".",
                           "-.",
                           "e5",
                           ".e5",
                           "0",
                           "-0",
                           "+1",
                           " \t\n-12.50,",
                           "1e",
                           "1e+",
                           "1e-",
                           "1e5",
                           "1E5",
                           "1.e5",
                           ".5e-3",
                           "1.5.2",
                           "1,5",
                           "1 5",
                           "--1",
                           "+-1",
                           "9007199254740993",
                           "9007199254740992",
                           "9007199254740991.5",
                           "1e22",
                           "1e23",
                           "-1e22",
                           "123456789012345678901234567890",
                           "0.000000000000000000000000000001",
                           "1e-22",
                           "1e-23",
                           "99999999999999999999",
                           "18446744073709551616",
                           "1234567890.1234567890123",
                           "2.2250738585072011e-308",
                           "2.2250738585072014e-308",
                           "4.9406564584124654e-324",
                           "2.4703282292062327e-324",
                           "2.4703282292062328e-324",
                           "1e-310",
                           "1e-400",
                           "-1e-400",
                           "1.7976931348623157e308",
                           "1.7976931348623158e308",
                           "1.7976931348623159e308",
                           "1e309",
                           "-1e309",
                           "1e99999999999999999999",
                           "1e-99999999999999999999",
                           "0e99999999999999999999",
                           "0.0e-5",
                           "00000000000000000000000000000000001.5"}) {
    ExpectAsStrtod(text);
  }
}

TEST(NumberText, ReadsWhatOtherReadersRefuse) {
  for (const char* text : {"inf",
                           "INF",
                           "-inf",
                           "+Infinity",
                           "infinit",
                           "infinityx",
                           "in",
                           "nan",
                           "-nan",
                           "NaN(12)",
                           "nan(a_1)x",
                           "nan(",
                           "nan(1",
                           "nan()",
                           "nan(-)",
                           "na",
                           "0x",
                           "0x.",
                           "0xg",
                           "0x1",
                           "-0X1F",
                           "0x1.8p1",
                           "0x.8",
                           "0x1.",
                           "0x1p",
                           "0x1p+",
                           "0x1p-3",
                           "0xAbC.dEfP+10",
                           "00x1",
                           "0x1p2000",
                           "0x1p-2000",
                           "0x0p99999999999999999999",
                           "0x1p-1074",
                           "0x1p-1075",
                           "0x1.8p-1075",
                           "0x1.fffffffffffff8p1023",
                           "0x1.fffffffffffffp1023",
                           "0x1.00000000000008p0",
                           "0x1.000000000000080001p0",
                           "+0x10",
                           "x1"}) {
    ExpectAsStrtod(text);
  }
}

TEST(NumberText, ReadsLongNumbersByTheirMagnitude) {
  const std::string zeros(1000, '0');
  ExpectAsStrtod("1" + zeros);
  ExpectAsStrtod("0." + zeros + "1");
  ExpectAsStrtod("1" + zeros + "e-1000");
  ExpectAsStrtod("0." + zeros + "1e1001");
  ExpectAsStrtod(zeros + "1" + "e308");
  ExpectAsStrtod("-" + std::string(400, '9'));
  ExpectAsStrtod("0." + std::string(400, '3'));
}

TEST(NumberText, ReadsRandomNumbersAsTheLibraryDoes) {
  std::mt19937 random(20);
  const std::string parts = "0123456789012345678901234567890123456789....eE+-- xXpPaf,";
  for (int round = 0; round < 200000; ++round) {
    std::string text;
    for (std::size_t length = random() % 24; text.size() < length;) {
      text += parts[random() % parts.size()];
    }
    ExpectAsStrtod(text);
  }
}

TEST(NumberText, ReadsEveryPrintedDoubleAsItWas) {
  std::mt19937_64 random(21);
  for (int round = 0; round < 100000; ++round) {
    double value = 0.0;
    const std::uint64_t bits = random();
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isfinite(value)) continue;
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", static_cast<int>(10 + random() % 12), value);
    ExpectAsStrtod(text);
    std::snprintf(text, sizeof text, "%.*f", static_cast<int>(random() % 18),
                  std::fmod(value, 1e6));
    ExpectAsStrtod(text);
  }
}

void ExpectInteger(const char* text, std::int32_t expected, std::ptrdiff_t length) {
  const char* end = nullptr;
  EXPECT_EQ(ReadInteger(text, &end), expected) << text;
  EXPECT_EQ(end - text, length) << text;
}

TEST(NumberText, ReadsIntegersOf32Bits) {
  ExpectInteger("12,13", 12, 2);
  ExpectInteger(" \t-7)", -7, 4);
  ExpectInteger("+5", 5, 2);
  ExpectInteger("0010", 10, 4);
  ExpectInteger("-000000000000000000000000000012", -12, 31);
  ExpectInteger("2147483647", 2147483647, 10);
  ExpectInteger("-2147483648", std::numeric_limits<std::int32_t>::min(), 11);
}

TEST(NumberText, ReadsAnIntegerOutOfRangeAsTheNearestBound) {
  ExpectInteger("2147483648", 2147483647, 10);
  ExpectInteger("-2147483649", std::numeric_limits<std::int32_t>::min(), 11);
  ExpectInteger("99999999999999999999999", 2147483647, 23);
  ExpectInteger("-99999999999999999999999", std::numeric_limits<std::int32_t>::min(), 24);
}

TEST(NumberText, FindsNoIntegerInOtherText) {
  for (const char* text : {"", "abc", "-", "+ 1", " ,", "- 1", ".5"}) ExpectInteger(text, 0, 0);
}

/// "%10.10lf" without trailing zeros, but with a point.
std::string Expected(double value) {
  char buffer[400];
  std::string text(
      buffer, static_cast<std::size_t>(std::snprintf(buffer, sizeof buffer, "%10.10f", value)));
  while (!text.empty() && text.back() == '0') text.pop_back();
  if (text.find_first_of(".e") == std::string::npos) text += '.';
  return text;
}

std::string Formatted(double value) {
  char buffer[kRealTextSize];
  return std::string(buffer, FormatReal(value, buffer));
}

TEST(NumberText, FormatsTenDecimalsAtMost) {
  EXPECT_EQ(Formatted(2.5), "2.5");
  EXPECT_EQ(Formatted(2.0), "2.");
  EXPECT_EQ(Formatted(-0.25), "-0.25");
  EXPECT_EQ(Formatted(100.0), "100.");
  EXPECT_EQ(Formatted(0.0011), "0.0011");
  EXPECT_EQ(Formatted(1.00000000001), "1.");
  EXPECT_EQ(Formatted(0.99999999999), "1.");
  EXPECT_EQ(Formatted(1.0 / 3.0), "0.3333333333");
  EXPECT_EQ(Formatted(0.0), "0.");
  EXPECT_EQ(Formatted(-0.0), "-0.");
}

TEST(NumberText, FormatsTheLargestNumbersInFull) {
  for (const double value :
       {1e15, 9007199254740991.0, 9007199254740992.0, -9007199254740993.0, 1e20, 1e308, -1e308,
        std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()}) {
    EXPECT_EQ(Formatted(value), Expected(value));
  }
}

TEST(NumberText, PadsNumbersThatAreNotFinite) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Formatted(infinity), "       inf.");
  EXPECT_EQ(Formatted(-infinity), "      -inf.");
  EXPECT_EQ(Formatted(std::numeric_limits<double>::quiet_NaN()), "       nan.");
  EXPECT_EQ(Formatted(-std::numeric_limits<double>::quiet_NaN()), "      -nan.");
}

TEST(NumberText, RoundsTiesToTheEvenDigitAsTheLibraryDoes) {
  // Multiples of 2^-11 have eleven decimals, the last of them a 5.
  for (int i = 1; i < 40000; i += 2) EXPECT_EQ(Formatted(i / 2048.0), Expected(i / 2048.0));
}

TEST(NumberText, FormatsRandomNumbersAsTheLibraryDoes) {
  std::mt19937_64 random(22);
  for (int round = 0; round < 200000; ++round) {
    const auto mantissa = static_cast<double>(random() >> (random() % 64));
    const double value = std::ldexp(mantissa, -static_cast<int>(random() % 120));
    ASSERT_EQ(Formatted(value), Expected(value));
    ASSERT_EQ(Formatted(-value), Expected(-value));
  }
}

TEST(NumberText, FormatsNeighboursOfRoundNumbersAsTheLibraryDoes) {
  for (double value = 1e-12; value < 1e17; value *= 10) {
    for (const double near : {std::nextafter(value, 0.0), value, std::nextafter(value, 1e300),
                              1.0 - value, 5 * value, std::nextafter(5 * value, 0.0)}) {
      ASSERT_EQ(Formatted(near), Expected(near));
    }
  }
}

}  // namespace
}  // namespace KelIFC
