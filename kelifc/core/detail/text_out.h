#ifndef KELIFC_CORE_DETAIL_TEXT_OUT_H_
#define KELIFC_CORE_DETAIL_TEXT_OUT_H_

#include <cstdint>
#include <ostream>
#include <string_view>

#include "kelifc/platform/export.h"

// Writes to a stream without its formatting. A saved model consists of millions of pieces of a few
// characters, so each piece is written directly to the stream's buffer. Width, fill, locale and
// number format of the stream have no effect.

namespace KelIFC::detail {

/// Writes one character. If the stream has failed before, nothing happens. If the buffer accepts no
/// more characters, badbit is set.
inline void PutChar(std::ostream& out, char c) {
  if (!out.good()) return;
  using Traits = std::ostream::traits_type;
  if (Traits::eq_int_type(out.rdbuf()->sputc(c), Traits::eof())) out.setstate(std::ios::badbit);
}

/// Writes a text without any change, with the same error handling.
inline void PutText(std::ostream& out, std::string_view text) {
  if (!out.good()) return;
  const auto length = static_cast<std::streamsize>(text.size());
  if (out.rdbuf()->sputn(text.data(), length) != length) out.setstate(std::ios::badbit);
}

/// Writes a number in decimal, without grouping.
KELIFC_API void PutNumber(std::ostream& out, std::int64_t number);
KELIFC_API void PutNumber(std::ostream& out, std::uint64_t number);

/// Writes `text` with its letters a to z in upper case and then `last`, as one piece.
KELIFC_API void PutUpperCase(std::ostream& out, std::string_view text, char last);

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_TEXT_OUT_H_
