#include "kelifc/core/text/quoting.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/hex.h"

namespace KelIFC {

using detail::PutChar;
using detail::PutText;

namespace {

// Decodes the two characters after `\X\`. Returns the position after them, or null if the text
// ends.
const char* DecodeByte(const char* text, std::string& out) {
  const int first = HexDigit(text[0]);
  const int second = first < 0 ? -1 : HexDigit(text[1]);
  if (first >= 0) out.push_back(static_cast<char>(second < 0 ? first : 16 * first + second));
  return text[0] == '\0' || text[1] == '\0' ? nullptr : text + 2;
}

// Decodes the escape at `text`. Returns the position after it, or null if the text ends in it. A
// `\X` without a backslash after it is removed.
const char* DecodeEscape(const char* text, std::string& out) {
  const char c = text[1];
  if (c == '\0') return nullptr;
  if (c == 'X' || c == 'x') return text[2] == kEscape ? DecodeByte(text + 3, out) : text + 2;
  if (!IsEscapable(c)) out.push_back(kEscape);
  out.push_back(c);
  return text + 2;
}

constexpr char kUpperDigits[] = "0123456789ABCDEF";

bool IsPlain(char c) { return static_cast<unsigned char>(c) < 0x80 && !IsEscapable(c); }

constexpr std::uint64_t kEachByte = 0x0101010101010101;

// Of eight ASCII characters, returns a word with an upper bit if and only if one of them is `c`.
std::uint64_t MarkEqual(std::uint64_t characters, char c) {
  return (characters ^ (kEachByte * static_cast<unsigned char>(c))) - kEachByte;
}

// Returns true if none of the characters is a NUL or needs an escape. Tests eight at a time.
bool IsAllPlain(std::string_view text) {
  std::uint64_t upperBits = 0;
  for (; text.size() >= sizeof upperBits; text.remove_prefix(sizeof upperBits)) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data(), sizeof word);
    upperBits |= word | MarkEqual(word, '\0') | MarkEqual(word, kQuote) | MarkEqual(word, kEscape);
  }
  const bool isRestPlain =
      std::all_of(text.begin(), text.end(), [](char c) { return c != '\0' && IsPlain(c); });
  return isRestPlain && (upperBits & (kEachByte * 0x80)) == 0;
}

// Nearly every text needs no escapes and fits into the buffer. Returns false for any other text, of
// which nothing is written.
bool PutPlain(std::ostream& out, std::string_view text) {
  if (!IsAllPlain(text)) return false;
  char* const space = detail::BeginSpace(out, text.size() + 2);
  if (space == nullptr) return false;
  space[0] = kQuote;
  text.copy(space + 1, text.size());
  space[text.size() + 1] = kQuote;
  detail::EndSpace(out, text.size() + 2);
  return true;
}

void EncodeCharacter(std::ostream& out, char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (byte < 0x80) {
    const char pair[] = {kEscape, c};
    PutText(out, std::string_view(pair, sizeof pair));
  } else {
    const char code[] = {kEscape, 'X', kEscape, kUpperDigits[byte / 16], kUpperDigits[byte % 16]};
    PutText(out, std::string_view(code, sizeof code));
  }
}

// Appends characters. A string that is still empty allocates no more memory than it needs; if it
// grew, it would allocate memory for at least twice its old capacity.
void AppendExactly(std::string& out, const char* text, std::size_t length) {
  if (out.empty() && length > out.capacity()) {
    out = std::string(text, length);
  } else {
    out.append(text, length);
  }
}

}  // namespace

const char* DecodeQuoted(const char* text, std::string& out) {
  const char* cursor = std::strchr(text, kQuote);
  if (cursor == nullptr) return nullptr;
  ++cursor;
  // Each of the two searches reads each byte once: the next quote is searched again only after a
  // quote that an escape has used.
  const char* quote = std::strchr(cursor, kQuote);
  const char* end = quote != nullptr ? quote : cursor + std::strlen(cursor);
  while (true) {
    const auto length = static_cast<std::size_t>(end - cursor);
    const auto* escape = static_cast<const char*>(std::memchr(cursor, kEscape, length));
    if (escape == nullptr) {
      AppendExactly(out, cursor, length);
      return quote;
    }
    out.append(cursor, static_cast<std::size_t>(escape - cursor));
    cursor = DecodeEscape(escape, out);
    if (cursor == nullptr) return nullptr;
    if (cursor > end) {
      quote = std::strchr(cursor, kQuote);
      end = quote != nullptr ? quote : cursor + std::strlen(cursor);
    }
  }
}

bool FindPlainQuoted(const char* text, std::string_view& plain) {
  const char* const opening = *text == kQuote ? text : std::strchr(text, kQuote);
  if (opening == nullptr) return false;
  const char* const closing = std::strchr(opening + 1, kQuote);
  if (closing == nullptr) return false;
  plain = std::string_view(opening + 1, static_cast<std::size_t>(closing - opening - 1));
  return plain.find(kEscape) == std::string_view::npos;
}

void EncodeQuoted(std::ostream& out, std::string_view text) {
  if (PutPlain(out, text)) return;
  text = text.substr(0, text.find('\0'));
  PutChar(out, kQuote);
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsPlain(text[i])) continue;
    if (i != begin) PutText(out, text.substr(begin, i - begin));
    EncodeCharacter(out, text[i]);
    begin = i + 1;
  }
  PutText(out, text.substr(begin));
  PutChar(out, kQuote);
}

}  // namespace KelIFC
