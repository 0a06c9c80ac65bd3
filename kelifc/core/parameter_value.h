#ifndef KELIFC_CORE_PARAMETER_VALUE_H_
#define KELIFC_CORE_PARAMETER_VALUE_H_

#include <iosfwd>

#include "kelifc/core/real.h"
#include "kelifc/core/selects.h"
#include "kelifc/core/unknown.h"

namespace KelIFC {

/// A parameter on a curve. A set of trims contains it as an inline value, always with the name of
/// its type. IfcUnknown is its last base.
class KELIFC_API IfcParameterValue : public REAL, public IfcTrimmingSelect, public IfcUnknown {
 public:
  IfcParameterValue() = default;
  /// A parameter that is set.
  IfcParameterValue(double number) : REAL(number) {}
  IfcParameterValue(const IfcParameterValue&) = default;
  IfcParameterValue& operator=(const IfcParameterValue&) = default;
  ~IfcParameterValue() override;

  static const char* GetItemName();
  const char* GetStepName() const override;

  /// Parses the number after the next parenthesis.
  const char* Parse(const char* text) override;
  /// Writes the entire value, with its closing parenthesis.
  std::ostream& Write(std::ostream& out) const override;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_PARAMETER_VALUE_H_
