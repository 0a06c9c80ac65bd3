#include "export/svg/dimensions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KelIFC::exporting::svg {
namespace {

using ::testing::HasSubstr;

// A sheet at 1:50.
const Sheet kSheet({{0.0, 0.0, 0.0}, {8.0, 6.0, 0.0}});

TEST(Dimensions, StateTheSizesInMillimetresOfTheBuilding) {
  std::string markup;
  AppendDimensions(markup, kSheet, {100.0, 50.0, 260.0, 170.0}, {100.0, 50.0, 260.0, 170.0});
  EXPECT_THAT(markup, HasSubstr("<text class=\"centred\" x=\"180\" y=\"175.2\">8000</text>"));
  EXPECT_THAT(markup, HasSubstr("<text class=\"centred\" x=\"93.2\" y=\"110\" "
                                "transform=\"rotate(-90 93.2 110)\">6000</text>"));
}

TEST(Dimensions, AreLeftOutIfTheySayLittle) {
  std::string markup;
  AppendDimensions(markup, kSheet, {100.0, 50.0, 110.0, 170.0}, {100.0, 50.0, 260.0, 170.0});
  AppendDimensions(markup, kSheet, kNoBox, {100.0, 50.0, 260.0, 170.0});
  AppendDimensions(markup, kSheet, kNoBox, kNoBox);
  EXPECT_EQ(markup, "");
}

}  // namespace
}  // namespace KelIFC::exporting::svg
