#ifndef KELIFC_CORE_TEXT_ASCII_H_
#define KELIFC_CORE_TEXT_ASCII_H_

#include <algorithm>
#include <string>
#include <string_view>

/// Classes and cases of ASCII characters. Keywords and names of schemas are ASCII, so these
/// functions do not depend on the locale. Bytes above 127 belong to no class and keep their value.
namespace KelIFC::ascii {

constexpr bool IsDigit(int c) { return c >= '0' && c <= '9'; }
constexpr bool IsUpperCase(int c) { return c >= 'A' && c <= 'Z'; }
constexpr bool IsLowerCase(int c) { return c >= 'a' && c <= 'z'; }
constexpr bool IsLetter(int c) { return IsUpperCase(c) || IsLowerCase(c); }

constexpr char ToUpperCase(char c) { return IsLowerCase(c) ? static_cast<char>(c - 'a' + 'A') : c; }

constexpr char ToLowerCase(char c) { return IsUpperCase(c) ? static_cast<char>(c - 'A' + 'a') : c; }

/// Returns a copy of a text in upper case.
inline std::string ToUpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return ToUpperCase(c); });
  return upper;
}

/// Returns a copy of a text in lower case.
inline std::string ToLowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return ToLowerCase(c); });
  return lower;
}

/// True if two texts are the same apart from their case.
constexpr bool IsSameText(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ToUpperCase(x) == ToUpperCase(y); });
}

/// True if `a` comes before `b` in a sorted list that does not distinguish cases. Letters are
/// compared in upper case.
constexpr bool IsBefore(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return ToUpperCase(x) < ToUpperCase(y);
  });
}

}  // namespace KelIFC::ascii

#endif  // KELIFC_CORE_TEXT_ASCII_H_
