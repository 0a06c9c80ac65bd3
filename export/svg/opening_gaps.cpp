#include <algorithm>
#include <cmath>
#include <utility>

#include "export/svg/cut_with_gaps.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kThrough = 0.9;  // an opening as deep as this share of a surface goes through it
constexpr double kOvershoot = 0.01;  // how much deeper than the surface it is then, in metres

Vector3 NormalOf(const std::vector<Point3>& outline) {
  Vector3 sum;
  for (std::size_t i = 2; i < outline.size(); ++i) {
    sum = sum + Cross(outline[i - 1] - outline[0], outline[i] - outline[0]);
  }
  Normalise(sum);
  return sum;
}

bool Crosses(const std::vector<Point3>& outline, double reach, double z) {
  double low = 1e300;
  double high = -1e300;
  for (const Point3& p : outline) {
    low = std::min(low, p.z);
    high = std::max(high, p.z);
  }
  return low - reach < z && z < high + reach;
}

// The body of an opening: its outline moved by half of the depth to both sides.
Mesh PrismOf(const std::vector<Point3>& outline, const Vector3& normal, double depth) {
  Mesh mesh;
  const auto count = static_cast<Mesh::Index>(outline.size());
  for (const double side : {-0.5, 0.5}) {
    for (const Point3& p : outline) mesh.points.push_back(p + normal * (side * depth));
  }
  std::vector<Mesh::Index> bottom(count);
  std::vector<Mesh::Index> top(count);
  for (Mesh::Index i = 0; i < count; ++i) {
    bottom[i] = count - 1 - i;
    top[i] = count + i;
    const Mesh::Index next = (i + 1) % count;
    mesh.AddFace({i, next, count + next, count + i});
  }
  mesh.AddFace(bottom);
  mesh.AddFace(top);
  return mesh;
}

double DepthOf(const BuildingElement& element, const BuildingOpening& opening) {
  if (!element.surface) return opening.depth + kOvershoot;
  const double thickness = element.surface->thickness;
  const bool isThrough = opening.depth >= kThrough * thickness;
  return isThrough ? std::max(opening.depth, thickness) + kOvershoot : opening.depth;
}

}  // namespace

std::vector<Gap> GapsAt(const BuildingElement& element, double z) {
  std::vector<Gap> gaps;
  for (std::size_t i = 0; i < element.openings.size(); ++i) {
    const BuildingOpening& opening = element.openings[i];
    const double depth = DepthOf(element, opening);
    if (opening.outline.size() < 3 || !(depth > 0.0) || !std::isfinite(depth)) continue;
    const Vector3 normal = NormalOf(opening.outline);
    if (!Crosses(opening.outline, 0.5 * depth * std::abs(normal.z), z)) continue;
    for (CutRegion& region : CutAtHeight(PrismOf(opening.outline, normal, depth), z)) {
      Outline hull = ConvexHull(std::move(region.outer));
      if (!hull.empty()) gaps.push_back({i, std::move(hull)});
    }
  }
  return gaps;
}

}  // namespace KelIFC::exporting::svg
