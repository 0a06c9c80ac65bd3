#include "kelifc/building/profile/recognise.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

#include "kelifc/building/profile/contour_distance.h"
#include "kelifc/building/profile/find_corners.h"
#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/measure_shape.h"
#include "kelifc/building/profile/parameter_table.h"

namespace KelIFC::building {

namespace {

using enum ProfileParameter;
using Corners = std::vector<RoundedCorner>;

constexpr std::size_t kMostCorners = 12;

// A fillet of a right angle moves by 0.41 mm if its radius grows by 1 mm.
constexpr double kRadiusTolerance = kShapeTolerance / (std::numbers::sqrt2 - 1.0);

struct Box {
  Point2 low{1e300, 1e300};
  Point2 high{-1e300, -1e300};

  void Add(const Point2& p) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
  }
  Point2 Centre() const { return {(low.x + high.x) / 2.0, (low.y + high.y) / 2.0}; }
};

Box BoxOf(const Corners& corners) {
  Box box;
  for (const RoundedCorner& corner : corners) box.Add(corner.point);
  return box;
}

// One of the four positions that mirroring at the axes makes.
struct Mirror {
  bool x = false;
  bool y = false;

  Point2 operator()(const Point2& p) const { return {x ? -p.x : p.x, y ? -p.y : p.y}; }

  // Keeps loops counter-clockwise.
  template <typename Loop>
  void Restore(Loop& loop) const {
    if (x != y) std::reverse(loop.begin(), loop.end());
  }
};

bool AreSame(const CornerRing& found, const Corners& wanted) {
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    const bool isSame = std::abs(found.X(i) - wanted[i].point.x) <= kShapeTolerance &&
                        std::abs(found.Y(i) - wanted[i].point.y) <= kShapeTolerance &&
                        std::abs(found.R(i) - wanted[i].radius) <= kRadiusTolerance &&
                        (found.R(i) > 0.0) == (wanted[i].radius > 0.0);
    if (!isSame) return false;
  }
  return true;
}

// Compares corners, in each order, with the shapes that have as many. The centre of the bounding
// box of the corners and of the loop is the origin.
std::optional<RecognisedShape> Match(const Corners& corners, const Outline& loop) {
  for (const ShapeMeasure& measure : ShapeMeasures()) {
    if (measure.corners != corners.size()) continue;
    for (std::size_t start = 0; start < corners.size(); ++start) {
      const CornerRing ring(corners, start);
      const ProfileParameters parameters = measure.measure(ring);
      const Corners wanted = ShapeCorners(measure.shape, parameters);
      if (wanted.empty() || !AreSame(ring, wanted)) continue;
      const auto contour = RoundedContour(wanted);
      if (contour && AreNear(loop, *contour, kShapeTolerance)) {
        return RecognisedShape{measure.shape, parameters};
      }
    }
  }
  return std::nullopt;
}

std::optional<RecognisedShape> RecogniseMirrored(const Corners& corners, const Outline& loop,
                                                 const Mirror& mirror) {
  const Point2 centre = BoxOf(corners).Centre();
  const auto move = [&](const Point2& p) { return mirror({p.x - centre.x, p.y - centre.y}); };
  Corners moved = corners;
  for (RoundedCorner& corner : moved) corner.point = move(corner.point);
  Outline points = loop;
  for (Point2& point : points) point = move(point);
  mirror.Restore(moved);
  mirror.Restore(points);
  return Match(moved, points);
}

std::optional<RecognisedShape> RecogniseCorners(const Corners& corners, const Outline& loop) {
  if (corners.size() < 4) return std::nullopt;
  for (const Mirror mirror : {Mirror{false, false}, {true, false}, {false, true}, {true, true}}) {
    if (auto found = RecogniseMirrored(corners, loop, mirror)) return found;
  }
  return std::nullopt;
}

// The corners by the arcs of a loop and, if these are irregular, by its longest edges.
std::optional<RecognisedShape> RecogniseSolid(const Outline& loop, Point2* centre = nullptr) {
  for (const std::size_t edges : {0U, 4U, 6U, 8U, 12U}) {
    const Corners corners =
        edges == 0 ? FindCorners(loop, kMostCorners) : FindCornersBetween(loop, edges);
    auto found = RecogniseCorners(corners, loop);
    if (!found) continue;
    if (centre != nullptr) *centre = BoxOf(corners).Centre();
    return found;
  }
  return std::nullopt;
}

bool IsRectangle(const std::optional<RecognisedShape>& found) {
  return found && (found->shape == ProfileShape::kRectangle ||
                   found->shape == ProfileShape::kRoundedRectangle);
}

