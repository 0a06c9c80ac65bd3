#include "kelifc/server/iso_statement.h"

#include <algorithm>
#include <cstddef>
#include <ostream>

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/iso_binary.h"
#include "kelifc/core/text/quoting.h"
#include "kelifc/platform/utf8.h"
#include "kelifc/server/block_search.h"

namespace KelIFC {
namespace {

constexpr char kBinaryQuote = '"';

// Matchers of the bytes above 127, and of control characters with them.
using UpperByte = Below<'\0'>;
using ControlOrUpperByte = Below<' '>;

std::string_view Between(const char* begin, const char* end) {
  return {begin, static_cast<std::size_t>(end - begin)};
}

}  // namespace

const char* IsoStatementReader::Read(const char* text, const char* end) {
  out.clear();
  // Many files have a blank after the `=`. It need not cost a copy of the statement.
  while (text != end && IsIsoBlank(*text)) ++text;
  kept = text;
  limit = end;
  for (const char* at = text; at != end;) {
    // Blanks, strings, binary values and letters in lower case may need a change.
    at = FindMatch<Below<'#'>, Is<kQuote>, Within<'a', 'z'>>(at, end);
    if (at != end) at = TakeToken(at);
  }
  if (kept == text) return text;
  FlushTo(end);
  return out.c_str();
}

const char* IsoStatementReader::TakeToken(const char* at) {
  if (*at == kQuote) return TakeString(at);
  if (*at == kBinaryQuote) return TakeBinary(at);
  if (ascii::IsLowerCase(*at)) return TakeLowerCase(at);
  if (!IsIsoBlank(*at)) return at + 1;
  FlushTo(at);
  return kept = at + 1;
}

const char* IsoStatementReader::TakeLowerCase(const char* at) {
  FlushTo(at);
  for (; at != limit && ascii::IsLowerCase(*at); ++at) out += ascii::ToUpperCase(*at);
  return kept = at;
}

// Skips a string that means the same in both notations, and replaces any other one.
const char* IsoStatementReader::TakeString(const char* quote) {
  const char* at = FindMatch<Is<kQuote>, Is<kEscape>, UpperByte>(quote + 1, limit);
  const bool hasUpperBytes = at != limit && *at != kQuote && *at != kEscape;
  if (hasUpperBytes) at = FindAnyOf<kQuote, kEscape>(at, limit);
  const bool isSame = at != limit && *at == kQuote && at[1] != kQuote &&
                      (!hasUpperBytes || IsValidUtf8(Between(quote + 1, at)));
  return isSame ? at + 1 : ReplaceString(quote);
}

const char* IsoStatementReader::ReplaceString(const char* quote) {
  FlushTo(quote);
  decoded.clear();
  const char* const closing = DecodeIsoString(quote + 1, limit, decoded, badEscapes);
  if (closing == nullptr) return kept = limit;
  AppendQuoted(decoded);
  return kept = closing + 1;
}

void IsoStatementReader::AppendQuoted(std::string_view text) {
  out += kQuote;
  for (const char c : text) {
    if (IsEscapable(c)) out += kEscape;
    out += c;
  }
  out += kQuote;
}

const char* IsoStatementReader::TakeBinary(const char* quote) {
  const char* const closing = std::find(quote + 1, limit, kBinaryQuote);
  if (closing == limit) return quote + 1;
  std::string bits;
  if (!AppendBits(bits, Between(quote + 1, closing))) return closing + 1;
  FlushTo(quote + 1);
  out += bits;
  kept = closing;
  return closing + 1;
}

void IsoStatementReader::FlushTo(const char* position) { out.append(kept, position); }

namespace {

// Writes one statement to a stream, with its values in the notation of ISO 10303-21.
class Writer {
 public:
  Writer(std::ostream& stream, std::string_view statement)
      : target(stream), kept(statement.data()), end(kept + statement.size()) {}

  void Run() {
    for (const char* at = kept; at != end;) {
      at = FindAnyOf<kQuote, kBinaryQuote>(at, end);
      if (at != end) at = *at == kQuote ? TakeString(at) : TakeBinary(at);
    }
    detail::PutText(target, Between(kept, end));
  }

 private:
  const char* TakeString(const char* quote) {
    const char* const mark =
        FindMatch<Is<kQuote>, Is<kEscape>, ControlOrUpperByte, Is<'\x7F'>>(quote + 1, end);
    if (mark != end && *mark == kQuote) return mark + 1;
    std::string text;
    const char* const closing = DecodeQuoted(quote, text);
    if (closing == nullptr) return end;
    std::string encoded;
    AppendIsoString(encoded, text);
    return Replace(quote, encoded, closing + 1);
  }

  const char* TakeBinary(const char* quote) {
    const char* const closing = std::find(quote + 1, end, kBinaryQuote);
    if (closing == end) return end;
    std::string digits;
    if (!AppendIsoBinary(digits, Between(quote + 1, closing))) return closing + 1;
    return Replace(quote + 1, digits, closing) + 1;
  }

  const char* Replace(const char* begin, std::string_view text, const char* next) {
    detail::PutText(target, Between(kept, begin));
    detail::PutText(target, text);
    return kept = next;
  }

  std::ostream& target;
  const char* kept;
  const char* const end;
};

}  // namespace

void WriteIsoStatement(std::ostream& target, std::string_view statement) {
  Writer(target, statement).Run();
}

}  // namespace KelIFC
