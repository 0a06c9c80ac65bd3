#include "kelifc/building/solid/key_writer.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/building/solid/solid_samples.h"

namespace KelIFC::building {
namespace {

std::string KeyOf(const SolidPointer& solid) {
  std::string key;
  KeyWriter writer(key);
  writer.Add(solid);
  return writer.IsUsable() ? key : std::string();
}

SolidPointer CutBlock(double height, double level) {
  return Minus(Block({0.0, 0.0, 0.0}, {1.0, 1.0, height}),
               SolidOf(Below({0.0, 0.0, level}, {0.0, 0.0, -1.0})));
}

TEST(KeyWriter, GivesEqualSolidsOneKey) {
  EXPECT_FALSE(KeyOf(CutBlock(3.0, 2.0)).empty());
  EXPECT_EQ(KeyOf(CutBlock(3.0, 2.0)), KeyOf(CutBlock(3.0, 2.0)));
  const Primitive form;
  EXPECT_EQ(KeyOf(SolidOf(form, 1)), KeyOf(SolidOf(form, 2)));
}

TEST(KeyWriter, GivesDifferentSolidsDifferentKeys) {
  Primitive cone;
  cone.form = Primitive::Form::kCone;
  Shells shells;
  shells.shells.push_back(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}));
  Shells surface = shells;
  surface.isSurface = true;
  const SolidPointer block = Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  SweptDisk disk;
  disk.directrix.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}};
  SweptDisk ring = disk;
  ring.innerRadius = 0.1;
  const std::vector<SolidPointer> solids = {
      nullptr,
      block,
      CutBlock(3.0, 2.0),
      CutBlock(3.0, 2.5),
      CutBlock(2.0, 2.0),
      Operation(BooleanOperation::kUnion, block, block),
      Operation(BooleanOperation::kIntersection, block, block),
      SolidOf(Primitive()),
      SolidOf(cone),
      SolidOf(shells),
      SolidOf(surface),
      SolidOf(disk),
      SolidOf(ring),
      SolidOf(Revolution()),
      SolidOf(SweptCurve()),
      SolidOf(MappedItems{Transform3(), {block}}),
      SolidOf(MappedItems{Transform3(), {block, block}}),
      SolidOf(MappedItems{At(1.0, 0.0, 0.0), {block}}),
  };
  std::set<std::string> keys;
  for (const SolidPointer& solid : solids) keys.insert(KeyOf(solid));
  EXPECT_EQ(keys.size(), solids.size());
  EXPECT_EQ(keys.count(""), 0U);
}

TEST(KeyWriter, HasNoKeyOfWhatCannotBeRead) {
  const SolidPointer unreadable = SolidOf(Unreadable{LossReason::kDangling, 3});
  EXPECT_EQ(KeyOf(unreadable), "");
  EXPECT_EQ(KeyOf(Minus(Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}), unreadable)), "");
}

TEST(KeyWriter, HasNoKeyOfWhatIsNestedDeeply) {
  SolidPointer item = Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  for (int level = 0; level < 1000; ++level) item = SolidOf(MappedItems{Transform3(), {item}});
  EXPECT_EQ(KeyOf(item), "");
}

TEST(KeyWriter, StopsWhereMapsDoubleAtEachLevel) {
  SolidPointer item = Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  for (int level = 0; level < 60; ++level) item = SolidOf(MappedItems{Transform3(), {item, item}});
  EXPECT_EQ(KeyOf(item), "");
}

}  // namespace
}  // namespace KelIFC::building