std::optional<RecognisedShape> RecogniseHollowRectangle(const Outline& outer, const Outline& hole) {
  Point2 a;
  Point2 b;
  const auto outside = RecogniseSolid(outer, &a);
  if (!IsRectangle(outside)) return std::nullopt;
  const auto inside = RecogniseSolid(hole, &b);
  if (!IsRectangle(inside)) return std::nullopt;
  const auto half = [&](ProfileParameter parameter) {
    return (ValueOf(outside->parameters, parameter) - ValueOf(inside->parameters, parameter)) / 2.0;
  };
  // The four walls are equal within the tolerance of two faces.
  const double t = (half(kH) + half(kB)) / 2.0;
  if (!(std::abs(half(kH) - half(kB)) <= kShapeTolerance) || !(t > 0.0)) return std::nullopt;
  if (!(std::max(std::abs(a.x - b.x), std::abs(a.y - b.y)) <= kShapeTolerance)) {
    return std::nullopt;
  }
  RecognisedShape found = *outside;
  found.shape = ProfileShape::kHollowRectangle;
  ValueOf(found.parameters, kT) = t;
  ValueOf(found.parameters, kR1) = ValueOf(inside->parameters, kR);
  return found;
}

std::optional<RecognisedShape> RecogniseCircle(const FoundCircle& outer,
                                               const std::vector<Outline>& loops) {
  RecognisedShape found{ProfileShape::kCircle, {}};
  ValueOf(found.parameters, kD) = 2.0 * outer.radius;
  if (loops.empty()) return found;
  const auto inner = FindCircle(loops.front());
  if (!inner || !(Distance(inner->centre, outer.centre) <= kShapeTolerance) ||
      !(inner->radius < outer.radius)) {
    return std::nullopt;
  }
  found.shape = ProfileShape::kHollowCircle;
  ValueOf(found.parameters, kT) = outer.radius - inner->radius;
  return found;
}

FlatRegion Turned(const FlatRegion& region, double angle) {
  const double cosine = std::cos(angle);
  const double sine = std::sin(angle);
  FlatRegion turned = region;
  const auto turn = [&](Outline& loop) {
    for (Point2& p : loop) p = {cosine * p.x + sine * p.y, cosine * p.y - sine * p.x};
  };
  turn(turned.outer);
  for (Outline& hole : turned.holes) turn(hole);
  return turned;
}

// The angle against the nearest axis.
double RotationOf(const Vector2& direction) {
  constexpr double kSmallest = 0.01 * std::numbers::pi / 180.0;
  const double rotation =
      std::remainder(std::atan2(direction.y, direction.x), std::numbers::pi / 2.0);
  return std::abs(rotation) < kSmallest ? 0.0 : rotation;
}

}  // namespace

std::optional<RecognisedShape> Recognise(const FlatRegion& region) {
  if (region.holes.size() > 1 || region.outer.size() < 4) return std::nullopt;
  std::vector<Outline> holes = region.holes;
  for (Outline& hole : holes) std::reverse(hole.begin(), hole.end());
  if (const auto circle = FindCircle(region.outer)) return RecogniseCircle(*circle, holes);
  if (holes.empty()) return RecogniseSolid(region.outer);
  return RecogniseHollowRectangle(region.outer, holes.front());
}

std::optional<RecognisedShape> RecogniseTurned(const FlatRegion& region) {
  constexpr double kQuarter = std::numbers::pi / 2.0;
  std::vector<double> angles = {0.0, RotationOfLongestEdge(region.outer)};
  if (region.outer.size() == 4) {  // a trapezium has parallel edges, which need not be long
    angles.push_back(RotationOf(region.outer[1] - region.outer[0]));
    angles.push_back(RotationOf(region.outer[2] - region.outer[1]));
  }
  std::optional<RecognisedShape> found;
  for (const double angle : angles) {
    found = Recognise(angle == 0.0 ? region : Turned(region, angle));
    if (!found) found = Recognise(Turned(region, angle + kQuarter));
    if (found) break;
  }
  if (found) {
    double& h = ValueOf(found->parameters, kH);
    double& b = ValueOf(found->parameters, kB);
    if (found->shape == ProfileShape::kL && h < b) std::swap(h, b);
  }
  return found;
}

double RotationOfLongestEdge(const Outline& outline) {
  double longest = -1.0;
  Vector2 direction(1.0, 0.0);
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Vector2 edge = outline[(i + 1) % outline.size()] - outline[i];
    if (Length(edge) > longest * (1.0 + 1e-9)) {
      longest = Length(edge);
      direction = edge;
    }
  }
  return RotationOf(direction);
}

bool RecogniseShape(BuildingProfile& profile) {
  profile.shape = ProfileShape::kArbitrary;
  profile.parameters = {};
  const auto found = Recognise({profile.outline, profile.holes});
  if (!found) return false;
  profile.shape = found->shape;
  profile.parameters = found->parameters;
  return true;
}

}  // namespace KelIFC::building
