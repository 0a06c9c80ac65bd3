#ifndef KELIFC_BUILDING_SOLID_BOOLEAN_H_
#define KELIFC_BUILDING_SOLID_BOOLEAN_H_

#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/mesh.h"

namespace KelIFC::building {

/// The part of a closed mesh on the side of a plane that its normal points away from. The cut is
/// closed by faces in the plane. Exact for any closed mesh, convex or not.
Mesh CutByPlane(const Mesh& mesh, const Point3& point, const Vector3& normal);

/// The result of a boolean operation of two closed meshes; false if it could not be computed
/// robustly. An empty mesh is a valid result.
bool Combine(const Mesh& first, const Mesh& second, BooleanOperation operation, Mesh& result);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_BOOLEAN_H_
