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

/// Fills `count` flags from a bit text between double quotes and gives the next cursor; `text` is
/// not null. A flag is '1' where the bit text has a '1', else '0'. If no such text stands ahead of
/// the next comma, all flags are '0' and the result is `text`.
KELIFC_API const char* ReadBits(const char* text, char* flags, std::size_t count);

}  // namespace detail

/// A bit string of fixed width, or unset. In a file the bits stand one by one as 0 and 1 between
/// double quotes, which is not the hexadecimal form of the published exchange structure.
template <std::size_t N>
class BINARY {
 public:
  BINARY() { flags.fill('0'); }
  BINARY(const BINARY&) = default;
  BINARY& operator=(const BINARY&) = default;
  virtual ~BINARY() = default;

  /// Reads the bits; a bit text that is too short, or missing, is filled up with 0 and exists.
  const char* Parse(const char* text) {
    flags.fill('0');
    exists = false;
    const char* next = nullptr;
    if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
    exists = true;
    return detail::ReadBits(text, flags.data(), N);
  }

  /// Writes the bits, `$` if unset.
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

  bool GetExists() const { return exists; }

 protected:
  std::array<char, N> flags;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_BINARY_H_
