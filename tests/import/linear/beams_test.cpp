#include <gtest/gtest.h>

#include "kelifc/geo/beam.h"
#include "kelifc/geo/column.h"

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Ref = ModelBuilder::Ref;

/// A loop as the numbers of its points, as hosts read it.
using Numbers = std::vector<LONG>;

template <class Release>
class Beams : public ConversionTest<Release> {
 protected:
  Ref Loop(std::initializer_list<ModelBuilder::Numbers> points) {
    std::string list;
    for (const auto& point : points) list += (list.empty() ? "" : ",") + this->model.Point(point);
    return this->model.Add("IFCPOLYLOOP((" + list + "))");
  }

  /// A unit square at height `z`, counter-clockwise seen from above.
  Ref Square(double z) { return Loop({{0, 0, z}, {1, 0, z}, {1, 1, z}, {0, 1, z}}); }

  Ref Outer(const Ref& loop, const std::string& orientation = ".T.") {
    return this->model.Add("IFCFACEOUTERBOUND(" + loop + "," + orientation + ")");
  }
  Ref Inner(const Ref& loop) { return this->model.Add("IFCFACEBOUND(" + loop + ",.T.)"); }
  Ref Face(ModelBuilder::Refs bounds) {
    return this->model.Add("IFCFACE(" + ModelBuilder::List(bounds) + ")");
  }
  Ref Faceted(ModelBuilder::Refs faces) {
    const auto shell = this->model.Add("IFCCLOSEDSHELL(" + ModelBuilder::List(faces) + ")");
    return this->model.Add("IFCFACETEDBREP(" + shell + ")");
  }

  /// Returns the boundary of the only beam; the fixture keeps the beam alive.
  BRep Boundary() {
    beams = this->GetBeams();
    EXPECT_THAT(beams, SizeIs(1));
    return static_cast<CoGeoBeam&>(*beams.at(0)).boundary.ToWorld();
  }

  static std::vector<Coordinates> PositionsOf(const BRep& boundary) {
    std::vector<Coordinates> positions;
    for (const auto& v : boundary.vertices) {
      positions.push_back({v.position.x, v.position.y, v.position.z});
    }
    return positions;
  }

  static Coordinates NormalOf(const BRep& boundary, std::size_t vertex) {
    const Vector3& n = boundary.vertices[vertex].normal;
    return {n.x, n.y, n.z};
  }

  static std::vector<int> Loop(const Mvector<int>& loop) { return {loop.begin(), loop.end()}; }

  void TearDown() override {
    beams.clear();
    ConversionTest<Release>::TearDown();
  }

  std::vector<ComPtr<IGeoBeam>> beams;
};
TYPED_TEST_SUITE(Beams, ConvertedReleases);

TYPED_TEST(Beams, AreReadLikeColumns) {
  auto& m = this->model;
  const auto position = m.Placement({0, 0, 0}, m.Direction({1, 0, 0}), m.Direction({0, 1, 0}));
  const auto solid = m.Extrusion(m.Rectangle(0.2, 0.4), position, m.Direction({0, 0, 1}), 6);
  m.Beam(m.Local(m.Placement({0, 0, 3})), m.Body({solid}));
  this->Convert();
  const auto beam = Only(this->GetBeams());
  EXPECT_THAT(PointsOf(*beam), ElementsAre(IsAt(0, 0, 3), IsAt(6, 0, 3)));
  EXPECT_EQ(this->SectionOf(*beam), L"IFC_R_20x40");
}

TYPED_TEST(Beams, IncludeMembersIfTheReleaseHasThem) {
  auto& m = this->model;
  const auto body = m.Body({m.Extrusion(m.Circle(0.1), 1)});
  m.Beam("$", body, "beam 1");
  m.Product("IFCMEMBER", "$", body, "member");
  m.Beam("$", body, "beam 2");
  m.Product("IFCRAILING", "$", body, "railing");
  this->Convert();
  const auto names = this->NamesOf(this->GetBeams());
  if (std::is_same_v<TypeParam, Release2x>) {
    EXPECT_THAT(names, ElementsAre(L"beam 1", L"beam 2"));
  } else {
    EXPECT_THAT(names, ElementsAre(L"beam 1", L"member", L"beam 2"));
  }
}

