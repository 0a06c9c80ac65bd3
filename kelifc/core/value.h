#ifndef KELIFC_CORE_VALUE_H_
#define KELIFC_CORE_VALUE_H_

#include <iosfwd>

#include "kelifc/core/unknown.h"

namespace KelIFC {

/// The base of typed values: defined types that can stand in a select. As an attribute such a value
/// stands bare, which is what Parse and Write handle; in a select it stands with the name of its
/// type around it, as in `IFCLENGTHMEASURE(2.5)`.
class KELIFC_API IfcValue : public IfcUnknown {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  /// Writes the typed form, with its closing parenthesis.
  virtual std::ostream& WriteWithName(std::ostream& out) const = 0;
  /// Reads the typed form, from the type name or its parenthesis on.
  virtual const char* ParseBody(const char* text) = 0;

  IfcValue(const IfcValue&) = default;
  IfcValue& operator=(const IfcValue&) = default;

 protected:
  IfcValue() = default;
  ~IfcValue() override;
};

/// True for a value of a defined type, which a file writes with the name of its type and which has
/// no number of its own. False for null.
KELIFC_API bool IsTypedValue(const IfcUnknown* instance);

}  // namespace KelIFC

#endif  // KELIFC_CORE_VALUE_H_
