#include "kelifc/building/element_enums.h"

#include <gtest/gtest.h>

#include "kelifc/building/profile.h"

namespace KelIFC {
namespace {

TEST(TextOfEnumerators, IsWhatTheCommandPrints) {
  EXPECT_EQ(TextOf(ElementKind::kSurface), "surface");
  EXPECT_EQ(TextOf(BodySource::kSweptDisk), "swept-disk");
  EXPECT_EQ(TextOf(BodySource::kMulti), "multi");
  EXPECT_EQ(TextOf(LossReason::kNoRepresentation), "no-representation");
  EXPECT_EQ(TextOf(LossReason::kLimit), "limit");
  EXPECT_EQ(TextOf(CurveForm::kPolyline), "polyline");
  EXPECT_EQ(TextOf(ProfileShape::kArbitrary), "arbitrary");
  EXPECT_EQ(TextOf(ProfileShape::kC), "C");
  EXPECT_EQ(TextOf(OpeningKind::kWindow), "window");
  EXPECT_EQ(TextOf(ProfileParameter::kOffset), "offset");
}

TEST(TextOfEnumerators, IsEmptyForAnotherNumber) {
  EXPECT_EQ(TextOf(static_cast<ElementKind>(3)), "");
  EXPECT_EQ(TextOf(static_cast<LossReason>(200)), "");
}

}  // namespace
}  // namespace KelIFC
