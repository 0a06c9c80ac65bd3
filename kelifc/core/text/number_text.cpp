#include "kelifc/core/text/number_text.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/hex.h"

namespace KelIFC {

namespace {

using ascii::IsDigit;

bool IsHexDigit(char c) { return HexDigit(c) >= 0; }
bool IsWordCharacter(char c) { return IsDigit(c) || ascii::IsLetter(c) || c == '_'; }

// `word` is in lower case.
bool StartsWith(const char* text, std::string_view word) {
  for (const char c : word) {
    if ((*text | 0x20) != c) return false;
    ++text;
  }
  return true;
}

// Returns the exponent after `mark`, bounded so that sums with it do not overflow. Without a digit
// there is no exponent, and `end` is the mark.
std::int64_t ReadExponent(const char* mark, const char*& end) {
  const char* at = mark + 1;
  const bool isNegative = *at == '-';
  if (*at == '-' || *at == '+') ++at;
  if (!IsDigit(*at)) return 0;
  constexpr std::int64_t kBound = std::int64_t{1} << 56;
  std::int64_t exponent = 0;
  for (; IsDigit(*at); ++at) {
    if (exponent < kBound) exponent = 10 * exponent + (*at - '0');
  }
  end = at;
  return isNegative ? -exponent : exponent;
}

// Returns the value of a number that std::from_chars calls out of range: infinity or 0. Such a
// number is far from 1, so the position of its first digit relative to the point decides which.
double OutOfRange(const char* text, bool isHex, std::int64_t exponent) {
  std::int64_t place = 0;
  bool isBehindPoint = false;
  bool isBehindFirst = false;
  for (; *text == '.' || (isHex ? IsHexDigit(*text) : IsDigit(*text)); ++text) {
    if (*text == '.') {
      isBehindPoint = true;
      continue;
    }
    if (*text != '0') isBehindFirst = true;
    if (isBehindPoint && !isBehindFirst) --place;
    if (!isBehindPoint && isBehindFirst) ++place;
  }
  return (isHex ? 4 * place : place) + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

double ReadWhole(const char* begin, const char* end, std::chars_format format,
                 std::int64_t exponent) {
  double value = 0.0;
  const auto result = std::from_chars(begin, end, value, format);
  if (result.ec == std::errc::result_out_of_range) {
    value = OutOfRange(begin, format == std::chars_format::hex, exponent);
  }
  return value;
}

// Parses hexadecimal digits after 0x. If there are none, `end` does not change.
double ReadHexadecimal(const char* text, const char*& end) {
  const char* at = text;
  bool hasDigit = false;
  for (bool hasPoint = false; IsHexDigit(*at) || (*at == '.' && !hasPoint); ++at) {
    if (*at == '.') {
      hasPoint = true;
    } else {
      hasDigit = true;
    }
  }
  if (!hasDigit) return 0.0;
  end = at;
  const std::int64_t exponent = (*at | 0x20) == 'p' ? ReadExponent(at, end) : 0;
  return ReadWhole(text, end, std::chars_format::hex, exponent);
}

// Parses the text after a sign that does not begin with a digit or a point.
double ReadWord(const char* text, const char*& end) {
  if (StartsWith(text, "inf")) {
    end = text + (StartsWith(text + 3, "inity") ? 8 : 3);
    return std::numeric_limits<double>::infinity();
  }
  if (!StartsWith(text, "nan")) return 0.0;
  end = text + 3;
  if (*end == '(') {
    const char* at = end + 1;
    while (IsWordCharacter(*at)) ++at;
    if (*at == ')') end = at + 1;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Parses a number without its sign. Most numbers of a model are an integer below 2^53 times a small
// power of ten. Both are exact as doubles, so one operation returns the correctly rounded result.
double ReadUnsigned(const char* text, const char*& end) {
  if (text[0] == '0' && (text[1] | 0x20) == 'x') {
    end = text + 1;
    return ReadHexadecimal(text + 2, end);
  }
  const char* at = text;
  std::uint64_t digits = 0;
  while (IsDigit(*at)) digits = 10 * digits + static_cast<std::uint64_t>(*at++ - '0');
  std::ptrdiff_t count = at - text;
  std::ptrdiff_t decimals = 0;
  if (*at == '.') {
    const char* point = at++;
    while (IsDigit(*at)) digits = 10 * digits + static_cast<std::uint64_t>(*at++ - '0');
    decimals = at - point - 1;
    count += decimals;
  }
  if (count == 0) return ReadWord(text, end);
  end = at;
  const std::int64_t exponent = (*at | 0x20) == 'e' ? ReadExponent(at, end) : 0;
  const std::int64_t power = exponent - decimals;
  constexpr std::uint64_t kExact = std::uint64_t{1} << 53;
  if (count <= 19 && digits <= kExact && power >= -22 && power <= 22) {
    const auto number = static_cast<double>(digits);
    return power < 0 ? number / kPowersOfTen[-power] : number * kPowersOfTen[power];
  }
  return ReadWhole(text, end, std::chars_format::general, exponent);
}

// The magnitude of the lowest integer of 32 bits.
constexpr std::uint64_t kLowestMagnitude = std::uint64_t{1} << 31;

// Returns the number of any count of digits, or `bound` for a larger number.
std::uint64_t ReadBounded(const char* text, std::uint64_t bound) {
  std::uint64_t number = 0;
  for (; IsDigit(*text) && number < bound; ++text) {
    number = std::min(10 * number + static_cast<std::uint64_t>(*text - '0'), bound);
  }
  return number;
}

}  // namespace

double ReadReal(const char* text, const char** end) {
  const char* first = detail::SkipBlanks(text);
  const bool isNegative = *first == '-';
  if (*first == '-' || *first == '+') ++first;
  *end = text;
  const double value = ReadUnsigned(first, *end);
  return isNegative && *end != text ? -value : value;
}

std::int32_t ReadInteger(const char* text, const char** end) {
  const char* at = detail::SkipBlanks(text);
  const bool isNegative = *at == '-';
  if (*at == '-' || *at == '+') ++at;
  if (!IsDigit(*at)) {
    *end = text;
    return 0;
  }
  const char* const first = at;
  std::uint64_t number = 0;
  while (IsDigit(*at)) number = 10 * number + static_cast<std::uint64_t>(*at++ - '0');
  *end = at;
  constexpr std::ptrdiff_t kMostDigits = 19;  // fit into 64 bits
  const std::uint64_t bound = isNegative ? kLowestMagnitude : kLowestMagnitude - 1;
  number = at - first <= kMostDigits ? std::min(number, bound) : ReadBounded(first, bound);
  const auto magnitude = static_cast<std::int64_t>(number);
  return static_cast<std::int32_t>(isNegative ? -magnitude : magnitude);
}

namespace {

constexpr int kDecimals = 10;
constexpr std::uint64_t kScale = 10'000'000'000;

// Returns a number in [0, 1) times 10^10, rounded to the nearest integer, and to the even one of
// two, as the standard library rounds. The number is m * 2^-k with m below 2^53; m * 10^10 has up
// to 87 bits and is kept as high * 2^26 + low.
std::uint64_t ScaleFraction(double fraction) {
  const auto bits = std::bit_cast<std::uint64_t>(fraction);
  const auto biased = static_cast<int>(bits >> 52);
  const int shift = 1075 - 26 - biased;     // k - 26
  if (biased == 0 || shift > 63) return 0;  // below 2^-63: rounds to 0
  const std::uint64_t m = (bits & 0xFFFFFFFFFFFFF) | 0x10000000000000;
  constexpr std::uint64_t kLow = (1 << 26) - 1;
  const std::uint64_t product = (m & kLow) * kScale;
  const std::uint64_t high = (m >> 26) * kScale + (product >> 26);
  const std::uint64_t low = product & kLow;
  const std::uint64_t whole = high >> shift;
  const std::uint64_t rest = high & ((std::uint64_t{1} << shift) - 1);
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  const bool isUp = rest > half || (rest == half && (low != 0 || (whole & 1) != 0));
  return whole + (isUp ? 1 : 0);
}

// Removes trailing zeros. The text has a point, where the zeros end.
char* StripZeros(char* end) {
  while (end[-1] == '0') --end;
  return end;
}

// Writes a number below 2^53 with its decimals and without trailing zeros.
char* FormatShort(double magnitude, char* out) {
  auto whole = static_cast<std::uint64_t>(magnitude);
  std::uint64_t decimals = ScaleFraction(magnitude - static_cast<double>(whole));
  if (decimals == kScale) {
    ++whole;
    decimals = 0;
  }
  out = std::to_chars(out, out + 20, whole).ptr;
  if (decimals == 0) {
    *out++ = '.';
    return out;
  }
  // The sum has a leading 1, which keeps the zeros after the point; the point then replaces it.
  char* end = std::to_chars(out, out + 20, kScale + decimals).ptr;
  *out = '.';
  return StripZeros(end);
}

char* FormatLong(double magnitude, char* out, char* outEnd) {
  out = std::to_chars(out, outEnd, magnitude, std::chars_format::fixed, kDecimals).ptr;
  return StripZeros(out);
}

char* FormatNotFinite(double value, char* out) {
  const std::string_view text = std::isnan(value) ? "       nan." : "       inf.";
  char* const end = std::copy(text.begin(), text.end(), out);
  if (std::signbit(value)) out[6] = '-';
  return end;
}

}  // namespace

char* FormatReal(double value, char* text) {
  if (!std::isfinite(value)) return FormatNotFinite(value, text);
  char* out = text;
  if (std::signbit(value)) *out++ = '-';
  const double magnitude = std::fabs(value);
  constexpr double kExact = 9007199254740992.0;  // 2^53
  return magnitude < kExact ? FormatShort(magnitude, out)
                            : FormatLong(magnitude, out, text + kRealTextSize);
}

}  // namespace KelIFC
