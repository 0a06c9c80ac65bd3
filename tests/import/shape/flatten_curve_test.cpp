#include "kelifc/import/shape/flatten_curve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/import/model/all_releases.h"

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Ref = ModelBuilder::Ref;

constexpr double kPi = std::numbers::pi;

template <class Release>
class FlattenedCurve : public ConversionTest<Release> {
 protected:
  using IfcCurve = typename Release::IfcCurve;

  /// Returns the points of the curve with this reference.
  std::vector<Coordinates> Flatten(const Ref& curve, bool dropClosing = true, double scale = 1.0) {
    this->server = this->Load(this->model.Data());
    auto& server = static_cast<CoIFCServer&>(*this->server);
    const auto id = static_cast<std::size_t>(std::stoul(curve.substr(1)));
    const auto* item = dynamic_cast<const IfcCurve*>(server.Model().GetItem(id));
    Mvector<Point3> points;
    points.push_back(Point3(99, 99, 99));
    FlattenCurve<Release>(points, item, kFlattenTolerance, scale, dropClosing);
    std::vector<Coordinates> read;
    for (const Point3& p : points) read.push_back({p.x, p.y, p.z});
    return read;
  }

  Ref Circle(ModelBuilder::Numbers centre, double radius, const Ref& x = "$") {
    auto& m = this->model;
    return m.Add("IFCCIRCLE(" + m.Placement2D(centre, x) + "," + ModelBuilder::Real(radius) + ")");
  }

  Ref Line(ModelBuilder::Numbers from, ModelBuilder::Numbers direction, double length) {
    auto& m = this->model;
    const auto vector =
        m.Add("IFCVECTOR(" + m.Direction(direction) + "," + ModelBuilder::Real(length) + ")");
    return m.Add("IFCLINE(" + m.Point(from) + "," + vector + ")");
  }

  Ref ByPoints(const Ref& basis, ModelBuilder::Numbers from, ModelBuilder::Numbers to,
               const std::string& sense) {
    auto& m = this->model;
    return m.Add("IFCTRIMMEDCURVE(" + basis + ",(" + m.Point(from) + "),(" + m.Point(to) + ")," +
                 sense + ",.CARTESIAN.)");
  }

  Ref ByParameters(const Ref& basis, const std::string& from, const std::string& to,
                   const std::string& sense, const std::string& master = ".PARAMETER.") {
    return this->model.Add("IFCTRIMMEDCURVE(" + basis + ",(IFCPARAMETERVALUE(" + from +
                           ")),(IFCPARAMETERVALUE(" + to + "))," + sense + "," + master + ")");
  }

  Ref Segment(const Ref& curve, const std::string& sense = ".T.") {
    return this->model.Add("IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.," + sense + "," + curve + ")");
  }

  Ref Composite(ModelBuilder::Refs segments) {
    return this->model.Add("IFCCOMPOSITECURVE(" + ModelBuilder::List(segments) + ",.F.)");
  }
};
TYPED_TEST_SUITE(FlattenedCurve, ConvertedReleases);

TYPED_TEST(FlattenedCurve, OfAPolylineDropsTheLastPointWithoutComparing) {
  const auto line = this->model.PolyLine({{0, 0}, {4, 0}, {4, 3}});
  EXPECT_THAT(this->Flatten(line), ElementsAre(IsAt(0, 0, 0), IsAt(4, 0, 0)));
}

TYPED_TEST(FlattenedCurve, OfAPolylineKeepsAllPointsIfAsked) {
  const auto line = this->model.PolyLine({{0, 0}, {4, 0}, {4, 3}});
  EXPECT_THAT(this->Flatten(line, false), SizeIs(3));
}

TYPED_TEST(FlattenedCurve, OfAPolylineInSpaceKeepsZ) {
  const auto line = this->model.PolyLine({{1, 2, 3}, {4, 5, 6}, {7, 8}, {0, 0, 0}});
  EXPECT_THAT(this->Flatten(line), ElementsAre(IsAt(1, 2, 3), IsAt(4, 5, 6), IsAt(0, 0, 0)));
}

TYPED_TEST(FlattenedCurve, IsInMetres) {
  const auto line = this->model.PolyLine({{1000, 2000}, {0, 0}});
  EXPECT_THAT(this->Flatten(line, true, 0.001), ElementsAre(IsAt(1, 2, 0)));
}

TYPED_TEST(FlattenedCurve, OfNullIsEmpty) {
  EXPECT_THAT(this->Flatten("#77"), IsEmpty());
  const auto empty = this->model.PolyLine({});
  EXPECT_THAT(this->Flatten(empty), IsEmpty());
  const auto circle = this->Circle({0, 0}, 1);
  EXPECT_THAT(this->Flatten(circle), IsEmpty());
}

