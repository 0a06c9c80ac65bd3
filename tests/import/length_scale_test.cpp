#include <gtest/gtest.h>

#include "kelifc/geo/ifc_server_object.h"

#include "tests/import/release_test.h"

namespace KelIFC {
namespace {

constexpr char kMetre[] = "#10=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n";
constexpr char kMillimetre[] = "#11=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n";
constexpr char kRadian[] = "#12=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);\n";

double ScaleOf(const ComPtr<IIFCServer>& server) {
  return static_cast<CoIFCServer&>(*server).GetLengthScale();
}

template <class Release>
class LengthScale : public ReleaseTest<Release> {
 protected:
  /// Returns the scale of a project that assigns `units`; `instances` is the text of the units.
  static double Scale(const std::string& units, const std::string& instances) {
    return ScaleOf(
        ReleaseTest<Release>::Load("#1=IFCPROJECT('3It3CdvhLLoRj6paiTsQpU',$,$,$,$,$,$,(),#2);\n"
                                   "#2=IFCUNITASSIGNMENT(" +
                                   units + ");\n" + instances));
  }

  /// Returns the scale of a unit like the inch: `value` times `component`.
  static double Converted(const std::string& value, const std::string& component,
                          const std::string& type = ".LENGTHUNIT.") {
    return Scale("(#20,#11)", std::string(kMetre) + kMillimetre + kRadian +
                                  "#20=IFCCONVERSIONBASEDUNIT($," + type +
                                  ",'INCH',#21);\n"
                                  "#21=IFCMEASUREWITHUNIT(" +
                                  value + "," + component + ");\n");
  }
};
TYPED_TEST_SUITE(LengthScale, ConvertedReleases);

TYPED_TEST(LengthScale, IsOneWithoutAProject) { EXPECT_EQ(ScaleOf(this->Load(kMillimetre)), 1.0); }

TYPED_TEST(LengthScale, IsOneWithoutAnAssignment) {
  EXPECT_EQ(ScaleOf(this->Load("#1=IFCPROJECT('3It3CdvhLLoRj6paiTsQpU',$,$,$,$,$,$,(),$);\n")),
            1.0);
  EXPECT_EQ(ScaleOf(this->Load("#1=IFCPROJECT('3It3CdvhLLoRj6paiTsQpU',$,$,$,$,$,$,(),#1);\n")),
            1.0);
}

TYPED_TEST(LengthScale, IsOneWithoutUnits) {
  EXPECT_EQ(this->Scale("()", ""), 1.0);
  EXPECT_EQ(this->Scale("$", ""), 1.0);
  EXPECT_EQ(this->Scale("(#7,#1)", ""), 1.0) << "no instance, and one of another class";
}

TYPED_TEST(LengthScale, IsThePrefixOfTheUnit) {
  EXPECT_EQ(this->Scale("(#10)", kMetre), 1.0);
  EXPECT_EQ(this->Scale("(#11)", kMillimetre), 0.001);
  EXPECT_EQ(this->Scale("(#13)", "#13=IFCSIUNIT(*,.LENGTHUNIT.,.KILO.,.METRE.);\n"), 1000.0);
}

TYPED_TEST(LengthScale, IgnoresTheNameOfTheUnit) {
  EXPECT_EQ(this->Scale("(#13)", "#13=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.GRAM.);\n"), 0.001);
}

TYPED_TEST(LengthScale, IsThatOfTheFirstLengthUnit) {
  const std::string units = std::string(kMetre) + kMillimetre + kRadian;
  EXPECT_EQ(this->Scale("(#12,#10)", units), 1.0);
  EXPECT_EQ(this->Scale("(#12,#11,#10)", units), 0.001);
  EXPECT_EQ(this->Scale("(#12,#10,#11)", units), 1.0);
  EXPECT_EQ(this->Scale("(#12)", units), 1.0);
}

TYPED_TEST(LengthScale, OfAConvertedUnitIsItsValueInMetres) {
  EXPECT_DOUBLE_EQ(this->Converted("IFCLENGTHMEASURE(0.0254)", "#10"), 0.0254);
  EXPECT_DOUBLE_EQ(this->Converted("IFCLENGTHMEASURE(25.4)", "#11"), 0.0254);
  EXPECT_DOUBLE_EQ(this->Converted("IFCRATIOMEASURE(0.0254)", "#10"), 0.0254);
}

TYPED_TEST(LengthScale, OfAConvertedUnitIgnoresItsOwnType) {
  EXPECT_DOUBLE_EQ(this->Converted("IFCLENGTHMEASURE(2.)", "#10", ".PLANEANGLEUNIT."), 2.0);
}

TYPED_TEST(LengthScale, SkipsConvertedUnitsOfOtherKinds) {
  EXPECT_EQ(this->Converted("IFCLENGTHMEASURE(0.0175)", "#12"), 0.001);
  EXPECT_EQ(this->Converted("IFCLENGTHMEASURE(0.0175)", "$"), 0.001);
  EXPECT_EQ(this->Converted("IFCLENGTHMEASURE(0.0175)", "#20"), 0.001) << "no SI unit";
}

TYPED_TEST(LengthScale, SkipsConvertedUnitsWithoutAFactor) {
  EXPECT_EQ(this->Scale("(#20,#11)", std::string(kMillimetre) +
                                         "#20=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'INCH',$);\n"),
            0.001);
}

TYPED_TEST(LengthScale, OfAConvertedUnitWithoutAValueIsThatOfItsComponent) {
  EXPECT_EQ(this->Converted("IFCLENGTHMEASURE(0.)", "#11"), 0.001);
  EXPECT_EQ(this->Converted("$", "#11"), 0.001);
}

TYPED_TEST(LengthScale, IsReadAgainByEachCall) {
  const auto server = this->Load(
      "#1=IFCPROJECT('3It3CdvhLLoRj6paiTsQpU',$,$,$,$,$,$,(),#2);\n"
      "#2=IFCUNITASSIGNMENT((#11));\n" +
      std::string(kMillimetre));
  EXPECT_EQ(ScaleOf(server), 0.001);
  static_cast<CoIFCServer&>(*server).Model().Reset();
  EXPECT_EQ(ScaleOf(server), 1.0);
}

TEST(LengthScaleOfAServer, IsOneForReleasesWithoutAConversion) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  EXPECT_EQ(ScaleOf(server), 1.0);
  const ModelFile file(ModelText("IFC20_LONGFORM", kMillimetre));
  LoadFile(*server, file.Path());
  EXPECT_EQ(ScaleOf(server), 1.0);
}

}  // namespace
}  // namespace KelIFC
