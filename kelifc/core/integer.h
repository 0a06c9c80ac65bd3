#ifndef KELIFC_CORE_INTEGER_H_
#define KELIFC_CORE_INTEGER_H_

#include <cstdint>
#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// A 32-bit integer attribute, or unset. An unset one has the value 0.
class KELIFC_API INTEGER {
 public:
  INTEGER() = default;
  /// A value that is set.
  INTEGER(int number) : value(number), exists(true) {}
  INTEGER(const INTEGER&) = default;
  INTEGER& operator=(const INTEGER&) = default;
  virtual ~INTEGER() = default;

  /// Returns the value; 0 if it is unset.
  operator int() const { return value; }

  /// Parses a decimal number. Non-numeric text reads as 0 and counts as set. A number out of range
  /// becomes the nearest bound.
  const char* Parse(const char* text);
  /// Writes the decimal number, or `$` if the value is unset.
  std::ostream& Write(std::ostream& out) const;

  /// Returns false if the value is unset.
  bool GetExists() const { return exists; }

 protected:
  std::int32_t value = 0;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_INTEGER_H_
