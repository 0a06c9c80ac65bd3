#include "kelifc/building/opened_solid.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "kelifc/building/element_solid.h"
#include "kelifc/building/solid/boolean.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {
namespace {

constexpr double kThrough = 0.9;  // an opening as deep as this share of a surface goes through it
constexpr double kOvershoot = 0.01;  // how much deeper than the opening its cut is, in metres

// The work for each element is limited: the openings that are cut out, and the points that are
// visited if each opening is cut out by itself.
constexpr std::size_t kMostOpenings = 256;
constexpr std::size_t kMostPoints = 200'000;

Vector3 NormalOf(const std::vector<Point3>& outline) {
  Vector3 sum;
  for (std::size_t i = 2; i < outline.size(); ++i) {
    sum = sum + Cross(outline[i - 1] - outline[0], outline[i] - outline[0]);
  }
  Normalise(sum);
  return sum;
}

bool GoesThrough(const BuildingElement& element, const BuildingOpening& opening) {
  return opening.depth >= kThrough * element.surface->thickness;
}

/// True if the place of the opening across the element is known.
bool IsPlaced(const BuildingElement& element, const BuildingOpening& opening) {
  const bool isPlane = element.surface && !element.surface->sweep;
  return !isPlane || GoesThrough(element, opening);
}

/// Takes openings out of a solid.
class OpeningCutter {
 public:
  OpeningCutter(const BuildingElement& someElement, Mesh solid) : element(someElement) {
    result.mesh = std::move(solid);
  }

  OpenedSolid Cut() {
    CollectBodies();
    if (bodies.empty() || result.mesh.IsEmpty()) return Uncut();
    if (!Subtract(AllBodies())) CutOneByOne();
    std::sort(result.uncut.begin(), result.uncut.end());
    return std::move(result);
  }

  /// The solid as it is.
  OpenedSolid Uncut() {
    result.uncut.clear();
    for (std::size_t i = 0; i < element.openings.size(); ++i) result.uncut.push_back(i);
    return std::move(result);
  }

 private:
  struct OpeningBody {
    std::size_t opening = 0;
    Mesh mesh;
  };

  void CollectBodies() {
    for (std::size_t i = 0; i < element.openings.size(); ++i) {
      const BuildingOpening& opening = element.openings[i];
      Mesh body;
      if (bodies.size() < kMostOpenings && IsPlaced(element, opening)) {
        body = OpeningBodyOf(opening, CutDepthOf(element, opening));
      }
      if (body.IsEmpty()) {
        result.uncut.push_back(i);
      } else {
        bodies.push_back({i, std::move(body)});
      }
    }
  }

  Mesh AllBodies() const {
    Mesh all;
    for (const OpeningBody& body : bodies) building::Append(all, body.mesh);
    return all;
  }

  void CutOneByOne() {
    std::size_t visited = 0;
    for (const OpeningBody& body : bodies) {
      visited += result.mesh.points.size();
      if (visited > kMostPoints || !Subtract(body.mesh)) result.uncut.push_back(body.opening);
    }
  }

  bool Subtract(const Mesh& mesh) {
    Mesh difference;
    if (!building::Combine(result.mesh, mesh, building::BooleanOperation::kDifference,
                           difference) ||
        difference.IsEmpty()) {
      return false;
    }
    result.mesh = std::move(difference);
    return true;
  }

  const BuildingElement& element;
  std::vector<OpeningBody> bodies;
  OpenedSolid result;
};

}  // namespace

double CutDepthOf(const BuildingElement& element, const BuildingOpening& opening) {
  if (opening.outline.size() < 3) return 0.0;
  double depth = opening.depth;
  if (element.surface && GoesThrough(element, opening)) {
    depth = std::max(depth, element.surface->thickness) + kOvershoot;
  } else if (!element.surface) {
    depth += kOvershoot;
  }
  return std::isfinite(depth) ? depth : 0.0;
}

Mesh OpeningBodyOf(const BuildingOpening& opening, double depth) {
  const Vector3 normal = NormalOf(opening.outline);
  if (!(depth > 0.0) || !(Length(normal) > 0.5)) return {};
  Mesh mesh;
  const auto count = static_cast<Mesh::Index>(opening.outline.size());
  for (const double side : {-0.5, 0.5}) {
    for (const Point3& p : opening.outline) mesh.points.push_back(p + normal * (side * depth));
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

OpenedSolid OpenedSolidOf(const Building& building, const BuildingElement& element) {
  OpeningCutter cutter(element, SolidOf(building, element));
  const bool isOpenBody = !element.member && !element.surface && !element.body.isClosed;
  return isOpenBody ? cutter.Uncut() : cutter.Cut();
}

}  // namespace KelIFC
