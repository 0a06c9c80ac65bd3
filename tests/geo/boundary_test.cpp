#include "kelifc/geo/boundary.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>

#include "kelifc/geo/collections.h"

#include "tests/geo/elements.h"
#include "tests/geo/failing_factory.h"

namespace KelIFC {
namespace {

BRepFace Face(std::initializer_list<int> outer) {
  BRepFace face;
  for (const int index : outer) face.outerLoop.push_back(index);
  return face;
}

/// Two triangles with four vertices. The second one has a hole, which hosts do not see.
BRep Triangles() {
  BRep boundary;
  for (int i = 0; i < 4; ++i) boundary.vertices.push_back({Point3(i, 10 + i, 20 + i), {}});
  boundary.faces.push_back(Face({0, 1, 2}));
  boundary.faces.push_back(Face({3, 1, 0}));
  boundary.faces[1].innerLoops.push_back(Face({2, 2, 2}).outerLoop);
  return boundary;
}

class Boundary : public HostTest {
 protected:
  static ComPtr<IGeoBRep> Make(const BRep& boundary) {
    auto object = CreateOwn<CoGeoBRep>();
    ObjectOf<CoGeoBRep>(object).boundary = boundary;
    return object;
  }

  static ComPtr<IGeoFace> FaceAt(IGeoBRep& boundary, LONG index) {
    ComPtr<IGeoFace> face;
    EXPECT_EQ(GetObject(boundary, &IGeoBRep::get_Faces)->Item(index, face.Put()), S_OK);
    return face;
  }

  static std::vector<LONG> NumbersOf(IGeoFace& face) {
    const auto numbers = GetObject(face, &IGeoFace::get_Numbers);
    std::vector<LONG> read(static_cast<std::size_t>(CountOf(*numbers)));
    for (std::size_t i = 0; i < read.size(); ++i) {
      EXPECT_EQ(numbers->Item(static_cast<LONG>(i) + 1, &read[i]), S_OK);
    }
    return read;
  }
};

TEST_F(Boundary, IsEmptyIfAHostCreatedIt) {
  const auto boundary = CreateOwn<CoGeoBRep>();
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 0);
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Points)), 0);
  EXPECT_TRUE(NumbersOf(*CreateOwn<CoGeoFace>()).empty());
}

TEST_F(Boundary, ShowsThePositionsOfItsVertices) {
  const auto boundary = Make(Triangles());
  const auto points = GetObject(*boundary, &IGeoBRep::get_Points);
  ASSERT_EQ(CountOf(*points), 4);
  ComPtr<IGeoPoint> last;
  ASSERT_EQ(points->Item(4, last.Put()), S_OK);
  double x = 0;
  double y = 0;
  double z = 0;
  last->GetXYZ(&x, &y, &z);
  EXPECT_EQ(x, 3.0);
  EXPECT_EQ(y, 13.0);
  EXPECT_EQ(z, 23.0);
}

TEST_F(Boundary, ShowsTheNumbersOfAFaceFromOne) {
  const auto boundary = Make(Triangles());
  ASSERT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 2);
  EXPECT_EQ(NumbersOf(*FaceAt(*boundary, 1)), (std::vector<LONG>{1, 2, 3}));
}

TEST_F(Boundary, ShowsTheOuterLoopOfAFaceOnly) {
  const auto boundary = Make(Triangles());
  EXPECT_EQ(NumbersOf(*FaceAt(*boundary, 2)), (std::vector<LONG>{4, 2, 1}));
}

TEST_F(Boundary, ShowsAFaceWithoutALoop) {
  BRep open;
  open.faces.push_back({});
  const auto boundary = Make(open);
  EXPECT_TRUE(NumbersOf(*FaceAt(*boundary, 1)).empty());
}

TEST_F(Boundary, CreatesEachChildOnce) {
  const auto boundary = Make(Triangles());
  EXPECT_EQ(GetObject(*boundary, &IGeoBRep::get_Faces).Get(),
            GetObject(*boundary, &IGeoBRep::get_Faces).Get());
  EXPECT_EQ(GetObject(*boundary, &IGeoBRep::get_Points).Get(),
            GetObject(*boundary, &IGeoBRep::get_Points).Get());
  const auto face = FaceAt(*boundary, 1);
  EXPECT_EQ(GetObject(*face, &IGeoFace::get_Numbers).Get(),
            GetObject(*face, &IGeoFace::get_Numbers).Get());
}

TEST_F(Boundary, RefusesANullOutput) {
  const auto boundary = Make(Triangles());
  EXPECT_EQ(boundary->get_Faces(nullptr), E_POINTER);
  EXPECT_EQ(boundary->get_Points(nullptr), E_POINTER);
  EXPECT_EQ(FaceAt(*boundary, 1)->get_Numbers(nullptr), E_POINTER);
}

TEST_F(Boundary, KeepsTheFacesThatWereCreatedBeforeAFailure) {
  const auto boundary = Make(Triangles());
  {
    const FailingClass failing(CLSID_CoGeoFace, 1, DISP_E_OVERFLOW);
    auto* out = reinterpret_cast<IGeoFaces*>(this);
    EXPECT_EQ(boundary->get_Faces(&out), DISP_E_OVERFLOW);
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 1);
  EXPECT_EQ(NumbersOf(*FaceAt(*boundary, 1)), (std::vector<LONG>{1, 2, 3}));
}