TYPED_TEST(FlattenedCurve, OfALineBetweenPointsFollowsTheSense) {
  const auto line = this->Line({0, 0}, {1, 0}, 1);
  const auto forward = this->ByPoints(line, {1, 2}, {3, 4}, ".T.");
  EXPECT_THAT(this->Flatten(forward), ElementsAre(IsAt(1, 2, 0), IsAt(3, 4, 0)));
  const auto backward = this->ByPoints(line, {1, 2}, {3, 4}, ".F.");
  EXPECT_THAT(this->Flatten(backward), ElementsAre(IsAt(3, 4, 0), IsAt(1, 2, 0)));
}

TYPED_TEST(FlattenedCurve, OfAnArcHasAPointForEachStep) {
  const auto circle = this->Circle({10, 0}, 2);
  const auto quarter = this->ByPoints(circle, {12, 0}, {10, 2}, ".T.");
  const auto points = this->Flatten(quarter);
  // A quarter of the circle is 16 chords: the start, 15 points between them, and the end.
  ASSERT_EQ(points.size(), 17u);
  EXPECT_THAT(points.front(), IsAt(12, 0, 0));
  EXPECT_THAT(points[8], IsAt(10 + std::sqrt(2), std::sqrt(2), 0));
  EXPECT_THAT(points.back(), IsAt(10, 2, 0));
}

TYPED_TEST(FlattenedCurve, OfAnArcFollowsTheSense) {
  const auto circle = this->Circle({0, 0}, 1);
  const auto arc = this->ByPoints(circle, {1, 0}, {0, 1}, ".F.");
  const auto points = this->Flatten(arc);
  ASSERT_EQ(points.size(), 49u);
  EXPECT_THAT(points.front(), IsAt(1, 0, 0));
  EXPECT_THAT(points[16], IsAt(0, -1, 0));
  EXPECT_THAT(points.back(), IsAt(0, 1, 0));
}

TYPED_TEST(FlattenedCurve, OfAShortArcHasAPointAfterItsEnd) {
  const auto circle = this->Circle({0, 0}, 1);
  const double angle = kPi / 64;
  const auto arc = this->ByPoints(circle, {1, 0}, {std::cos(angle), std::sin(angle)}, ".T.");
  EXPECT_THAT(this->Flatten(arc),
              ElementsAre(IsAt(1, 0, 0), IsAt(std::cos(2 * angle), std::sin(2 * angle), 0),
                          IsAt(std::cos(angle), std::sin(angle), 0)));
}

TYPED_TEST(FlattenedCurve, OfAnArcHasTheRadiusOfItsStart) {
  const auto circle = this->Circle({0, 0}, 100);
  const auto points = this->Flatten(this->ByPoints(circle, {2, 0}, {0, 5}, ".T."));
  ASSERT_EQ(points.size(), 17u);
  EXPECT_THAT(points[8], IsAt(std::sqrt(2), std::sqrt(2), 0));
  EXPECT_THAT(points.back(), IsAt(0, 5, 0));
}

TYPED_TEST(FlattenedCurve, OfAnArcWithoutAPositionHasItsCentreAtTheOrigin) {
  const auto circle = this->model.Add("IFCCIRCLE($,1.)");
  const auto points = this->Flatten(this->ByPoints(circle, {1, 0}, {0, 1}, ".T."));
  ASSERT_EQ(points.size(), 17u);
  EXPECT_THAT(points[8], IsAt(std::sqrt(0.5), std::sqrt(0.5), 0));
}

TYPED_TEST(FlattenedCurve, BetweenUnsetPointsStaysAtTheOrigin) {
  const auto circle = this->Circle({1, 0}, 1);
  const auto arc = this->model.Add("IFCTRIMMEDCURVE(" + circle + ",$,$,.T.,.CARTESIAN.)");
  const auto points = this->Flatten(arc);
  EXPECT_THAT(points.front(), IsAt(0, 0, 0));
  EXPECT_THAT(points.back(), IsAt(0, 0, 0));
}

TYPED_TEST(FlattenedCurve, OfAnArcByParametersHasThirtyTwoPointsWithoutTheLast) {
  const auto x = this->model.Direction({0, 3});
  const auto circle = this->Circle({1, 1}, 2, x);
  const auto points = this->Flatten(this->ByParameters(circle, "0.", "90.9", ".T."));
  ASSERT_EQ(points.size(), 32u);
  EXPECT_THAT(points[0], IsAt(1, 3, 0));
  EXPECT_THAT(points[16], IsAt(1 - std::sqrt(2), 1 + std::sqrt(2), 0));
}

TYPED_TEST(FlattenedCurve, OfAnArcByParametersFollowsTheSense) {
  const auto circle = this->Circle({0, 0}, 1, this->model.Direction({1, 0}));
  const auto points = this->Flatten(this->ByParameters(circle, "0.", "90.", ".F."));
  ASSERT_EQ(points.size(), 32u);
  EXPECT_THAT(points[0], IsAt(0, 1, 0));
  EXPECT_THAT(points[16], IsAt(std::sqrt(0.5), std::sqrt(0.5), 0));
}

TYPED_TEST(FlattenedCurve, OfAnArcByParametersStaysAtTheCentreWithoutADirection) {
  const auto circle = this->Circle({5, 6}, 2);
  const auto points = this->Flatten(this->ByParameters(circle, "0.", "90.", ".T."));
  ASSERT_EQ(points.size(), 32u);
  for (const auto& point : points) EXPECT_THAT(point, IsAt(5, 6, 0));
}