TYPED_TEST(Beams, OfAFacetedSolidHaveABoundaryInTheWorldAndAnAxisAtItsOrigin) {
  auto& m = this->model;
  const auto solid = this->Faceted({this->Face({this->Outer(this->Square(0))})});
  m.Beam(m.Local(m.Turned({10, 0, 0}, {0, 1, 0})), m.Body({solid}));
  this->Convert();
  const BRep boundary = this->Boundary();
  EXPECT_THAT(this->PositionsOf(boundary),
              ElementsAre(IsAt(10, 0, 0), IsAt(10, 1, 0), IsAt(9, 1, 0), IsAt(9, 0, 0)));
  EXPECT_THAT(this->NormalOf(boundary, 0), IsAt(0, 0, 1));
  EXPECT_THAT(PointsOf(*this->beams[0]), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 0)));
  EXPECT_EQ(this->SectionOf(*this->beams[0]), L"");
}

TYPED_TEST(Beams, OfAFacetedSolidWithoutAShellHaveNeitherAxisNorBoundary) {
  auto& m = this->model;
  const auto openShell =
      m.Add("IFCOPENSHELL((" + this->Face({this->Outer(this->Square(0))}) + "))");
  const auto placement = m.Local(m.Turned({10, 0, 0}, {0, 1, 0}));
  for (const auto& outer : {Ref("$"), Ref("#99999"), openShell}) {
    const auto solid = m.Add("IFCFACETEDBREP(" + outer + ")");
    m.Beam(placement, m.Body({solid}));
    m.Column(placement, m.Body({solid}));
    m.Beam(placement, m.Body({m.Mapped(m.Placement({0, 0, 0}), m.Representation({solid}))}));
  }
  this->Convert();
  this->beams = this->GetBeams();
  EXPECT_THAT(this->beams, SizeIs(6));
  for (const auto& beam : this->beams) {
    EXPECT_THAT(PointsOf(*beam), IsEmpty());
    EXPECT_EQ(static_cast<CoGeoBeam&>(*beam).boundary.shape, nullptr);
  }
  const auto columns = this->GetColumns();
  EXPECT_THAT(columns, SizeIs(3));
  for (const auto& column : columns) {
    EXPECT_THAT(PointsOf(*column), IsEmpty());
  }
}

TYPED_TEST(Beams, ShowTheirBoundaryToTheHost) {
  auto& m = this->model;
  const auto top = this->Face({this->Outer(this->Square(1))});
  const auto bottom = this->Face({this->Outer(this->Square(0), ".F.")});
  m.Beam("$", m.Body({this->Faceted({top, bottom})}));
  this->Convert();
  const auto beam = Only(this->GetBeams());
  const auto boundary = GetObject(*beam, &IGeoBeam::get_BRep);
  const auto points = GetObject(*boundary, &IGeoBRep::get_Points);
  EXPECT_EQ(CountOf(*points), 8);
  std::vector<Numbers> faces;
  for (const auto& face : ItemsOf<IGeoFace>(*GetObject(*boundary, &IGeoBRep::get_Faces))) {
    const auto numbers = GetObject(*face, &IGeoFace::get_Numbers);
    Numbers& read = faces.emplace_back();
    for (LONG i = 1; i <= CountOf(*numbers); ++i) {
      LONG number = 0;
      EXPECT_EQ(numbers->Item(i, &number), S_OK);
      read.push_back(number);
    }
  }
  EXPECT_THAT(faces, ElementsAre(Numbers{1, 2, 3, 4}, Numbers{8, 7, 6, 5}));
}

