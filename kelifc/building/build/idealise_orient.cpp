#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_surface.h"

namespace KelIFC::building::idealising {
namespace {

constexpr double kParallel = 0.999;  // the cosine of 2.6 degrees
constexpr double kTiny = 1e-9;       // lengths and cosines up to this are rounding errors

Vector3 AxisOf(const Transform3& placement, int axis) {
  return Unit(axis == 1 ? placement.x : axis == 2 ? placement.y : placement.z);
}

// Positive on the left of a wall without a placement, whose axis goes towards world x or y.
double DefaultSide(const Vector3& normal) {
  return std::fabs(normal.y) > kTiny ? normal.y : -normal.x;
}

// Positive if the normal points in the direction in which the layers follow each other.
double LayerSide(const ProductFacts& product, const Vector3& normal) {
  const LayerUsageFacts& usage = product.material.usage;
  if (!usage.hasUsage || usage.axis < 1 || usage.axis > 3) return 0.0;
  const double side = Dot(normal, AxisOf(product.placement, usage.axis));
  if (std::fabs(side) < 0.5) return 0.0;
  return usage.isPositive ? side : -side;
}

double LeftSide(const ProductFacts& product, const Vector3& normal) {
  Vector3 along = AxisOf(product.placement, 1);
  if (product.axis && product.axis->points.size() >= 2) {
    const Vector3 chord = product.axis->points.back() - product.axis->points.front();
    if (Length(chord) > kTiny) along = Unit(product.placement(chord));
  }
  const double side = Dot(normal, Cross(AxisOf(product.placement, 3), along));
  return std::fabs(side) < 0.1 ? 0.0 : side;
}

bool MustFlip(const Subject& subject, const Vector3& normal) {
  if (subject.role == ElementRole::kWall && subject.product != nullptr) {
    const double layers = LayerSide(*subject.product, normal);
    if (layers != 0.0) return layers < 0.0;
    const double left = LeftSide(*subject.product, normal);
    if (left != 0.0) return left < 0.0;
  }
  if (std::fabs(normal.z) > kTiny) return normal.z < 0.0;
  return DefaultSide(normal) < 0.0;
}

void Flip(SurfaceRegion& surface) {
  const std::size_t count = surface.outline.size();
  std::reverse(surface.outline.begin(), surface.outline.end());
  for (std::vector<Point3>& hole : surface.holes) std::reverse(hole.begin(), hole.end());
  for (OutlineArc& arc : surface.arcs) arc.edge = (2 * count - 2 - arc.edge) % count;
  std::sort(surface.arcs.begin(), surface.arcs.end(),
            [](const OutlineArc& a, const OutlineArc& b) { return a.edge < b.edge; });
  surface.normal = -surface.normal;
}

// A point of the reference plane in world coordinates, if that plane is parallel to the surface.
std::optional<Point3> ReferencePoint(const Subject& subject, const Vector3& normal) {
  if (subject.product == nullptr) return std::nullopt;
  const Transform3& placement = subject.product->placement;
  for (const int axis : {1, 2, 3}) {
    if (std::fabs(Dot(normal, AxisOf(placement, axis))) > kParallel) return placement.origin;
  }
  return std::nullopt;
}

}  // namespace

std::vector<MaterialLayer> LayersOf(const ProductFacts& product) {
  std::vector<MaterialLayer> layers;
  for (std::size_t i = 0; i < product.material.layers.size(); ++i) {
    layers.push_back({i, product.material.layers[i].thickness});
  }
  return layers;
}

void FinishSurface(const Subject& subject, const std::optional<Point3>& fileReference,
                   const Vector3& centre, SurfaceRegion& surface) {
  if (subject.product != nullptr) surface.layers = LayersOf(*subject.product);
  if (surface.sweep || surface.outline.empty()) return;
  if (MustFlip(subject, surface.normal)) Flip(surface);
  // No coordinate of the normal is a negative zero.
  surface.normal = surface.normal + Vector3(0.0, 0.0, 0.0);
  if (subject.product == nullptr) return;
  if (LayerSide(*subject.product, surface.normal) < 0.0) {
    std::reverse(surface.layers.begin(), surface.layers.end());
  }
  std::optional<Point3> reference = ReferencePoint(subject, surface.normal);
  if (subject.role != ElementRole::kWall && fileReference) reference = fileReference;
  if (!reference) return;
  surface.reference = Dot(surface.outline[0] - (*reference + -centre), surface.normal);
}

}  // namespace KelIFC::building::idealising
