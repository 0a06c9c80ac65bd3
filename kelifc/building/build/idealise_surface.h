#ifndef KELIFC_BUILDING_BUILD_IDEALISE_SURFACE_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_SURFACE_H_

#include <optional>

#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

/// Reads a subject as a plane region with a thickness along a direction, by slices square to it.
/// None if there is no section of one region, or no solid.
std::optional<Reading> ReadSurface(Subject& subject, const Vector3& normal);

/// Reads a subject as a plane region with a thickness that pieces were cut off from everywhere, so
/// that no section is that of the surface. None if there is no such surface.
std::optional<Reading> ReadSurfaceAround(Subject& subject, const Vector3& normal);

/// Makes a surface of a region that lies in a plane; the middle of its thickness is at the
/// coordinate `span.Middle()` along the normal of the plane.
Reading MakeSurface(const Subject& subject, const PlaneFrame& plane, const Contour& outline,
                    const std::vector<Outline>& holes, const Span& span);

/// Turns the normal of a surface to the side that it has to have, and sets the reference and the
/// layers, in the order along the normal. `fileReference` is a point of the plane of the file's
/// profile if that is the reference plane. Points of the product are in world coordinates, `centre`
/// is the origin of the surface.
void FinishSurface(const Subject& subject, const std::optional<Point3>& fileReference,
                   const Vector3& centre, SurfaceRegion& surface);

/// The layers of a product in the order of the file. The material of each is its place in the list
/// of the product.
std::vector<MaterialLayer> LayersOf(const ProductFacts& product);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_SURFACE_H_
