#include "kelifc/core/length_measure.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

std::string NamedText(const IfcValue& value) {
  std::ostringstream out;
  value.WriteWithName(out);
  return out.str();
}

TEST(LengthMeasure, HasNoTypeNameInAnAttribute) {
  IfcLengthMeasure measure;
  EXPECT_EQ(Text(measure), "$");
  EXPECT_EQ(RestOf(measure, " 2.5 ,5"), "5");
  EXPECT_EQ(measure, 2.5);
  EXPECT_EQ(Text(measure), "2.5");
}

TEST(LengthMeasure, HasItsTypeNameInASelect) {
  IfcLengthMeasure measure;
  EXPECT_STREQ(measure.ParseBody("(2.5),5"), "5");
  EXPECT_EQ(NamedText(measure), "IFCLENGTHMEASURE(2.5)");
  EXPECT_EQ(measure.ParseBody("no number"), nullptr);
  EXPECT_FALSE(measure.GetExists());
  EXPECT_EQ(NamedText(measure), "IFCLENGTHMEASURE($)");
}

TEST(LengthMeasure, AcceptsNumbers) {
  IfcLengthMeasure measure(1.5);
  measure = 2.5;
  EXPECT_EQ(Text(measure), "2.5");
  measure = REAL();
  EXPECT_EQ(Text(measure), "$");
  EXPECT_EQ(Text(IfcLengthMeasure(REAL(3.0))), "3.");
  EXPECT_EQ(Text(IfcLengthMeasure(REAL())), "$");
}

TEST(LengthMeasure, NamesItself) {
  EXPECT_STREQ(IfcLengthMeasure().GetStepName(), "IfcLengthMeasure");
  EXPECT_STREQ(IfcLengthMeasure::GetItemName(), "IfcLengthMeasure");
  EXPECT_STREQ(IfcValue::GetItemName(), "IfcValue");
}

}  // namespace
}  // namespace KelIFC
