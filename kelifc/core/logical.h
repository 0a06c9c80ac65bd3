#ifndef KELIFC_CORE_LOGICAL_H_
#define KELIFC_CORE_LOGICAL_H_

#include <cstdint>
#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// The three truth values.
enum LOGICAL_VALUE : std::int32_t {
  LOGICAL_TRUE = -1,
  LOGICAL_FALSE = 0,
  LOGICAL_UNKNOWN = 1,
};

/// A truth value that can be unknown, or unset. An unset one is unknown.
class KELIFC_API LOGICAL {
 public:
  LOGICAL() = default;
  /// A value that is set.
  LOGICAL(LOGICAL_VALUE truth) : value(truth), exists(true) {}
  LOGICAL(const LOGICAL&) = default;
  LOGICAL& operator=(const LOGICAL&) = default;
  virtual ~LOGICAL() = default;

  /// Returns the value; LOGICAL_UNKNOWN if it is unset.
  operator LOGICAL_VALUE() const { return value; }

  /// Parses `.T.` and `.F.`, and every other text as unknown. The value exists in all cases. Text
  /// that is not an enumerator leaves the cursor where it is.
  const char* Parse(const char* text);
  /// Writes `.T.`, `.F.` or, for every other value, `.U.`; writes `$` if the value is unset.
  std::ostream& Write(std::ostream& out) const;

  /// Returns false if the value is unset.
  bool GetExists() const { return exists; }

 protected:
  LOGICAL_VALUE value = LOGICAL_UNKNOWN;
  bool exists = false;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_LOGICAL_H_
