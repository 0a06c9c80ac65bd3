#ifndef KELIFC_CORE_EXCEPTION_H_
#define KELIFC_CORE_EXCEPTION_H_

#include <cstdint>
#include <stdexcept>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// Why an IfcException was thrown.
enum ECause : std::int32_t {
  CAUSE_NONE = 0,
  CAUSE_MISSING_REFERENCE = 1,  ///< a required reference has no instance of its class
};

/// The only exception that entity classes throw themselves. The getters of required references
/// throw it.
class KELIFC_API IfcException : public std::runtime_error {
 public:
  /// An exception whose message is a text for `reason`.
  explicit IfcException(ECause reason = CAUSE_NONE);
  IfcException(const IfcException&) = default;
  IfcException& operator=(const IfcException&) = default;
  ~IfcException() override;

  /// Returns the reason that the constructor received.
  ECause GetCause() const { return cause; }

 private:
  ECause cause;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_EXCEPTION_H_
