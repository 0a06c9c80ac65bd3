#include "kelifc/building/build/idealise_profile.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "kelifc/building/build/idealise_frame.h"
#include "kelifc/building/build/point_match.h"

namespace KelIFC::building::idealising {
namespace {

constexpr double kRightAngle = std::numbers::pi / 2;

// Moments that differ by less than this part are equal: all axes are principal axes.
constexpr double kSameMoment = 1e-4;

Outline MovedTo(const Outline& loop, const PlaneFrame& from, const PlaneFrame& to) {
  Outline moved;
  moved.reserve(loop.size());
  for (const Point2& p : loop) moved.push_back(Project(to, Lift(from, p)));
  return moved;
}

// The angle of the direction in which the longest edges of an outline run, turned by right angles
// to lie within 45 degrees of x.
double AngleOfEdges(const Outline& outline) {
  std::vector<std::pair<double, double>> edges;  // length, angle
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Vector2 edge = outline[(i + 1) % outline.size()] - outline[i];
    double angle = std::atan2(edge.y, edge.x);
    angle -= kRightAngle * std::round(angle / kRightAngle);
    edges.emplace_back(Length(edge), angle);
  }
  const auto longest =
      std::max_element(edges.begin(), edges.end(),
                       [](const auto& a, const auto& b) { return a.first < b.first - 1e-9; });
  return longest == edges.end() ? 0.0 : longest->second;
}

bool HasFallingMoments(const BuildingProfile& profile) {
  return profile.iy >= profile.iz * (1.0 - kSameMoment);
}

// Tries the four directions of the axes that an angle stands for.
bool FindShape(const FlatRegion& region, const PlaneFrame& plane, double angle,
               const std::string& name, FoundProfile& found) {
  bool isFound = false;
  for (const double turn : {0.0, kRightAngle, -kRightAngle, 2 * kRightAngle}) {
    FoundProfile turned = ProfileInFrame(region, plane, Turned(plane, angle + turn), name);
    if (turned.profile.shape == ProfileShape::kArbitrary) continue;
    const bool isFalling = HasFallingMoments(turned.profile);
    if (isFound && !isFalling) continue;
    found = std::move(turned);
    isFound = true;
    if (isFalling) return true;
  }
  return isFound;
}

double PrincipalAngle(const RegionProperties& properties, const Outline& outline) {
  const double mean = (properties.iy + properties.iz) / 2;
  const double half = (properties.iy - properties.iz) / 2;
  if (std::hypot(half, properties.iyz) < kSameMoment * mean) return AngleOfEdges(outline);
  // The axis y of the larger moment iy. In it, z has the smaller spread: iyz vanishes.
  return 0.5 * std::atan2(-properties.iyz, half);
}

void SortLoops(BuildingProfile& profile) {
  if (AreaOf(profile.outline) < 0.0) {
    std::reverse(profile.outline.begin(), profile.outline.end());
  }
  for (Outline& hole : profile.holes) {
    if (AreaOf(hole) > 0.0) std::reverse(hole.begin(), hole.end());
  }
}

std::vector<Point3> PointsOf(const BuildingProfile& profile, double factor) {
  std::vector<Point3> points;
  for (const Point2& p : profile.outline) points.emplace_back(p.x, factor * p.y, 0.0);
  for (const Outline& hole : profile.holes) {
    for (const Point2& p : hole) points.emplace_back(p.x, factor * p.y, 1.0);
  }
  return points;
}

bool IsSymmetric(const BuildingProfile& profile) {
  const PointMatch match(PointsOf(profile, 1.0));
  const std::vector<Point3> mirrored = PointsOf(profile, -1.0);
  return std::all_of(mirrored.begin(), mirrored.end(),
                     [&](const Point3& p) { return match.Find(p, 1e-7) != PointMatch::kNone; });
}

}  // namespace

FoundProfile ProfileInFrame(const FlatRegion& region, const PlaneFrame& plane, PlaneFrame frame,
                            const std::string& name) {
  const RegionProperties properties = PropertiesOf(region);
  frame.origin = Lift(plane, properties.centroid);
  FlatRegion moved;
  moved.outer = MovedTo(region.outer, plane, frame);
  for (const Outline& hole : region.holes) moved.holes.push_back(MovedTo(hole, plane, frame));
  const RegionProperties turned = PropertiesOf(moved);
  FoundProfile found;
  found.frame = frame;
  BuildingProfile& profile = found.profile;
  profile.name = name;
  profile.outline = std::move(moved.outer);
  profile.holes = std::move(moved.holes);
  profile.area = turned.area;
  profile.iy = turned.iy;
  profile.iz = turned.iz;
  profile.iyz = turned.iyz;
  if (RecogniseShape(profile)) Designate(profile);
  return found;
}

FoundProfile FindProfile(const FlatRegion& region, const PlaneFrame& plane,
                         const std::string& name) {
  FoundProfile found;
  if (FindShape(region, plane, 0.0, name, found)) return found;
  const double edges = AngleOfEdges(region.outer);
  if (std::fabs(edges) > 1e-6 && FindShape(region, plane, edges, name, found)) return found;
  double angle = PrincipalAngle(PropertiesOf(region), region.outer);
  // Of the two directions of the axes the one whose z is nearer to that of the plane.
  angle -= 2 * kRightAngle * std::round(angle / (2 * kRightAngle));
  if (std::fabs(angle) < 1e-4) angle = 0.0;
  return ProfileInFrame(region, plane, Turned(plane, angle), name);
}

void MirrorProfile(BuildingProfile& profile) {
  if (IsSymmetric(profile)) return;
  for (Point2& p : profile.outline) p.y = -p.y;
  for (Outline& hole : profile.holes) {
    for (Point2& p : hole) p.y = -p.y;
  }
  SortLoops(profile);
  profile.iyz = -profile.iyz;
  profile.shape = ProfileShape::kArbitrary;
  profile.parameters = {};
  profile.designation.clear();
  if (RecogniseShape(profile)) Designate(profile);
}

}  // namespace KelIFC::building::idealising
