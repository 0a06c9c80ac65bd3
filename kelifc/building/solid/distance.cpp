#include "kelifc/building/solid/distance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/triangulate.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

double SquareToSegment(const Vector3& a, const Vector3& b) {
  const Vector3 edge = FromTo(a, b);
  const double square = Dot(edge, edge);
  const double part = square > 0.0 ? std::clamp(-Dot(a, edge) / square, 0.0, 1.0) : 0.0;
  const Vector3 nearest = a + edge * part;
  return Dot(nearest, nearest);
}

/// The square of the distance of the origin from a triangle.
double SquareToTriangle(const Vector3& a, const Vector3& b, const Vector3& c) {
  const Vector3 normal = Cross(FromTo(a, b), FromTo(a, c));
  const double square = Dot(normal, normal);
  if (square > 0.0 && Dot(Cross(a, b), normal) >= 0.0 && Dot(Cross(b, c), normal) >= 0.0 &&
      Dot(Cross(c, a), normal) >= 0.0) {
    const double height = Dot(a, normal);
    return height * height / square;
  }
  return std::min({SquareToSegment(a, b), SquareToSegment(b, c), SquareToSegment(c, a)});
}

double SquareToBox(const BuildingBox& box, const Point3& p) {
  const double x = std::max({box.min.x - p.x, p.x - box.max.x, 0.0});
  const double y = std::max({box.min.y - p.y, p.y - box.max.y, 0.0});
  const double z = std::max({box.min.z - p.z, p.z - box.max.z, 0.0});
  return x * x + y * y + z * z;
}

/// True if a ray from a point meets a box.
bool Meets(const BuildingBox& box, const Point3& p, const Vector3& direction) {
  double from = 0.0;
  double to = kNever;
  const auto clip = [&](double min, double max, double at, double along) {
    const double a = (min - at) / along;
    const double b = (max - at) / along;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
  };
  clip(box.min.x, box.max.x, p.x, direction.x);
  clip(box.min.y, box.max.y, p.y, direction.y);
  clip(box.min.z, box.max.z, p.z, direction.z);
  // Rounding must not lose a box that the ray touches.
  return from <= to * (1.0 + 1e-9) + 1e-9;
}

/// Directions that no face of a building is likely to be parallel to; no coordinate is zero.
constexpr std::array<Vector3, 7> kDirections = {{{0.8137, 0.4211, 0.4007},
                                                 {-0.3361, 0.8523, 0.4007},
                                                 {0.2713, -0.4429, 0.8545},
                                                 {-0.6173, -0.5591, -0.5533},
                                                 {0.1237, 0.1931, -0.9735},
                                                 {0.9019, -0.3571, -0.2431},
                                                 {-0.4937, 0.2203, 0.8412}}};

/// How a ray crosses a triangle.
struct RayHit {
  int crossing = 0;     // 1 outwards, -1 inwards
  bool isClear = true;  // false: so close to an edge that rounding may decide
};

RayHit Cast(const Point3& p, const Vector3& direction, const Triangle3& triangle) {
  const Vector3 a = triangle[0] - p;
  const Vector3 b = triangle[1] - p;
  const Vector3 c = triangle[2] - p;
  const double u = Dot(direction, Cross(b, c));
  const double v = Dot(direction, Cross(c, a));
  const double w = Dot(direction, Cross(a, b));
  RayHit hit;
  if (std::min({u, v, w}) < 0.0 && std::max({u, v, w}) > 0.0) {
    // Outside, unless by rounding only.
    const double margin = 1e-12 * (std::abs(u) + std::abs(v) + std::abs(w));
    hit.isClear = std::min({u, v, w}) < -margin && std::max({u, v, w}) > margin;
    return hit;
  }
  const Vector3 normal = Cross(FromTo(a, b), FromTo(a, c));
  const double rise = Dot(direction, normal);
  const double size = Length(normal);
  if (size == 0.0) return hit;
  hit.isClear = std::abs(rise) > 1e-9 * size &&
                std::min({std::abs(u), std::abs(v), std::abs(w)}) > 1e-10 * std::abs(u + v + w);
  if (rise != 0.0 && Dot(a, normal) / rise > 0.0) hit.crossing = rise > 0.0 ? 1 : -1;
  return hit;
}

}  // namespace

struct SurfaceDistance::Tree {
  std::vector<Triangle3> triangles;
  BoxTree boxes;
  BuildingBox box;

  double SquareTo(const Point3& point) const {
    double best = kNever;
    boxes.Search([&](const BuildingBox& b) { return SquareToBox(b, point); },
                 [&](std::uint32_t item) {
                   const Triangle3& t = triangles[item];
                   best =
                       std::min(best, SquareToTriangle(t[0] - point, t[1] - point, t[2] - point));
                   return best;
                 });
    return best;
  }

  /// How often the surface winds round the point, by one ray; `isClear` as of RayHit.
  int WindingOf(const Point3& point, const Vector3& direction, bool& isClear) const {
    int winding = 0;
    boxes.Search([&](const BuildingBox& b) { return Meets(b, point, direction) ? 0.0 : kNever; },
                 [&](std::uint32_t item) {
                   const RayHit hit = Cast(point, direction, triangles[item]);
                   winding += hit.crossing;
                   isClear = isClear && hit.isClear;
                   return kNever;
                 });
    return winding;
  }

  bool IsInside(const Point3& point) const {
    std::size_t inside = 0;
    for (const Vector3& direction : kDirections) {
      bool isClear = true;
      const bool isInside = WindingOf(point, direction, isClear) > 0;
      if (isClear) return isInside;
      if (isInside) ++inside;
    }
    return inside * 2 > kDirections.size();
  }
};

SurfaceDistance::SurfaceDistance(const Mesh& mesh) {
  auto made = std::make_unique<Tree>();
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    AppendTriangles(mesh, face, made->triangles);
  }
  std::vector<BuildingBox> boxes(made->triangles.size());
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    for (const Point3& corner : made->triangles[i]) Extend(boxes[i], corner);
    Extend(made->box, boxes[i]);
  }
  made->boxes = BoxTree(boxes);
  tree = std::move(made);
}

SurfaceDistance::~SurfaceDistance() = default;

double SurfaceDistance::To(const Point3& point) const { return std::sqrt(tree->SquareTo(point)); }

bool SurfaceDistance::Contains(const Point3& point, double tolerance) const {
  if (!(SquareToBox(tree->box, point) <= tolerance * tolerance)) return false;
  if (tolerance > 0.0 && To(point) <= tolerance) return true;
  return tree->IsInside(point);
}

}  // namespace KelIFC::building
