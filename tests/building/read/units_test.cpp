#include "kelifc/building/read/units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

constexpr double kPi = 3.14159265358979323846;

Units UnitsOf(const std::string& units, const std::string& schema = "IFC2X3") {
  const ReadText read = ReadData(
      "#1=IFCPROJECT('p',$,'P',$,$,$,$,$,#2);#2=IFCUNITASSIGNMENT((#3,#4));" + units, schema);
  const Model model(*read.server);
  return ReadUnits(model.Find(1));
}

TEST(Units, ApplyThePrefixOfAnSiUnit) {
  for (const std::string& schema : kSchemas) {
    const Units units = UnitsOf("#3=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);", schema);
    EXPECT_EQ(units.length.name, "CENTIMETRE");
    EXPECT_DOUBLE_EQ(units.length.metres, 0.01);
    EXPECT_EQ(units.radians, 1.0);
  }
}

TEST(Units, ApplyTheFactorAndTheUnitOfAConversion) {
  const Units units = UnitsOf(
      "#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'Ell',#5);"
      "#5=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(114.3),#6);"
      "#6=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);");
  EXPECT_EQ(units.length.name, "ELL");
  EXPECT_DOUBLE_EQ(units.length.metres, 1.143);
}

TEST(Units, AreExactForRoundedFactorsOfKnownNames) {
  const Units units = UnitsOf(
      "#3=IFCCONVERSIONBASEDUNIT($,.PLANEANGLEUNIT.,'DEGREE',#5);"
      "#5=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(0.01745),#6);"
      "#6=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);"
      "#4=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'foot',$);");
  EXPECT_DOUBLE_EQ(units.radians, kPi / 180.0);
  EXPECT_DOUBLE_EQ(units.length.metres, 0.3048);
}

TEST(Units, ReadGradsByTheirFactor) {
  const Units units = UnitsOf(
      "#3=IFCCONVERSIONBASEDUNIT($,.PLANEANGLEUNIT.,'gon',#5);"
      "#5=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.0157079632679),$);");
  EXPECT_DOUBLE_EQ(units.radians, kPi / 200.0);
}

TEST(Units, AreMetresAndRadiansWithoutAUsableUnit) {
  for (const char* text : {"", "#3=IFCSIUNIT(*,.AREAUNIT.,.MILLI.,.SQUARE_METRE.);",
                           "#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'X',#5);"
                           "#5=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(-1.),$);",
                           "#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'X',#5);"
                           "#5=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(0.),#3);"}) {
    const Units units = UnitsOf(text);
    EXPECT_EQ(units.length.name, "METRE") << text;
    EXPECT_EQ(units.length.metres, 1.0) << text;
  }
}

TEST(Units, EndWhereAConversionDependsOnItself) {
  const Units units = UnitsOf(
      "#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'X',#5);"
      "#5=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(1.),#3);");
  EXPECT_EQ(units.length.metres, 1.0);
}

}  // namespace
}  // namespace KelIFC::building
