#include "export/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "kelifc/platform/utf8.h"

namespace KelIFC::exporting {
namespace {

constexpr std::size_t kLongestNumber = 400;  // the largest double in fixed notation has 309 digits
constexpr int kMostDecimals = 12;
constexpr std::size_t kLongestFileNamePart = 40;

// Calls `append` with each character of the text. A byte that is not UTF-8 counts as U+FFFD.
template <class Append>
void ForEachCharacter(std::string_view text, Append append) {
  while (!text.empty()) {
    char32_t code = kReplacementCharacter;
    if (!TakeUtf8(text, code)) text.remove_prefix(1);
    append(code);
  }
}

bool IsAllowedInXml(char32_t code) {
  if (code < 0x20) return code == '\t' || code == '\n' || code == '\r';
  return (code < 0x7F || code > 0x9F) && code != 0xFFFE && code != 0xFFFF;
}

void AppendXml(std::string& out, char32_t code) {
  switch (code) {
    case '&':
      out += "&amp;";
      break;
    case '<':
      out += "&lt;";
      break;
    case '>':
      out += "&gt;";
      break;
    case '"':
      out += "&quot;";
      break;
    case '\'':
      out += "&#39;";
      break;
    default:
      AppendUtf8(out, IsAllowedInXml(code) ? code : kReplacementCharacter);
  }
}

bool IsFileNameCharacter(char32_t code) {
  return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') ||
         (code >= '0' && code <= '9') || code == '_' || code == '-';
}

}  // namespace

void AppendNumber(std::string& text, double value) {
  if (!std::isfinite(value)) return;
  char digits[kLongestNumber];
  text.append(digits, std::to_chars(digits, digits + kLongestNumber, value).ptr);
}

void AppendRounded(std::string& text, double value, int decimals) {
  if (!std::isfinite(value)) return;
  char digits[kLongestNumber];
  const int precision = std::clamp(decimals, 0, kMostDecimals);
  const std::to_chars_result result =
      std::to_chars(digits, digits + kLongestNumber, value, std::chars_format::fixed, precision);
  std::string_view number(digits, static_cast<std::size_t>(result.ptr - digits));
  if (precision > 0) {
    number = number.substr(0, number.find_last_not_of('0') + 1);
    if (number.back() == '.') number.remove_suffix(1);
  }
  text.append(number == "-0" ? "0" : number);
}

std::string ValidUtf8(std::string_view text) {
  if (IsValidUtf8(text)) return std::string(text);
  std::string valid;
  ForEachCharacter(text, [&](char32_t code) { AppendUtf8(valid, code); });
  return valid;
}

std::string XmlText(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  ForEachCharacter(text, [&](char32_t code) { AppendXml(escaped, code); });
  return escaped;
}

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string FileNamePart(std::string_view name) {
  std::string part;
  ForEachCharacter(name, [&](char32_t code) {
    if (part.size() == kLongestFileNamePart) return;
    part += IsFileNameCharacter(code) ? static_cast<char>(code) : '-';
  });
  return part.empty() ? "unnamed" : part;
}

const char* ReleaseText(IFC_RELEASE release) {
  switch (release) {
    case IFC_RELEASE_151:
      return "1.5.1";
    case IFC_RELEASE_20:
      return "2.0";
    case IFC_RELEASE_2X:
      return "2x";
    case IFC_RELEASE_2X2:
      return "2x2";
    case IFC_RELEASE_2X3:
      return "2x3";
    case IFC_RELEASE_NONE:
      break;
  }
  return "";
}

}  // namespace KelIFC::exporting
