#include "kelifc/building/build/body_maker.h"

#include <gtest/gtest.h>

#include "tests/building/build/made_facts.h"

namespace KelIFC::building {
namespace {

void ExpectBox(const BuildingBox& box, const Point3& min, const Point3& max) {
  EXPECT_NEAR(box.min.x, min.x, 1e-9);
  EXPECT_NEAR(box.min.y, min.y, 1e-9);
  EXPECT_NEAR(box.min.z, min.z, 1e-9);
  EXPECT_NEAR(box.max.x, max.x, 1e-9);
  EXPECT_NEAR(box.max.y, max.y, 1e-9);
  EXPECT_NEAR(box.max.z, max.z, 1e-9);
}

/// Makes the bodies of several placements of the same items.
std::vector<BodyResult> MakeAll(const std::vector<SolidPointer>& items,
                                const std::vector<Transform3>& placements,
                                const ReadingOptions& options = {}) {
  BodyMaker bodies(options);
  for (std::size_t i = 0; i < placements.size(); ++i) bodies.Announce(items);
  std::vector<BodyResult> results;
  for (const Transform3& placement : placements) results.push_back(bodies.Make(items, placement));
  return results;
}

TEST(BodyMaker, MovesASharedRepresentationToEachPlace) {
  Transform3 turned = MovedTo(0.0, 0.0, 7.0);
  turned.x = {0.0, 1.0, 0.0};
  turned.y = {-1.0, 0.0, 0.0};
  const auto bodies =
      MakeAll({Mapped({Block(2.0, 4.0, 1.0)}, MovedTo(10.0, 0.0, 0.0))}, {Transform3(), turned});
  for (const BodyResult& result : bodies) {
    ASSERT_FALSE(result.fault);
    EXPECT_NEAR(result.body.volume, 8.0, 1e-9);
    EXPECT_TRUE(result.body.isClosed);
    EXPECT_EQ(result.body.mappedDepth, 1u);
  }
  ExpectBox(bodies[0].body.box, {9.0, -2.0, 0.0}, {11.0, 2.0, 1.0});
  ExpectBox(bodies[1].body.box, {-2.0, 9.0, 7.0}, {2.0, 11.0, 8.0});
}

TEST(BodyMaker, ScalesAndMirrorsWhatIsShared) {
  Transform3 scaled;
  scaled.x = {2.0, 0.0, 0.0};
  Transform3 mirrored;
  mirrored.x = {-1.0, 0.0, 0.0};
  const auto bodies = MakeAll({Mapped({Block(2.0, 4.0, 1.0)})},
                              {Transform3(), scaled, mirrored, MovedTo(1.0, 0.0, 0.0)});
  EXPECT_NEAR(bodies[1].body.volume, 16.0, 1e-9);
  ExpectBox(bodies[1].body.box, {-2.0, -2.0, 0.0}, {2.0, 2.0, 1.0});
  EXPECT_NEAR(bodies[2].body.volume, 8.0, 1e-9);
  EXPECT_TRUE(bodies[2].body.isClosed);
  ExpectBox(bodies[3].body.box, {0.0, -2.0, 0.0}, {2.0, 2.0, 1.0});
}

TEST(BodyMaker, ReportsTheFaultOfASharedRepresentationForEachUse) {
  const auto bodies = MakeAll({Mapped({Unknown(LossReason::kUnsupportedItem, 77)})},
                              {Transform3(), Transform3(), Transform3()});
  for (const BodyResult& result : bodies) {
    ASSERT_TRUE(result.fault);
    EXPECT_EQ(result.fault->reason, LossReason::kUnsupportedItem);
    EXPECT_EQ(result.fault->at, 77u);
  }
}

TEST(BodyMaker, MakesNothingAfterTheLastPoint) {
  ReadingOptions options;
  options.maxPoints = 20;  // two blocks of 8 points, and not a third one
  const auto bodies = MakeAll({Block(1.0, 1.0, 1.0, 55)},
                              {Transform3(), Transform3(), Transform3(), Transform3()}, options);
  EXPECT_FALSE(bodies[0].fault);
  EXPECT_FALSE(bodies[1].fault);
  for (int i = 2; i < 4; ++i) {
    ASSERT_TRUE(bodies[i].fault);
    EXPECT_EQ(bodies[i].fault->reason, LossReason::kLimit);
    EXPECT_EQ(bodies[i].fault->at, 55u);
  }
}

TEST(BodyMaker, CountsABodyThatIsTooLargeOnce) {
  ReadingOptions options;
  options.maxBodyPoints = 12;  // one block, and not two
  options.maxPoints = 24;
  BodyMaker bodies(options);
  const SolidPointer block = Block(1.0, 1.0, 1.0);
  const std::vector<SolidPointer> two = {block, Mapped({block}, MovedTo(9.0, 0.0, 0.0))};
  for (int i = 0; i < 10; ++i) {
    const BodyResult result = bodies.Make(two, Transform3());
    ASSERT_TRUE(result.fault);
    EXPECT_EQ(result.fault->reason, LossReason::kLimit);
  }
  EXPECT_FALSE(bodies.Make({block}, Transform3()).fault);
}

}  // namespace
}  // namespace KelIFC::building
