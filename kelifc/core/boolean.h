#ifndef KELIFC_CORE_BOOLEAN_H_
#define KELIFC_CORE_BOOLEAN_H_

#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// A truth value, or unset. An unset one is false.
class KELIFC_API BOOLEAN {
 public:
  BOOLEAN() = default;
  /// A value that is set.
  BOOLEAN(bool truth) : value(truth), exists(true) {}
  BOOLEAN(const BOOLEAN&) = default;
  BOOLEAN& operator=(const BOOLEAN&) = default;
  virtual ~BOOLEAN() = default;

  /// Returns the value; false if it is unset.
  operator bool() const { return value; }

  /// Parses `.T.` as true and every other text as false. The value exists in both cases. Text that
  /// is not an enumerator leaves the cursor where it is.
  const char* Parse(const char* text);
  /// Writes `.T.` or `.F.`, or `$` if the value is unset.
  std::ostream& Write(std::ostream& out) const;

  /// Returns false if the value is unset.
  bool GetExists() const { return exists; }

 protected:
  bool value = false;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_BOOLEAN_H_
