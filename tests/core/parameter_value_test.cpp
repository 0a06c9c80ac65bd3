#include "kelifc/core/parameter_value.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(ParameterValue, ReadsAndWritesItsEntireRecord) {
  IfcParameterValue value;
  EXPECT_EQ(RestOf(value, "IFCPARAMETERVALUE(0.5),7"), "7");
  EXPECT_EQ(value, 0.5);
  EXPECT_EQ(Text(value), "IFCPARAMETERVALUE(0.5)");
  EXPECT_STREQ(value.GetStepName(), "IfcParameterValue");
}

TEST(ParameterValue, IsUnsetWithoutAParenthesis) {
  IfcParameterValue value(2.0);
  EXPECT_EQ(RestOf(value, "IFCPARAMETERVALUE"), "(null)");
  EXPECT_FALSE(value.GetExists());
}

TEST(ParameterValue, IsReachedFromEachOfItsBases) {
  const std::unique_ptr<IfcUnknown> instance(new IfcParameterValue(0.25));
  EXPECT_EQ(Text(*instance), "IFCPARAMETERVALUE(0.25)");
  const auto* select = dynamic_cast<const IfcTrimmingSelect*>(instance.get());
  ASSERT_NE(select, nullptr);
  EXPECT_EQ(dynamic_cast<const IfcUnknown*>(select), instance.get());
  EXPECT_EQ(*dynamic_cast<const REAL*>(instance.get()), 0.25);
}

}  // namespace
}  // namespace KelIFC
