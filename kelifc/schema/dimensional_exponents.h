#ifndef KELIFC_SCHEMA_DIMENSIONAL_EXPONENTS_H_
#define KELIFC_SCHEMA_DIMENSIONAL_EXPONENTS_H_

#include <cstdint>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// The exponents of the seven SI base units in a unit; all 0 for a plain number.
struct IfcDimensionalExponents {
  std::int32_t LengthExponent = 0;                    ///< of the metre
  std::int32_t MassExponent = 0;                      ///< of the kilogram
  std::int32_t TimeExponent = 0;                      ///< of the second
  std::int32_t ElectricCurrentExponent = 0;           ///< of the ampere
  std::int32_t ThermodynamicTemperatureExponent = 0;  ///< of the kelvin
  std::int32_t AmountOfSubstanceExponent = 0;         ///< of the mole
  std::int32_t LuminousIntensityExponent = 0;         ///< of the candela
};

/// Returns the exponents for the name of an SI unit. All of them are 0 for a number that is not an
/// IfcSiUnitName.
KELIFC_API IfcDimensionalExponents DimensionsForSiUnit(std::int32_t name);

/// Returns the factor of an SI prefix. Returns 1.0 for 0 and for a number that is not an
/// IfcSiPrefix.
KELIFC_API double CoefficientOfPrefix(std::int32_t prefix);

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_DIMENSIONAL_EXPONENTS_H_
