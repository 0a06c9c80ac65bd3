#ifndef KELIFC_CORE_LENGTH_MEASURE_H_
#define KELIFC_CORE_LENGTH_MEASURE_H_

#include <iosfwd>

#include "kelifc/core/real.h"
#include "kelifc/core/value.h"

namespace KelIFC {

/// A measure in the model's unit, or unset. Attributes use it for lengths and for all other
/// measures. The typed values of ratios and positive lengths are read as this class, and are
/// written with its name.
class KELIFC_API IfcLengthMeasure : public IfcValue, public REAL {
 public:
  IfcLengthMeasure() = default;
  /// A measure that is set.
  IfcLengthMeasure(double number) : REAL(number) {}
  /// A measure with the value of a number; it is unset if the number is.
  IfcLengthMeasure(const REAL& number) : REAL(number) {}
  IfcLengthMeasure(const IfcLengthMeasure&) = default;
  IfcLengthMeasure& operator=(const IfcLengthMeasure&) = default;
  ~IfcLengthMeasure() override;

  /// Sets the measure.
  IfcLengthMeasure& operator=(double number) {
    REAL::operator=(number);
    return *this;
  }
  /// Takes the value of a number; the measure becomes unset if the number is.
  IfcLengthMeasure& operator=(const REAL& number) {
    REAL::operator=(number);
    return *this;
  }

  static const char* GetItemName();
  const char* GetStepName() const override;

  /// Parses and writes the number without a type name, as in an attribute.
  const char* Parse(const char* text) override;
  std::ostream& Write(std::ostream& out) const override;
  /// Parses and writes the number with the name of its type, as in a select.
  std::ostream& WriteWithName(std::ostream& out) const override;
  const char* ParseBody(const char* text) override;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_LENGTH_MEASURE_H_