TYPED_TEST(Beams, HaveTwentyFourVerticesForACube) {
  auto& m = this->model;
  const auto cube = this->Faceted(
      {this->Face({this->Outer(this->Square(0), ".F.")}),
       this->Face({this->Outer(this->Square(1))}),
       this->Face({this->Outer(this->Loop({{0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1}}))}),
       this->Face({this->Outer(this->Loop({{1, 0, 0}, {1, 1, 0}, {1, 1, 1}, {1, 0, 1}}))}),
       this->Face({this->Outer(this->Loop({{1, 1, 0}, {0, 1, 0}, {0, 1, 1}, {1, 1, 1}}))}),
       this->Face({this->Outer(this->Loop({{0, 1, 0}, {0, 0, 0}, {0, 0, 1}, {0, 1, 1}}))})});
  m.Beam("$", m.Body({cube}));
  this->Convert();
  const BRep boundary = this->Boundary();
  EXPECT_EQ(boundary.vertices.size(), 24u);
  EXPECT_EQ(boundary.faces.size(), 6u);
  EXPECT_THAT(this->NormalOf(boundary, 0), IsAt(0, 0, -1));
  EXPECT_THAT(this->NormalOf(boundary, 8), IsAt(0, -1, 0));
  EXPECT_THAT(this->NormalOf(boundary, 23), IsAt(-1, 0, 0));
}

