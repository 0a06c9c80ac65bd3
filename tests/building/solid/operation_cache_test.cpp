#include "kelifc/building/solid/operation_cache.h"

#include <gtest/gtest.h>

#include "tests/building/solid/solid_samples.h"

namespace KelIFC::building {
namespace {

SolidPointer CutBlock(double level, std::size_t id) {
  auto cut = std::make_shared<Solid>(
      *Minus(Block({0.0, 0.0, 0.0}, {2.0, 3.0, 4.0}), Block({-1.0, -1.0, level}, {5.0, 1.0, 5.0})));
  cut->id = id;
  return cut;
}

void ExpectEqual(const EvaluatedBody& a, const EvaluatedBody& b) {
  ASSERT_EQ(a.mesh.points.size(), b.mesh.points.size());
  for (std::size_t i = 0; i < a.mesh.points.size(); ++i) {
    EXPECT_EQ(a.mesh.points[i].x, b.mesh.points[i].x);
    EXPECT_EQ(a.mesh.points[i].y, b.mesh.points[i].y);
    EXPECT_EQ(a.mesh.points[i].z, b.mesh.points[i].z);
  }
  EXPECT_EQ(a.mesh.FaceCount(), b.mesh.FaceCount());
  EXPECT_EQ(a.volume, b.volume);
  EXPECT_EQ(a.isClosed, b.isClosed);
  EXPECT_EQ(a.isExact, b.isExact);
  EXPECT_EQ(a.hasBoolean, b.hasBoolean);
  EXPECT_EQ(a.solidCount, b.solidCount);
}

TEST(OperationCache, ChangesNoBody) {
  OperationCache operations;
  for (const double level : {2.0, 3.0, 2.0, 3.0}) {
    const Transform3 place = At(level, 7.3, 0.1);
    const BodyResult cached = EvaluateBody({CutBlock(level, 5)}, place, {}, &operations);
    ExpectEqual(cached.body, EvaluateBody({CutBlock(level, 5)}, place).body);
    EXPECT_NEAR(cached.body.volume, 24.0 - 2.0 * (4.0 - level), 1e-9);
  }
}

TEST(OperationCache, LeavesLimitsAsTheyAre) {
  OperationCache operations;
  const SolidPointer cut = CutBlock(2.0, 5);
  ASSERT_FALSE(EvaluateBody({cut}, {}, {}, &operations).fault);
  for (std::size_t most = 1; most < 200; ++most) {
    BodyLimits limits;
    limits.maxPoints = most;
    const BodyResult cached = EvaluateBody({cut, cut}, {}, limits, &operations);
    const BodyResult made = EvaluateBody({cut, cut}, {}, limits);
    ASSERT_EQ(cached.fault.has_value(), made.fault.has_value()) << most;
    if (made.fault) {
      EXPECT_EQ(cached.fault->reason, made.fault->reason);
      EXPECT_EQ(cached.fault->at, made.fault->at);
    }
  }
}

TEST(OperationCache, LeavesFaultsAsTheyAre) {
  OperationCache operations;
  for (const std::size_t id : {5, 6}) {
    const SolidPointer empty = SolidOf(
        BooleanResult{BooleanOperation::kDifference, Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}),
                      Block({-1.0, -1.0, -1.0}, {2.0, 2.0, 2.0})},
        id);
    const BodyResult result = EvaluateBody({empty}, {}, {}, &operations);
    ASSERT_TRUE(result.fault);
    EXPECT_EQ(result.fault->reason, LossReason::kDegenerate);
    EXPECT_EQ(result.fault->at, id);
  }
}

}  // namespace
}  // namespace KelIFC::building
