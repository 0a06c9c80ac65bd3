#include "kelifc/import/model/unit_facts.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(LengthScaleOfFacts, IsOneWithoutALength) {
  EXPECT_EQ(LengthScale({}), 1.0);
  EXPECT_EQ(LengthScale({{false, 0.001, 2.0}}), 1.0);
}

TEST(LengthScaleOfFacts, IsThatOfTheFirstLength) {
  EXPECT_EQ(LengthScale({{false, 5.0, 0.0}, {true, 0.001, 0.0}, {true, 1.0, 0.0}}), 0.001);
}

TEST(LengthScaleOfFacts, MultipliesByTheFactor) {
  EXPECT_DOUBLE_EQ(LengthScale({{true, 0.001, 25.4}}), 0.0254);
  EXPECT_EQ(LengthScale({{true, 0.001, 0.0}}), 0.001);
}

}  // namespace
}  // namespace KelIFC