TYPED_TEST(Beams, KeepInnerLoopsApart) {
  auto& m = this->model;
  const auto hole = this->Loop({{.2, .2, 0}, {.2, .8, 0}, {.8, .8, 0}, {.8, .2, 0}});
  const auto face = this->Face({this->Inner(hole), this->Outer(this->Square(0))});
  m.Beam("$", m.Body({this->Faceted({face})}));
  this->Convert();
  const BRep boundary = this->Boundary();
  ASSERT_EQ(boundary.faces.size(), 1u);
  EXPECT_EQ(boundary.vertices.size(), 8u);
  EXPECT_THAT(this->Loop(boundary.faces[0].outerLoop), ElementsAre(4, 5, 6, 7));
  ASSERT_EQ(boundary.faces[0].innerLoops.size(), 1u);
  EXPECT_THAT(this->Loop(boundary.faces[0].innerLoops[0]), ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(this->NormalOf(boundary, 0), IsAt(0, 0, -1));
}

TYPED_TEST(Beams, DoNotTurnAnInnerBoundIntoAnOuterOne) {
  auto& m = this->model;
  m.Beam("$", m.Body({this->Faceted({this->Face({this->Inner(this->Square(0))})})}));
  this->Convert();
  const BRep boundary = this->Boundary();
  ASSERT_EQ(boundary.faces.size(), 1u);
  EXPECT_TRUE(boundary.faces[0].outerLoop.empty());
  EXPECT_EQ(boundary.faces[0].innerLoops.size(), 1u);
}

TYPED_TEST(Beams, TakeTheLastOfSeveralOuterBounds) {
  auto& m = this->model;
  const auto face = this->Face({this->Outer(this->Square(0)), this->Outer(this->Square(1))});
  m.Beam("$", m.Body({this->Faceted({face})}));
  this->Convert();
  const BRep boundary = this->Boundary();
  ASSERT_EQ(boundary.faces.size(), 1u);
  EXPECT_THAT(this->Loop(boundary.faces[0].outerLoop), ElementsAre(4, 5, 6, 7));
  EXPECT_TRUE(boundary.faces[0].innerLoops.empty());
}

TYPED_TEST(Beams, TurnReversedBoundsByTheirIndices) {
  auto& m = this->model;
  const auto face = this->Face({this->Outer(this->Square(0), ".F.")});
  m.Beam("$", m.Body({this->Faceted({face})}));
  this->Convert();
  const BRep boundary = this->Boundary();
  ASSERT_EQ(boundary.faces.size(), 1u);
  EXPECT_THAT(this->PositionsOf(boundary),
              ElementsAre(IsAt(0, 0, 0), IsAt(1, 0, 0), IsAt(1, 1, 0), IsAt(0, 1, 0)));
  EXPECT_THAT(this->Loop(boundary.faces[0].outerLoop), ElementsAre(3, 2, 1, 0));
  EXPECT_THAT(this->NormalOf(boundary, 0), IsAt(0, 0, -1));
}

TYPED_TEST(Beams, HaveTwoFacesForAFaceOnASurface) {
  auto& m = this->model;
  const auto plane = m.Add("IFCPLANE(" + m.Placement({0, 0, 0}) + ")");
  const auto face =
      m.Add("IFCFACESURFACE((" + this->Outer(this->Square(0)) + ")," + plane + ",.F.)");
  m.Beam("$", m.Body({this->Faceted({face})}));
  this->Convert();
  const BRep boundary = this->Boundary();
  ASSERT_EQ(boundary.faces.size(), 2u);
  EXPECT_THAT(this->Loop(boundary.faces[1].outerLoop), ElementsAre(4, 5, 6, 7));
  EXPECT_THAT(this->NormalOf(boundary, 0), IsAt(0, 0, 1));
  EXPECT_THAT(this->NormalOf(boundary, 4), IsAt(0, 0, -1));
  const auto positions = this->PositionsOf(boundary);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(positions[7 - i], positions[i]);
}

TYPED_TEST(Beams, HaveNoNormalForALoopOnALine) {
  auto& m = this->model;
  const auto line = this->Loop({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}});
  m.Beam("$", m.Body({this->Faceted({this->Face({this->Outer(line)})})}));
  this->Convert();
  const BRep boundary = this->Boundary();
  ASSERT_EQ(boundary.vertices.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_THAT(this->NormalOf(boundary, i), IsAt(0, 0, 0));
}

TYPED_TEST(Beams, HaveNoFaceForAFaceWithoutLoops) {
  auto& m = this->model;
  const auto good = this->Face({this->Outer(this->Square(0))});
  const auto solid = this->Faceted({this->Face({}), this->Face({this->Outer("$")}), "$", good});
  m.Beam("$", m.Body({solid}));
  this->Convert();
  const BRep boundary = this->Boundary();
  EXPECT_EQ(boundary.faces.size(), 1u);
  EXPECT_EQ(boundary.vertices.size(), 4u);
}

TYPED_TEST(Beams, HaveAnEmptyBoundaryForASolidWithoutShell) {
  auto& m = this->model;
  m.Beam("$", m.Body({m.Add("IFCFACETEDBREP($)")}));
  this->Convert();
  const BRep boundary = this->Boundary();
  EXPECT_TRUE(boundary.vertices.empty());
  EXPECT_TRUE(boundary.faces.empty());
}

TYPED_TEST(Beams, HaveLoopsInThePlaneAtHeightZero) {
  auto& m = this->model;
  const auto loop = this->Loop({{0, 0}, {1, 0}, {1, 1}});
  m.Beam("$", m.Body({this->Faceted({this->Face({this->Outer(loop)})})}));
  this->Convert();
  EXPECT_THAT(this->PositionsOf(this->Boundary()),
              ElementsAre(IsAt(0, 0, 0), IsAt(1, 0, 0), IsAt(1, 1, 0)));
}

TYPED_TEST(Beams, RepeatThePreviousPointForOneThatCannotBeRead) {
  auto& m = this->model;
  const auto loop = m.Add("IFCPOLYLOOP((" + m.Point({1, 2, 3}) + "," + m.Point({9, 9}) + ",#999))");
  m.Beam("$", m.Body({this->Faceted({this->Face({this->Outer(loop)})})}));
  this->Convert();
  EXPECT_THAT(this->PositionsOf(this->Boundary()),
              ElementsAre(IsAt(1, 2, 3), IsAt(1, 2, 3), IsAt(1, 2, 3)));
}

TYPED_TEST(Beams, ThatAreMappedApplyTheOriginOfTheMapFirst) {
  auto& m = this->model;
  const auto solid = this->Faceted({this->Face({this->Outer(this->Square(0))})});
  const auto origin = m.Turned({0, 0, 5}, {0, 1, 0});
  const auto item = m.Mapped(origin, m.Representation({solid}));
  m.Beam(m.Local(m.Placement({10, 0, 0})), m.Body({item}));
  this->Convert();
  EXPECT_THAT(this->PositionsOf(this->Boundary()),
              ElementsAre(IsAt(10, 0, 5), IsAt(10, 1, 5), IsAt(9, 1, 5), IsAt(9, 0, 5)));
}

TYPED_TEST(Beams, ThatAreMappedApplyTheOriginOfTheMapBeforeThePosition) {
  auto& m = this->model;
  const auto position = m.Turned({10, 0, 0}, {0, 1, 0});
  const auto solid = m.Extrusion(m.Circle(0.1), position, m.Direction({0, 0, 1}), 1);
  const auto item = m.Mapped(m.Placement({1, 0, 0}), m.Representation({solid}));
  m.Beam("$", m.Body({item}));
  this->Convert();
  const auto beam = Only(this->GetBeams());
  EXPECT_THAT(PointsOf(*beam), ElementsAre(IsAt(10, 1, 0), IsAt(10, 1, 1)));
}

TYPED_TEST(Beams, ThatAreMappedIgnoreTheTarget) {
  auto& m = this->model;
  const auto target =
      m.Add("IFCCARTESIANTRANSFORMATIONOPERATOR3D($,$," + m.Point({7, 7, 7}) + ",2.,$)");
  const auto solid = m.Extrusion(m.Circle(0.1), 1);
  m.Beam("$", m.Body({m.Mapped(m.Placement({0, 0, 0}), m.Representation({solid}), target)}));
  this->Convert();
  const auto beam = Only(this->GetBeams());
  EXPECT_THAT(PointsOf(*beam), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 1)));
  EXPECT_EQ(this->SectionOf(*beam), L"IFC_C_20");
}

