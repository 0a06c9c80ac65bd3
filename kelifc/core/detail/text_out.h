#ifndef KELIFC_CORE_DETAIL_TEXT_OUT_H_
#define KELIFC_CORE_DETAIL_TEXT_OUT_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <streambuf>
#include <string_view>

#include "kelifc/platform/export.h"

// Writes to a stream without its formatting. A saved model consists of millions of pieces of a few
// characters, so each piece that fits into the stream's buffer is written there, without a call of
// the stream. Width, fill, locale and number format of the stream have no effect.

namespace KelIFC::detail {

/// Gives access to the free part of a stream buffer. The standard library gives this access to
/// derived classes only. No object of this class exists.
struct FreePart : std::streambuf {
  static char* Begin(const std::streambuf& buffer) { return (buffer.*(&FreePart::pptr))(); }
  static char* End(const std::streambuf& buffer) { return (buffer.*(&FreePart::epptr))(); }
  static void Take(std::streambuf& buffer, std::ptrdiff_t count) {
    (buffer.*(&FreePart::pbump))(static_cast<int>(count));
  }
};

/// Returns the place of the next character if `count` characters fit into the buffer of the stream.
/// Otherwise, and for a stream that has failed, returns null. EndSpace says what was written there.
inline char* BeginSpace(std::ostream& out, std::size_t count) {
  if (!out.good()) return nullptr;
  const std::streambuf& buffer = *out.rdbuf();
  char* const begin = FreePart::Begin(buffer);
  return static_cast<std::size_t>(FreePart::End(buffer) - begin) < count ? nullptr : begin;
}
inline void EndSpace(std::ostream& out, std::size_t count) {
  FreePart::Take(*out.rdbuf(), static_cast<std::ptrdiff_t>(count));
}

/// Writes a text through the stream. If the stream has failed before, nothing happens. If the
/// buffer accepts no more characters, badbit is set.
KELIFC_API void PutThrough(std::ostream& out, std::string_view text);

/// Writes a text without any change, with the same error handling.
inline void PutText(std::ostream& out, std::string_view text) {
  char* const space = BeginSpace(out, text.size());
  if (space == nullptr) return PutThrough(out, text);
  if (!text.empty()) std::memcpy(space, text.data(), text.size());
  EndSpace(out, text.size());
}

/// Writes one character, with the same error handling.
inline void PutChar(std::ostream& out, char c) { PutText(out, std::string_view(&c, 1)); }

/// Writes a piece of at most `kMost` characters: `format` writes them at an address and returns
/// their end. The error handling is the same.
template <std::size_t kMost, class Format>
void PutPiece(std::ostream& out, Format&& format) {
  if (char* const space = BeginSpace(out, kMost)) {
    EndSpace(out, static_cast<std::size_t>(format(space) - space));
    return;
  }
  char piece[kMost];
  PutThrough(out, std::string_view(piece, static_cast<std::size_t>(format(piece) - piece)));
}

/// The space for every number of 64 bits in decimal, with a sign.
constexpr std::size_t kNumberTextSize = 20;

/// Writes a number in decimal, without grouping.
KELIFC_API void PutNumber(std::ostream& out, std::int64_t number);
KELIFC_API void PutNumber(std::ostream& out, std::uint64_t number);

/// Writes the number of an instance between a `#` and `last`, or without `last` if it is NUL.
KELIFC_API void PutReference(std::ostream& out, std::uint64_t number, char last = '\0');

/// Writes `text` with its letters a to z in upper case and then `last`.
KELIFC_API void PutUpperCase(std::ostream& out, std::string_view text, char last);

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_TEXT_OUT_H_
