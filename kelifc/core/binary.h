#ifndef KELIFC_CORE_BINARY_H_
#define KELIFC_CORE_BINARY_H_

#include <array>
#include <cstddef>
#include <ostream>
#include <string_view>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

namespace detail {

/// Parses a bit text between double quotes into `count` flags. A flag is '1' where the bit text has
/// a '1', otherwise '0'. Returns the cursor after the next comma. If there is no bit text before
/// the next comma, all flags are '0' and the function returns `text`. `text` is not null.
KELIFC_API const char* ReadBits(const char* text, char* flags, std::size_t count);

}  // namespace detail

/// A bit string of fixed width, or unset. In a file, each bit is one character, 0 or 1, between
/// double quotes. This is not the hexadecimal form of the published exchange structure.
template <std::size_t N>
class BINARY {
 public:
  BINARY() { flags.fill('0'); }
  BINARY(const BINARY&) = default;
  BINARY& operator=(const BINARY&) = default;
  virtual ~BINARY() = default;

  /// Parses the bits. Bits that are missing in the text are 0. The value exists even if there is no
  /// bit text.
  const char* Parse(const char* text) {
    flags.fill('0');
    exists = false;
    const char* next = nullptr;
    if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
    exists = true;
    return detail::ReadBits(text, flags.data(), N);
  }

  /// Writes the bits, or `$` if the value is unset.
  std::ostream& Write(std::ostream& out) const {
    if (!exists) {
      detail::PutChar(out, '$');
      return out;
    }
    detail::PutChar(out, '"');
    detail::PutText(out, std::string_view(flags.data(), N));
    detail::PutChar(out, '"');
    return out;
  }

  /// Returns false if the value is unset.
  bool GetExists() const { return exists; }

 protected:
  std::array<char, N> flags;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_BINARY_H_
