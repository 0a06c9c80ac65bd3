#include "kelifc/building/profile/contour_distance.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

#include "kelifc/building/profile/plane_arc.h"

namespace KelIFC::building {

namespace {

struct Edge {
  Point2 start;
  Point2 end;
  std::optional<PlaneArc> arc;
};

bool IsNear(const Point2& point, const Edge& edge, double tolerance) {
  if (Distance(point, edge.start) <= tolerance) return true;
  if (!edge.arc) {
    const Vector2 line = edge.end - edge.start;
    const double along = std::clamp(Dot(point - edge.start, line) / Dot(line, line), 0.0, 1.0);
    return Distance(edge.start + line * along, point) <= tolerance;
  }
  const PlaneArc& arc = *edge.arc;
  const Vector2 spoke = point - arc.centre;
  if (std::abs(Length(spoke) - arc.radius) > tolerance) return false;
  const double side = arc.sweep < 0.0 ? -1.0 : 1.0;
  double angle = side * (std::atan2(spoke.y, spoke.x) - arc.start);
  const double turn = 2.0 * std::numbers::pi;
  angle -= turn * std::floor(angle / turn);
  return angle <= std::abs(arc.sweep);
}

}  // namespace

bool AreNear(const Outline& loop, const Contour& contour, double tolerance) {
  std::vector<Edge> edges;
  ForEachEdge(contour, [&edges](const Point2& start, const Point2& end, const auto& arc) {
    edges.push_back({start, end, arc});
  });
  return std::all_of(loop.begin(), loop.end(), [&](const Point2& point) {
    return std::any_of(edges.begin(), edges.end(),
                       [&](const Edge& edge) { return IsNear(point, edge, tolerance); });
  });
}

}  // namespace KelIFC::building
