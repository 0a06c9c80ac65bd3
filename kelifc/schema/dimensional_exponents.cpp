#include "kelifc/schema/dimensional_exponents.h"

#include "kelifc/schema/core/units.h"

namespace KelIFC {

namespace {

struct NamedExponents {
  IfcSiUnitName name;
  IfcDimensionalExponents exponents;
};

// Length, mass, time, current, temperature, substance, luminous intensity.
constexpr NamedExponents kExponents[] = {
    {IfcSiUnitName_METRE, {1, 0, 0, 0, 0, 0, 0}},
    {IfcSiUnitName_SQUARE_METRE, {2, 0, 0, 0, 0, 0, 0}},
    {IfcSiUnitName_CUBIC_METRE, {3, 0, 0, 0, 0, 0, 0}},
    {IfcSiUnitName_GRAM, {0, 1, 0, 0, 0, 0, 0}},
    {IfcSiUnitName_SECOND, {0, 0, 1, 0, 0, 0, 0}},
    {IfcSiUnitName_AMPERE, {0, 0, 0, 1, 0, 0, 0}},
    {IfcSiUnitName_KELVIN, {0, 0, 0, 0, 1, 0, 0}},
    {IfcSiUnitName_MOLE, {0, 0, 0, 0, 0, 1, 0}},
    {IfcSiUnitName_CANDELA, {0, 0, 0, 0, 0, 0, 1}},
    {IfcSiUnitName_RADIAN, {0, 0, 0, 0, 0, 0, 0}},
    {IfcSiUnitName_STERADIAN, {0, 0, 0, 0, 0, 0, 0}},
    {IfcSiUnitName_HERTZ, {0, 0, -1, 0, 0, 0, 0}},
    {IfcSiUnitName_NEWTON, {1, 1, -2, 0, 0, 0, 0}},
    {IfcSiUnitName_PASCAL, {-1, 1, -2, 0, 0, 0, 0}},
    {IfcSiUnitName_JOULE, {2, 1, -2, 0, 0, 0, 0}},
    {IfcSiUnitName_WATT, {2, 1, -3, 0, 0, 0, 0}},
    {IfcSiUnitName_COULOMB, {0, 0, 1, 1, 0, 0, 0}},
    {IfcSiUnitName_VOLT, {2, 1, -3, -1, 0, 0, 0}},
    {IfcSiUnitName_FARAD, {-2, -1, 4, 2, 0, 0, 0}},
    {IfcSiUnitName_OHM, {2, 1, -3, -2, 0, 0, 0}},
    {IfcSiUnitName_SIEMENS, {-2, -1, 3, 2, 0, 0, 0}},
    {IfcSiUnitName_WEBER, {2, 1, -2, -1, 0, 0, 0}},
    {IfcSiUnitName_TESLA, {0, 1, -2, -1, 0, 0, 0}},
    {IfcSiUnitName_HENRY, {2, 1, -2, -2, 0, 0, 0}},
    {IfcSiUnitName_DEGREE_CELSIUS, {0, 0, 0, 0, 1, 0, 0}},
    {IfcSiUnitName_LUMEN, {0, 0, 0, 0, 0, 0, 1}},
    {IfcSiUnitName_LUX, {-2, 0, 0, 0, 0, 0, 1}},
    {IfcSiUnitName_BECQUEREL, {0, 0, -1, 0, 0, 0, 0}},
    {IfcSiUnitName_GRAY, {2, 0, -2, 0, 0, 0, 0}},
    {IfcSiUnitName_SIEVERT, {2, 0, -2, 0, 0, 0, 0}},
};

struct PrefixCoefficient {
  IfcSiPrefix prefix;
  double coefficient;
};

constexpr PrefixCoefficient kCoefficients[] = {
    {IfcSiPrefix_EXA, 1e18},    {IfcSiPrefix_PETA, 1e15},   {IfcSiPrefix_TERA, 1e12},
    {IfcSiPrefix_GIGA, 1e9},    {IfcSiPrefix_MEGA, 1e6},    {IfcSiPrefix_KILO, 1000.0},
    {IfcSiPrefix_HECTO, 100.0}, {IfcSiPrefix_DECA, 10.0},   {IfcSiPrefix_DECI, 0.1},
    {IfcSiPrefix_CENTI, 0.01},  {IfcSiPrefix_MILLI, 0.001}, {IfcSiPrefix_MICRO, 1e-6},
    {IfcSiPrefix_NANO, 1e-9},   {IfcSiPrefix_PICO, 1e-12},  {IfcSiPrefix_FEMTO, 1e-15},
    {IfcSiPrefix_ATTO, 1e-18},
};

}  // namespace

IfcDimensionalExponents DimensionsForSiUnit(std::int32_t name) {
  for (const auto& row : kExponents) {
    if (row.name == name) return row.exponents;
  }
  return {};
}

double CoefficientOfPrefix(std::int32_t prefix) {
  for (const auto& row : kCoefficients) {
    if (row.prefix == prefix) return row.coefficient;
  }
  return 1.0;
}

}  // namespace KelIFC