TYPED_TEST(FlattenedCurve, OfALineByParametersConvertsThemToRadians) {
  const auto line = this->Line({1, 0}, {0, 2}, 3);
  const auto points = this->Flatten(this->ByParameters(line, "45.9", "180.", ".T."));
  EXPECT_THAT(points, ElementsAre(IsAt(1, 3 * kPi / 4, 0), IsAt(1, 3 * kPi, 0)));
}

TYPED_TEST(FlattenedCurve, ReadsParametersOutOfRangeAsZero) {
  const auto line = this->Line({1, 0}, {0, 1}, 1);
  for (const std::string distant : {"3.E9", "-3.E9", "1.E999"}) {
    EXPECT_THAT(this->Flatten(this->ByParameters(line, distant, "180.", ".T.")),
                ElementsAre(IsAt(1, 0, 0), IsAt(1, kPi, 0)));
  }
}

TYPED_TEST(FlattenedCurve, WithoutAPreferenceIsEmpty) {
  const auto line = this->Line({1, 0}, {0, 1}, 1);
  EXPECT_THAT(this->Flatten(this->ByParameters(line, "0.", "1.", ".T.", ".UNSPECIFIED.")),
              IsEmpty());
  EXPECT_THAT(this->Flatten(this->ByParameters(line, "0.", "1.", ".T.", "$")), IsEmpty());
}

TYPED_TEST(FlattenedCurve, OfOtherBasesIsEmpty) {
  auto& m = this->model;
  const auto ellipse = m.Add("IFCELLIPSE(" + m.Placement2D({0, 0}) + ",2.,1.)");
  EXPECT_THAT(this->Flatten(this->ByParameters(ellipse, "0.", "1.", ".T.")), IsEmpty());
  EXPECT_THAT(this->Flatten(this->ByPoints(ellipse, {2, 0}, {0, 1}, ".T.")), IsEmpty());
  EXPECT_THAT(this->Flatten(this->ByPoints("$", {2, 0}, {0, 1}, ".T.")), IsEmpty());
}

TYPED_TEST(FlattenedCurve, OfACompositeJoinsItsSegments) {
  auto& m = this->model;
  const auto line = this->Line({0, 0}, {1, 0}, 1);
  const auto first = this->Segment(this->ByPoints(line, {0, 0}, {4, 0}, ".T."));
  const auto second = this->Segment(m.PolyLine({{4, 0}, {4, 3}, {0, 3}}));
  const auto third = this->Segment(m.PolyLine({{9, 9}, {0, 0}, {0, 3}}), ".F.");
  const auto last = this->Segment(this->ByPoints(line, {7, 7}, {8, 8}, ".T."));
  EXPECT_THAT(this->Flatten(this->Composite({first, second, third, last})),
              ElementsAre(IsAt(0, 0, 0), IsAt(4, 0, 0),  // the first segment has its start
                          IsAt(4, 0, 0), IsAt(4, 3, 0),  // no last point
                          IsAt(0, 3, 0), IsAt(0, 0, 0),  // reversed, so no first point
                          IsAt(8, 8, 0)));               // no start
}

TYPED_TEST(FlattenedCurve, OfACompositeInSpaceIsEmpty) {
  const auto segment = this->Segment(this->model.PolyLine({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}));
  EXPECT_THAT(this->Flatten(this->Composite({segment})), IsEmpty());
}

TYPED_TEST(FlattenedCurve, OfACompositeSkipsUnknownSegments) {
  auto& m = this->model;
  const auto known = this->Segment(m.PolyLine({{0, 0}, {1, 0}, {1, 1}}));
  const auto circle = this->Segment(this->Circle({0, 0}, 1));
  EXPECT_THAT(this->Flatten(this->Composite({known, circle, "$", this->Segment("$")})),
              ElementsAre(IsAt(0, 0, 0), IsAt(1, 0, 0)));
}

TYPED_TEST(FlattenedCurve, OfPointsThatAreNotFiniteEnds) {
  auto& m = this->model;
  const auto circle = this->Circle({0, 0}, 1);
  const auto distant = m.Add("IFCCARTESIANPOINT((1.E999,1.E999))");
  const auto arc =
      m.Add("IFCTRIMMEDCURVE(" + circle + ",(" + distant + "),(" + distant + "),.T.,.CARTESIAN.)");
  EXPECT_LE(this->Flatten(arc).size(), 68u);
  const auto centre =
      m.Add("IFCCIRCLE(" + m.Add("IFCAXIS2PLACEMENT2D(" + distant + ",$)") + ",1.)");
  const auto around =
      m.Add("IFCTRIMMEDCURVE(" + centre + ",(" + distant + "),(" + distant + "),.F.,.CARTESIAN.)");
  EXPECT_LE(this->Flatten(around).size(), 68u);
}

}  // namespace
}  // namespace KelIFC
