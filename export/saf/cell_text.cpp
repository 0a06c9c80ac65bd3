#include "export/saf/cell_text.h"

#include <algorithm>

#include "kelifc/platform/utf8.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr std::size_t kEscapeLength = 7;  // of "_x0041_"

bool IsHexDigit(char digit) {
  return (digit >= '0' && digit <= '9') || (digit >= 'A' && digit <= 'F') ||
         (digit >= 'a' && digit <= 'f');
}

// True if a reader of the workbook takes the beginning of the text for an escaped character.
bool BeginsWithEscape(std::string_view text) {
  if (text.size() < kEscapeLength || text[0] != '_' || text[1] != 'x') return false;
  return text[kEscapeLength - 1] == '_' &&
         std::all_of(text.begin() + 2, text.begin() + 6, IsHexDigit);
}

bool IsControl(char32_t code) { return code < 0x20 || (code >= 0x7F && code <= 0x9F); }

bool IsNoncharacter(char32_t code) {
  return (code & 0xFFFE) == 0xFFFE || (code >= 0xFDD0 && code <= 0xFDEF);
}

std::size_t UnitsOf(char32_t code) { return code > 0xFFFF ? 2 : 1; }

// Takes the next character; a byte that is not UTF-8 counts as U+FFFD.
char32_t TakeCharacter(std::string_view& text) {
  char32_t code = kReplacementCharacter;
  if (!TakeUtf8(text, code)) text.remove_prefix(1);
  return IsNoncharacter(code) ? kReplacementCharacter : code;
}

char32_t NameCharacter(char32_t code) {
  if (IsControl(code)) return ' ';
  return code == ';' ? ',' : code;
}

void TrimSpaces(std::string& text) {
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  text.erase(0, first);
  text.erase(text.find_last_not_of(' ') + 1);
}

}  // namespace

FittedText CellText(std::string_view text) {
  FittedText fitted;
  std::size_t units = 0;
  while (!text.empty()) {
    const bool isEscape = BeginsWithEscape(text);
    char32_t code = TakeCharacter(text);
    if (IsControl(code) && code != '\t' && code != '\n') code = kReplacementCharacter;
    units += isEscape ? kEscapeLength : UnitsOf(code);
    if (units > kLongestCell) {
      fitted.isShortened = true;
      break;
    }
    if (isEscape) {
      fitted.text += "_x005F_";  // an escaped underscore
    } else {
      AppendUtf8(fitted.text, code);
    }
  }
  return fitted;
}

FittedText ObjectName(std::string_view text) {
  FittedText fitted;
  std::size_t units = 0;
  while (!text.empty()) {
    const char32_t code = NameCharacter(TakeCharacter(text));
    units += UnitsOf(code);
    if (units > kLongestName) {
      fitted.isShortened = true;
      break;
    }
    AppendUtf8(fitted.text, code);
  }
  TrimSpaces(fitted.text);
  return fitted;
}

}  // namespace KelIFC::exporting::saf
