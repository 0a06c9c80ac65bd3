#ifndef KELIFC_CORE_REAL_H_
#define KELIFC_CORE_REAL_H_

#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// A floating-point attribute, or unset. An unset one has the value 0.
class KELIFC_API REAL {
 public:
  REAL() = default;
  REAL(double number) : value(number), exists(true) {}
  REAL(const REAL&) = default;
  REAL& operator=(const REAL&) = default;
  virtual ~REAL() = default;

  REAL& operator=(double number) {
    value = number;
    exists = true;
    return *this;
  }
  operator double() const { return value; }

  /// Reads a number; text that is none gives 0, which exists.
  const char* Parse(const char* text);
  /// Writes at most ten decimals, and no exponent; "0." within the write tolerance, `$` if unset.
  std::ostream& Write(std::ostream& out) const;

  bool GetExists() const { return exists; }

 protected:
  double value = 0.0;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_REAL_H_
