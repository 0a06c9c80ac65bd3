#include "kelifc/core/text/iso_text.h"

#include <cstdint>
#include <cstring>

#include "kelifc/core/text/hex.h"
#include "kelifc/core/text/iso8859.h"
#include "kelifc/platform/utf8.h"

namespace KelIFC {
namespace {

constexpr std::string_view kEndOfGroups = "\\X0\\";

/// Decodes one string. Each member function that reads an escape begins with `at` on its backslash
/// and leaves `at` after the escape.
class Decoder {
 public:
  Decoder(const char* begin, const char* limit, std::string& target, BadEscapeSink* reports,
          bool isLatin1)
      : at(begin), end(limit), out(target), sink(reports), readsLatin1(isLatin1) {}

  /// Returns the closing quote, or null.
  const char* Run() {
    while (at != end) {
      if (*at == kEscape) {
        TakeEscape();
      } else if (*at != kQuote) {
        TakePlain();
      } else if (CharacterAt(1) == kQuote) {
        out += kQuote;
        at += 2;
      } else {
        return at;
      }
    }
    return nullptr;
  }

  bool HasUpperBytes() const { return hasUpperBytes; }

 private:
  char CharacterAt(std::ptrdiff_t offset) const { return end - at > offset ? at[offset] : '\0'; }

  bool StartsWith(std::string_view text) const {
    return std::string_view(at, static_cast<std::size_t>(end - at)).substr(0, text.size()) == text;
  }

  void TakePlain() {
    const char* const begin = at;
    while (at != end && *at != kQuote && *at != kEscape) {
      if (static_cast<signed char>(*at) < 0) hasUpperBytes = true;
      ++at;
    }
    if (!readsLatin1) {
      out.append(begin, at);
    } else {
      for (const char* c = begin; c != at; ++c) AppendUtf8(out, static_cast<unsigned char>(*c));
    }
  }

  void TakeEscape() {
    const char letter = CharacterAt(1);
    if (letter == kEscape) {
      out += kEscape;
      at += 2;
    } else if (letter == 'S' && CharacterAt(2) == kEscape) {
      TakeShift();
    } else if (StartsWith("\\X\\")) {
      TakeByte();
    } else if (StartsWith("\\X2\\")) {
      TakeGroups(4);
    } else if (StartsWith("\\X4\\")) {
      TakeGroups(8);
    } else if (StartsWith(kEndOfGroups)) {
      TakeBad(at, at + kEndOfGroups.size());
    } else if (letter == 'P' && CharacterAt(3) == kEscape && IsPage(CharacterAt(2))) {
      page = CharacterAt(2);
      at += 4;
    } else {
      TakeBad(at, at + 1);
    }
  }

  static bool IsPage(char letter) { return letter >= kFirstIsoPage && letter <= kLastIsoPage; }

  void Report(const char* escape) {
    if (sink != nullptr) sink->NoteBadEscape(escape);
  }

  /// Replaces the text from a bad escape to `next` by U+FFFD.
  void TakeBad(const char* escape, const char* next) {
    Report(escape);
    AppendUtf8(out, kReplacementCharacter);
    at = next;
  }

  /// Appends the character of an escape. Zero and codes that are not characters are bad.
  void TakeCode(const char* escape, char32_t code, const char* next) {
    if (code == 0 || !IsScalarValue(code)) return TakeBad(escape, next);
    AppendUtf8(out, code);
    at = next;
  }

  void TakeShift() {
    const char c = CharacterAt(3);
    const char* const code = at + 3;
    if (c == kQuote) return TakeShiftedQuote();
    if (c < ' ' || c > '~') return TakeBad(at, code);
    TakeCode(at, DecodeIso8859(page, static_cast<unsigned char>(c + 0x80)), code + 1);
  }

  void TakeShiftedQuote() {
    const char* const code = at + 3;
    const char* ahead = code;
    const std::size_t quotes =
        CountQuotesAfterShift([&] { return ahead == end ? '\0' : *ahead++; });
    if (quotes == 0) return TakeBad(at, code);
    const char* const next = code + (quotes % 2 == 0 ? 2 : 1);
    TakeCode(at, DecodeIso8859(page, kQuote + 0x80), next);
  }