TEST_F(Boundary, KeepsThePointsThatWereCreatedBeforeAFailure) {
  const auto boundary = Make(Triangles());
  {
    const FailingClass failing(CLSID_CoGeoPoint, 3, DISP_E_OVERFLOW);
    ComPtr<IGeoPoints> out;
    EXPECT_EQ(boundary->get_Points(out.Put()), DISP_E_OVERFLOW);
  }
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Points)), 3);
}

TEST_F(Boundary, ReturnsTheFailureIfFacesHaveNoClassObject) {
  const auto boundary = Make(Triangles());
  {
    const MissingClass missing(CLSID_CoGeoFace);
    ComPtr<IGeoFaces> out;
    EXPECT_EQ(boundary->get_Faces(out.Put()), E_NOINTERFACE);
  }
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 0);
}

TEST_F(Boundary, TriesAgainToCreateACollection) {
  const auto boundary = Make(Triangles());
  const auto face = FaceAt(*boundary, 1);
  {
    const FailingClass points(CLSID_CoGeoPoints, 0, DISP_E_OVERFLOW);
    const FailingClass numbers(CLSID_CoGeoNumbers, 0, DISP_E_OVERFLOW);
    ComPtr<IGeoPoints> noPoints;
    ComPtr<IGeoNumbers> noNumbers;
    EXPECT_EQ(boundary->get_Points(noPoints.Put()), DISP_E_OVERFLOW);
    EXPECT_EQ(face->get_Numbers(noNumbers.Put()), DISP_E_OVERFLOW);
  }
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Points)), 4);
  EXPECT_EQ(NumbersOf(*face).size(), 3U);
}

TEST_F(Boundary, LeavesFacesUsableAfterItsEnd) {
  auto boundary = Make(Triangles());
  const auto face = FaceAt(*boundary, 2);
  boundary.Reset();
  EXPECT_EQ(NumbersOf(*face), (std::vector<LONG>{4, 2, 1}));
}

TEST_F(Boundary, ReservesTheOtherOperations) {
  const auto boundary = CreateOwn<CoGeoBRep>();
  EXPECT_EQ(boundary->Reserved3(nullptr), E_NOTIMPL);
  EXPECT_EQ(boundary->Reserved5(), E_NOTIMPL);
  EXPECT_EQ(boundary->Reserved7(nullptr, nullptr, nullptr), E_NOTIMPL);
  EXPECT_EQ(CreateOwn<CoGeoFace>()->Reserved2(nullptr), E_NOTIMPL);
}

class Beam : public HostTest {};

TEST_F(Beam, ShowsACopyOfItsBoundary) {
  auto beam = CreateOwn<CoGeoBeam>();
  ObjectOf<CoGeoBeam>(beam).boundary.shape = std::make_shared<const BRep>(Triangles());
  const auto boundary = GetObject(*beam, &IGeoBeam::get_BRep);
  EXPECT_EQ(GetObject(*beam, &IGeoBeam::get_BRep).Get(), boundary.Get());
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 2);
  beam.Reset();
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Points)), 4);
}

TEST_F(Beam, ShowsItsBoundaryInTheWorld) {
  const auto beam = CreateOwn<CoGeoBeam>();
  const Isometry3 moved(Point3(100, 0, 0), Point3(101, 0, 0), Point3(100, 1, 0));
  ObjectOf<CoGeoBeam>(beam).boundary = {std::make_shared<const BRep>(Triangles()), {moved}};
  const auto boundary = GetObject(*beam, &IGeoBeam::get_BRep);
  const auto points = GetObject(*boundary, &IGeoBRep::get_Points);
  ComPtr<IGeoPoint> point;
  double x = 0;
  ASSERT_EQ(points->Item(4, point.Put()), S_OK);
  EXPECT_EQ(point->get_X(&x), S_OK);
  EXPECT_EQ(x, 103);
}

TEST_F(Beam, HasAnEmptyBoundaryAtFirst) {
  const auto boundary = GetObject(*CreateOwn<CoGeoBeam>(), &IGeoBeam::get_BRep);
  EXPECT_EQ(CountOf(*GetObject(*boundary, &IGeoBRep::get_Faces)), 0);
}

TEST_F(Beam, TriesAgainToCreateItsBoundary) {
  const auto beam = CreateOwn<CoGeoBeam>();
  EXPECT_EQ(beam->get_BRep(nullptr), E_POINTER);
  {
    const FailingClass failing(CLSID_CoGeoBRep, 0, DISP_E_OVERFLOW);
    ComPtr<IGeoBRep> out;
    EXPECT_EQ(beam->get_BRep(out.Put()), DISP_E_OVERFLOW);
  }
  EXPECT_TRUE(GetObject(*beam, &IGeoBeam::get_BRep));
}

TEST_F(Beam, ReservesTheOtherOperations) {
  const auto beam = CreateOwn<CoGeoBeam>();
  EXPECT_EQ(beam->Reserved16(nullptr), E_NOTIMPL);
  EXPECT_EQ(beam->Reserved17(0.0), E_NOTIMPL);
  EXPECT_EQ(beam->Reserved41(0), E_NOTIMPL);
}

TEST_F(Boundary, IsNotShownByAColumn) {
  const auto column = CreateOwn<CoGeoColumn>();
  EXPECT_FALSE(column.As<IGeoBRep>());
  EXPECT_EQ(column->Reserved16(nullptr), E_NOTIMPL);
  EXPECT_EQ(column->Reserved17(0.0), E_NOTIMPL);
  EXPECT_EQ(column->Reserved29(nullptr), E_NOTIMPL);
}

}  // namespace
}  // namespace KelIFC
