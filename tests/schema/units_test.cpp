#include "tests/schema/model.h"

namespace KelIFC {
namespace {

template <class R>
class Units : public testing::Test {};
using AllReleases = testing::Types<Release151, Release20, Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Units, AllReleases);

template <class R>
class NewerUnits : public testing::Test {};
using NewerReleases = testing::Types<Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(NewerUnits, NewerReleases);

TYPED_TEST(Units, SiUnitKeepsTypePrefixAndName) {
  const std::string text = "IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)";
  Model<TypeParam> model({{1, text}});
  const auto* unit = model.template Get<typename TypeParam::IfcSiUnit>(1);
  EXPECT_EQ(unit->GetPrefixCoefficient(), 0.001);
  EXPECT_EQ(unit->GetName(), IfcSiUnitName_METRE);
  EXPECT_EQ(unit->GetDimensions().LengthExponent, 1);
  EXPECT_EQ(model.TextOf(1), text);
}

TYPED_TEST(Units, SiUnitWithoutPrefixHasTheFactorOne) {
  Model<TypeParam> model({{1, "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)"}});
  const auto* unit = model.template Get<typename TypeParam::IfcSiUnit>(1);
  EXPECT_EQ(unit->GetPrefix(), IfcSiPrefix_NONE);
  EXPECT_EQ(unit->GetPrefixCoefficient(), 1.0);
  EXPECT_EQ(model.TextOf(1), "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)");
}

TYPED_TEST(Units, PrefixInLowerCaseIsUnset) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCSIUNIT(*,.LENGTHUNIT.,.milli.,.METRE.)"),
            "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)");
}

TYPED_TEST(Units, DollarForTheDimensionsIsReadAsTheTypeThatFollows) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCSIUNIT($,.LENGTHUNIT.,$,.METRE.)"), "IFCSIUNIT(*,$,$,$)")
      << "only `*` is skipped, so each later position is off by one";
}

TYPED_TEST(Units, AreAlsoInstances) {
  Model<TypeParam> model(
      {{1, "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)"}, {2, "IFCUNITASSIGNMENT((#1,#5))"}});
  const auto units = model.template Get<IfcUnitAssignment>(2)->GetUnits();
  ASSERT_EQ(units.GetSize(), 2u);
  EXPECT_EQ(dynamic_cast<const IfcUnknown*>(units[1]), model.server.GetItem(std::size_t{1}));
}

TEST(UnitType, HasTheValuesOfItsRelease) {
  const std::string text = "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)";
  EXPECT_EQ(Model<Release151>({{1, text}}).Get<KelIFC151::IfcSiUnit>(1)->GetUnitType(), 1);
  EXPECT_EQ(Model<Release20>({{1, text}}).Get<KelIFC20::IfcSiUnit>(1)->GetUnitType(), 1);
  EXPECT_EQ(Model<Release2x>({{1, text}}).Get<KelIFC2x::IfcSiUnit>(1)->GetUnitType(), 1);
  EXPECT_EQ(Model<Release2x2>({{1, text}}).Get<KelIFC2x2::IfcSiUnit>(1)->GetUnitType(), 16);
  EXPECT_EQ(Model<Release2x3>({{1, text}}).Get<KelIFC2x3::IfcSiUnit>(1)->GetUnitType(), 16);
}

TEST(ConversionBasedUnit, WritesWhatItsBaseWritesInTheTwoNewestReleases) {
  const std::string text = "IFCCONVERSIONBASEDUNIT(#1,.LENGTHUNIT.,'INCH',#2)";
  const std::string written = "IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'INCH',#2)";
  EXPECT_EQ(Rewritten<Release2x3>(text), written);
  EXPECT_EQ(Rewritten<Release2x2>(text), written);
  EXPECT_EQ(Rewritten<Release2x>(text), "IFCCONVERSIONBASEDUNIT('INCH',#2)");
}

TYPED_TEST(NewerUnits, MeasureWithUnitKeepsATypedValue) {
  const std::string text = "IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#2)";
  Model<TypeParam> model({{1, text}, {2, "IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)"}});
  const auto* measure = model.template Get<typename TypeParam::IfcMeasureWithUnit>(1);
  for (int times = 0; times < 2; ++times) {
    const auto* value = dynamic_cast<const REAL*>(measure->GetValueComponent());
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(static_cast<double>(*value), 25.4);
  }
  EXPECT_NE(measure->GetUnitComponent(), nullptr);
  EXPECT_EQ(model.TextOf(1), text);
}

TYPED_TEST(NewerUnits, MeasureWithUnitMergesTheNamesOfLengths) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCMEASUREWITHUNIT(IFCRATIOMEASURE(0.5),#2)"),
            "IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(0.5),#2)");
}

TYPED_TEST(NewerUnits, MeasureWithUnitReadsTheUnitFromAnUnknownValue) {
  Model<TypeParam> model({{1, "IFCMEASUREWITHUNIT(IFCDIRECTION((1.,0.)),#2)"}});
  const auto* measure = model.template Get<typename TypeParam::IfcMeasureWithUnit>(1);
  EXPECT_EQ(measure->GetValueComponent(), nullptr);
  EXPECT_EQ(measure->GetUnitComponent(), nullptr);
}

TEST(PrefixCoefficient, ReturnsTheFactorOfTheTable) {
  const double expected[] = {1.0,  1e18, 1e15, 1e12, 1e9,  1e6,   1e3,   1e2,  10,
                             1e-1, 1e-2, 1e-3, 1e-6, 1e-9, 1e-12, 1e-15, 1e-18};
  for (std::int32_t prefix = 0; prefix < 17; ++prefix) {
    EXPECT_EQ(CoefficientOfPrefix(prefix), expected[prefix]) << prefix;
  }
  EXPECT_EQ(CoefficientOfPrefix(17), 1.0);
  EXPECT_EQ(CoefficientOfPrefix(-1), 1.0);
}

}  // namespace
}  // namespace KelIFC
