#ifndef KELIFC_CORE_INTEGER_H_
#define KELIFC_CORE_INTEGER_H_

#include <cstdint>
#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// A whole-number attribute of 32 bits, or unset. An unset one has the value 0.
class KELIFC_API INTEGER {
 public:
  INTEGER() = default;
  INTEGER(int number) : value(number), exists(true) {}
  INTEGER(const INTEGER&) = default;
  INTEGER& operator=(const INTEGER&) = default;
  virtual ~INTEGER() = default;

  operator int() const { return value; }

  /// Reads a decimal number; text that is none gives 0, which exists, and one out of range the
  /// nearest bound.
  const char* Parse(const char* text);
  /// Writes the decimal number, `$` if unset.
  std::ostream& Write(std::ostream& out) const;

  bool GetExists() const { return exists; }

 protected:
  std::int32_t value = 0;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_INTEGER_H_