TYPED_TEST(Beams, OfSeveralMapsAreNamedByMapAndItem) {
  auto& m = this->model;
  const auto item = m.Extrusion(m.Circle(0.1), 1);
  const auto four = m.Representation({item, item, item, item});
  const auto one = m.Representation({item});
  const auto origin = m.Placement({0, 0, 0});
  const auto body = m.Body({m.Mapped(origin, one), m.Mapped(origin, four)});
  m.AddAs(712, ModelBuilder::ProductText("IFCBEAM", "$", body, ""));
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetBeams()),
              ElementsAre(L"IFC#712(1)", L"IFC#712(2/1)(2)(1)", L"IFC#712(2/2)(2)(2)",
                          L"IFC#712(2/3)(2)(3)", L"IFC#712(2/4)(2)(4)"));
}

TYPED_TEST(Beams, OfOneMapAreNamedByTheItemAlone) {
  auto& m = this->model;
  const auto item = m.Extrusion(m.Circle(0.1), 1);
  const auto body = m.Body({m.Mapped("$", m.Representation({item, item}))});
  m.AddAs(712, ModelBuilder::ProductText("IFCBEAM", "$", body, ""));
  this->Convert();
  EXPECT_THAT(this->NamesOf(this->GetBeams()), ElementsAre(L"IFC#712(1)", L"IFC#712(2)"));
}

TYPED_TEST(Beams, WithoutASourceOfTheirMapUseTheRepresentationItself) {
  auto& m = this->model;
  const auto empty = m.Add("IFCMAPPEDITEM($,$)");
  const auto clipping = m.Clipping(m.Extrusion(m.Circle(0.1), 1));
  m.Beam("$", m.Body({empty, clipping}));
  this->Convert();
  EXPECT_EQ(this->GetBeams().size(), 1u);
}

TYPED_TEST(Beams, AreLeftOutIfTheirMapMapsItself) {
  auto& m = this->model;
  m.AddAs(801, "IFCREPRESENTATIONMAP(" + m.Placement({0, 0, 0}) + ",#802)");
  m.AddAs(802, "IFCSHAPEREPRESENTATION($,'Body','MappedRepresentation',(#803))");
  m.AddAs(803, "IFCMAPPEDITEM(#801,$)");
  m.Beam("$", m.Shape({"#802"}));
  this->Convert();
  EXPECT_THAT(this->GetBeams(), IsEmpty());
}

TYPED_TEST(Beams, AreLeftOutIfTheirMapHasNoRepresentation) {
  auto& m = this->model;
  m.Beam("$", m.Body({m.Mapped("$", "$"), m.Clipping(m.Extrusion(m.Circle(0.1), 1))}));
  this->Convert();
  EXPECT_THAT(this->GetBeams(), IsEmpty());
}

TYPED_TEST(Beams, KeepTheSecondItemWhenTheFirstFails) {
  auto& m = this->model;
  const auto bad = m.Extrusion("$", 1);
  m.Beam("$", m.Body({bad, m.Extrusion(m.Circle(0.1), 2)}));
  this->Convert();
  const auto beam = Only(this->GetBeams());
  EXPECT_THAT(PointsOf(*beam), ElementsAre(IsAt(0, 0, 0), IsAt(0, 0, 2)));
}

}  // namespace
}  // namespace KelIFC
