#include "kelifc/geometry/brep.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

BRep OneVertex() {
  BRep boundary;
  boundary.vertices.push_back({Point3(1, 0, 0), Vector3(1, 0, 0)});
  BRepFace face;
  face.outerLoop.push_back(0);
  boundary.faces.push_back(face);
  return boundary;
}

TEST(Boundary, IsEmptyAtFirstAndAfterATransform) {
  BRep boundary;
  boundary <<= Isometry3(Point3(1, 2, 3), Point3(1, 3, 3), Point3(0, 2, 3));
  EXPECT_TRUE(boundary.vertices.empty());
  EXPECT_TRUE(boundary.faces.empty());
}

TEST(Boundary, KeepsItsNormalsInATranslation) {
  BRep boundary = OneVertex();
  boundary <<= Isometry3(Point3(1, 2, 3), Point3(1, 2, 3), Point3(1, 2, 3));
  EXPECT_THAT(boundary.vertices[0].position, IsNear3(2, 2, 3));
  EXPECT_THAT(boundary.vertices[0].normal, IsNear3(1, 0, 0));
}

TEST(Boundary, RotatesPositionsAndNormals) {
  BRep boundary = OneVertex();
  boundary <<= Isometry3(Point3(), Point3(0, 1, 0), Point3(-1, 0, 0));
  EXPECT_THAT(boundary.vertices[0].position, IsNear3(0, 1, 0));
  EXPECT_THAT(boundary.vertices[0].normal, IsNear3(0, 1, 0));
}

TEST(Boundary, IsCopiedDeeply) {
  const BRep source = OneVertex();
  BRep copy(source);
  BRep assigned;
  assigned = source;
  for (BRep* changed : {&copy, &assigned}) {
    changed->vertices[0].position = Point3(9, 9, 9);
    changed->faces[0].outerLoop.push_back(7);
    changed->faces.push_back(BRepFace());
  }
  EXPECT_THAT(source.vertices[0].position, IsNear3(1, 0, 0));
  EXPECT_EQ(source.faces.size(), 1u);
  EXPECT_EQ(source.faces[0].outerLoop.size(), 1u);
}

}  // namespace
}  // namespace KelIFC