  void TakeByte() {
    constexpr int kDigits = 2;
    const char* const digits = at + 3;
    char32_t code = 0;
    const int count = ReadHex(digits, kDigits, code);
    TakeCode(at, count == kDigits ? code : 0, digits + count);
  }

  /// Reads up to `most` digits and returns their number.
  int ReadHex(const char* digits, int most, char32_t& code) const {
    code = 0;
    int count = 0;
    for (; count < most && digits + count != end; ++count) {
      const int digit = HexDigit(digits[count]);
      if (digit < 0) break;
      code = code << 4 | static_cast<char32_t>(digit);
    }
    return count;
  }

  void TakeGroups(int digitsPerGroup) {
    const char* const escape = at;
    at += 4;
    char32_t code = 0;
    int count = ReadHex(at, digitsPerGroup, code);
    for (; count == digitsPerGroup; count = ReadHex(at, digitsPerGroup, code)) {
      const char* next = at + count;
      char32_t low = 0;
      if (IsHighSurrogate(code) && ReadHex(next, digitsPerGroup, low) == digitsPerGroup &&
          IsLowSurrogate(low) && digitsPerGroup == 4) {
        code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
        next += digitsPerGroup;
      }
      TakeCode(escape, code, next);
    }
    TakeEndOfGroups(escape, count);
  }

  /// Handles the text after the last good group: the end, or a group with too few digits.
  void TakeEndOfGroups(const char* escape, int digits) {
    if (digits == 0 && StartsWith(kEndOfGroups)) {
      at += kEndOfGroups.size();
      return;
    }
    const char* const bad = at;
    while (at != end && *at != kEscape && *at != kQuote) ++at;
    if (StartsWith(kEndOfGroups)) {
      TakeBad(escape, at + kEndOfGroups.size());
    } else if (digits != 0) {
      TakeBad(escape, bad + digits);
    } else {
      Report(escape);
      at = bad;
    }
  }

  const char* at;
  const char* const end;
  std::string& out;
  BadEscapeSink* const sink;
  const bool readsLatin1;
  bool hasUpperBytes = false;
  char page = kFirstIsoPage;
};

/// Writes characters. Neighbours that need the same directive share one.
class Encoder {
 public:
  explicit Encoder(std::string& target) : out(target) {}

  void Append(char32_t code) {
    const bool isAscii = code < 0x80;
    UseDigits(isAscii ? 0 : code > 0xFFFF ? 8 : 4);
    if (!isAscii) {
      AppendHex(out, code, digits);
    } else if (code < ' ' || code == 0x7F) {
      out += "\\X\\";
      AppendHex(out, code, 2);
    } else {
      if (code == kQuote || code == kEscape) out += static_cast<char>(code);
      out += static_cast<char>(code);
    }
  }

  void End() { UseDigits(0); }

 private:
  /// Ends the current directive, if any, and opens the one with `count` digits per group; 0 opens
  /// none.
  void UseDigits(int count) {
    if (digits == count) return;
    if (digits != 0) out += kEndOfGroups;
    if (count != 0) out += count == 4 ? "\\X2\\" : "\\X4\\";
    digits = count;
  }

  std::string& out;
  int digits = 0;
};

}  // namespace

const char* DecodeIsoString(const char* body, const char* end, std::string& out,
                            BadEscapeSink* sink) {
  const std::size_t before = out.size();
  Decoder decoder(body, end, out, sink, false);
  const char* const closing = decoder.Run();
  if (!decoder.HasUpperBytes()) return closing;
  const char* const stop = closing == nullptr ? end : closing;
  if (IsValidUtf8({body, static_cast<std::size_t>(stop - body)})) return closing;
  out.resize(before);
  return Decoder(body, end, out, nullptr, true).Run();
}

void AppendIsoString(std::string& out, std::string_view text) {
  const std::string read = ToUtf8(text);
  std::string_view rest = read;
  Encoder encoder(out);
  out += kQuote;
  char32_t code = 0;
  while (!rest.empty() && TakeUtf8(rest, code)) encoder.Append(code);
  encoder.End();
  out += kQuote;
}

}  // namespace KelIFC
