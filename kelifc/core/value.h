#ifndef KELIFC_CORE_VALUE_H_
#define KELIFC_CORE_VALUE_H_

#include <iosfwd>

#include "kelifc/core/unknown.h"

namespace KelIFC {

/// The base class of typed values, which are the defined types that a select can hold. Parse and
/// Write handle the value in an attribute, which has no type name. In a select, the value is inside
/// the name of its type, as in `IFCLENGTHMEASURE(2.5)`.
class KELIFC_API IfcValue : public IfcUnknown {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  /// Writes the value with the name of its type and the closing parenthesis.
  virtual std::ostream& WriteWithName(std::ostream& out) const = 0;
  /// Parses the value with the name of its type. `text` starts at the type name or at its
  /// parenthesis.
  virtual const char* ParseBody(const char* text) = 0;

  IfcValue(const IfcValue&) = default;
  IfcValue& operator=(const IfcValue&) = default;

 protected:
  IfcValue() = default;
  ~IfcValue() override;
};

/// Returns true for a value of a defined type, which a file writes with the name of its type and
/// without a number. Returns false for null.
KELIFC_API bool IsTypedValue(const IfcUnknown* instance);

}  // namespace KelIFC

#endif  // KELIFC_CORE_VALUE_H_
