#include "kelifc/building/solid/join_solids.h"

#include <gtest/gtest.h>

#include "kelifc/building/solid/mesh_tools.h"

#include "solid_samples.h"

namespace KelIFC::building {
namespace {

Mesh Together(Mesh first, const Mesh& second) {
  Append(first, second);
  return first;
}

TEST(JoinSolids, RemovesTheFacesBetweenSolidsThatTouch) {
  // The second block is narrower, so no face of one is a face of the other.
  const Mesh both = Together(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}),
                             BoxMesh({1.0, 0.25, 0.25}, {2.0, 0.75, 0.75}));
  const std::optional<Mesh> joined = JoinSolids(both);
  ASSERT_TRUE(joined);
  EXPECT_TRUE(IsClosed(*joined));
  EXPECT_NEAR(VolumeOf(*joined), 1.25, 1e-9);
  EXPECT_EQ(PartsOf(*joined).size(), 1U);
  EXPECT_EQ(joined->FaceCount(), 11U);
}

TEST(JoinSolids, CountsWhatSolidsShareOnce) {
  const Mesh both = Together(BoxMesh({0.0, 0.0, 0.0}, {2.0, 1.0, 1.0}),
                             BoxMesh({1.0, 0.0, 0.0}, {3.0, 1.0, 1.0}));
  const std::optional<Mesh> joined = JoinSolids(both);
  ASSERT_TRUE(joined);
  EXPECT_NEAR(VolumeOf(*joined), 3.0, 1e-9);
}

TEST(JoinSolids, KeepsSolidsThatAreApart) {
  const Mesh both = Together(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}),
                             BoxMesh({5.0, 0.0, 0.0}, {6.0, 1.0, 1.0}));
  const std::optional<Mesh> joined = JoinSolids(both);
  ASSERT_TRUE(joined);
  EXPECT_EQ(PartsOf(*joined).size(), 2U);
}

TEST(JoinSolids, JoinsNothingWithOneSolid) {
  EXPECT_FALSE(JoinSolids(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})));
  EXPECT_FALSE(JoinSolids(Mesh()));
}

TEST(JoinSolids, JoinsNoOpenBoundaryAndNoCavity) {
  const Mesh block = BoxMesh({0.0, 0.0, 0.0}, {4.0, 4.0, 4.0});
  EXPECT_FALSE(JoinSolids(Together(block, Flip(BoxMesh({1.0, 1.0, 1.0}, {2.0, 2.0, 2.0})))));
  Mesh open;
  open.points = BoxMesh({4.0, 0.0, 0.0}, {5.0, 1.0, 1.0}).points;
  open.AddFace(std::vector<Mesh::Index>{0, 1, 5, 4});
  EXPECT_FALSE(JoinSolids(Together(block, open)));
}

}  // namespace
}  // namespace KelIFC::building
