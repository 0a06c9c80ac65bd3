#ifndef KELIFC_CORE_REAL_H_
#define KELIFC_CORE_REAL_H_

#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// A floating-point attribute, or unset. An unset one has the value 0.
class KELIFC_API REAL {
 public:
  REAL() = default;
  /// A value that is set.
  REAL(double number) : value(number), exists(true) {}
  REAL(const REAL&) = default;
  REAL& operator=(const REAL&) = default;
  virtual ~REAL() = default;

  /// Sets the value.
  REAL& operator=(double number) {
    value = number;
    exists = true;
    return *this;
  }
  /// Returns the value; 0 if it is unset.
  operator double() const { return value; }

  /// Parses a number. Non-numeric text reads as 0 and counts as set.
  const char* Parse(const char* text);
  /// Writes at most ten decimals and no exponent. Writes "0." for a value within the write
  /// tolerance, and `$` if the value is unset.
  std::ostream& Write(std::ostream& out) const;

  /// Returns false if the value is unset.
  bool GetExists() const { return exists; }

 protected:
  double value = 0.0;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_REAL_H_
