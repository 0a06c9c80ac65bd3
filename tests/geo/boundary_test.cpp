#include "kelifc/geo/boundary.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

/// A triangle, and a face that has an inner loop only.
BRep Sample() {
  BRep boundary;
  for (int i = 0; i < 3; ++i) {
    boundary.vertices.push_back({Point3(i, 2 * i, 3 * i), Vector3(0, 0, 1)});
  }
  BRepFace triangle;
  for (int i = 0; i < 3; ++i) triangle.outerLoop.push_back(i);
  BRepFace inner;
  inner.innerLoops.push_back(triangle.outerLoop);
  boundary.faces.push_back(triangle);
  boundary.faces.push_back(inner);
  return boundary;
}

class BoundaryObject : public HostTest {
 protected:
  void SetUp() override {
    boundary = CreateOwn<CoGeoBRep>();
    OwnOf<CoGeoBRep>(boundary).boundary = Sample();
  }
  void TearDown() override {
    boundary.Reset();
    HostTest::TearDown();
  }

  ComPtr<IGeoFace> FaceAt(LONG index) {
    ComPtr<IGeoFace> face;
    EXPECT_EQ(GetObject(*boundary, &IGeoBRep::get_Faces)->Item(index, face.Put()), S_OK);
    return face;
  }

  ComPtr<IGeoBRep> boundary;
};

TEST_F(BoundaryObject, GivesThePositionsOfItsVertices) {
  const auto points = GetObject(*boundary, &IGeoBRep::get_Points);
  ASSERT_EQ(CountOf(*points), 3);
  ComPtr<IGeoPoint> last;
  ASSERT_EQ(points->Item(3, last.Put()), S_OK);
  EXPECT_EQ(Get(*last, &IGeoPoint::get_Z), 6);
  EXPECT_EQ(GetObject(*boundary, &IGeoBRep::get_Points).Get(), points.Get());
}

TEST_F(BoundaryObject, NumbersThePointsOfAFaceFromOne) {
  const auto face = FaceAt(1);
  const auto numbers = GetObject(*face, &IGeoFace::get_Numbers);
  ASSERT_EQ(CountOf(*numbers), 3);
  for (LONG i = 1; i <= 3; ++i) {
    LONG number = 0;
    EXPECT_EQ(numbers->Item(i, &number), S_OK);
    EXPECT_EQ(number, i);
  }
  EXPECT_EQ(GetObject(*face, &IGeoFace::get_Numbers).Get(), numbers.Get());
}

TEST_F(BoundaryObject, ShowsOuterLoopsAlone) {
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 2);
  EXPECT_EQ(CountOf(*GetObject(*FaceAt(2), &IGeoFace::get_Numbers)), 0);
}

TEST_F(BoundaryObject, IsEmptyWhenAHostMakesIt) {
  const auto empty = CreateOwn<CoGeoBRep>();
  EXPECT_EQ(CountOf(*GetObject(*empty, &IGeoBRep::get_Faces)), 0);
  EXPECT_EQ(CountOf(*GetObject(*empty, &IGeoBRep::get_Points)), 0);
  const auto face = CreateOwn<CoGeoFace>();
  EXPECT_EQ(CountOf(*GetObject(*face, &IGeoFace::get_Numbers)), 0);
}

TEST_F(BoundaryObject, TakesNoNullPointers) {
  EXPECT_EQ(boundary->get_Faces(nullptr), E_POINTER);
  EXPECT_EQ(boundary->get_Points(nullptr), E_POINTER);
  EXPECT_EQ(FaceAt(1)->get_Numbers(nullptr), E_POINTER);
}

TEST_F(BoundaryObject, KeepsTheFacesThatItMadeBeforeAFailure) {
  {
    const FailingClass failing(CLSID_CoGeoFace, 1, E_OUTOFMEMORY);
    IGeoFaces* none = nullptr;
    EXPECT_EQ(boundary->get_Faces(&none), E_OUTOFMEMORY);
  }
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 1);
}

TEST_F(BoundaryObject, OfABeamIsACopyThatTheBeamKeeps) {
  const auto beam = CreateOwn<CoGeoBeam>();
  OwnOf<CoGeoBeam>(beam).boundary = Sample();
  const auto shown = GetObject(*beam, &IGeoBeam::get_BRep);
  EXPECT_EQ(CountOf(*GetObject(*shown, &IGeoBRep::get_Points)), 3);
  EXPECT_EQ(GetObject(*beam, &IGeoBeam::get_BRep).Get(), shown.Get());
  EXPECT_EQ(beam->get_BRep(nullptr), E_POINTER);
}

}  // namespace
}  // namespace KelIFC
