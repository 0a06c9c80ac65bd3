#include "kelifc/schema/dimensional_exponents.h"

#include <gtest/gtest.h>

#include "kelifc/schema/core/units.h"

namespace KelIFC {
namespace {

TEST(DimensionsForSiUnit, KnowsEveryName) {
  int withDimension = 0;
  for (const auto& row : kIfcSiUnitNameTable) {
    const IfcDimensionalExponents exponents = DimensionsForSiUnit(row.Value);
    withDimension += exponents.LengthExponent != 0 || exponents.MassExponent != 0 ||
                     exponents.TimeExponent != 0 || exponents.ElectricCurrentExponent != 0 ||
                     exponents.ThermodynamicTemperatureExponent != 0 ||
                     exponents.AmountOfSubstanceExponent != 0 ||
                     exponents.LuminousIntensityExponent != 0;
  }
  EXPECT_EQ(withDimension, 28) << "all units except the two angles";
}

TEST(DimensionsForSiUnit, ReturnsTheExponentsOfTheNewton) {
  const IfcDimensionalExponents newton = DimensionsForSiUnit(IfcSiUnitName_NEWTON);
  EXPECT_EQ(newton.LengthExponent, 1);
  EXPECT_EQ(newton.MassExponent, 1);
  EXPECT_EQ(newton.TimeExponent, -2);
}

TEST(DimensionsForSiUnit, ReturnsZerosForAnUnknownName) {
  EXPECT_EQ(DimensionsForSiUnit(0).LengthExponent, 0);
  EXPECT_EQ(DimensionsForSiUnit(31).MassExponent, 0);
}

}  // namespace
}  // namespace KelIFC
