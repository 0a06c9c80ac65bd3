#ifndef KELIFC_BUILDING_SOLID_MADE_MESH_H_
#define KELIFC_BUILDING_SOLID_MADE_MESH_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/element_enums.h"
#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/slice.h"

namespace KelIFC::building {

/// A mesh, or the reason why it cannot be made.
struct MadeMesh {
  Mesh mesh;
  bool isExact = true;
  std::optional<LossReason> fault;
  std::size_t at = 0;  ///< the profile at fault; 0 for the solid itself

  MadeMesh() = default;
  explicit MadeMesh(LossReason reason, std::size_t instance = 0) : fault(reason), at(instance) {}
};

/// Turns the faces outwards. The fault is kDegenerate if the mesh has no volume, kNotFinite if a
/// coordinate is not usable.
MadeMesh Finish(Mesh mesh);

/// The regions of a profile as outlines. Outlines that cross themselves stay as they are if they
/// have an area; isExact is false then.
struct FlatProfile {
  std::vector<FlatRegion> regions;
  bool isExact = true;
  std::optional<LossReason> fault;

  std::size_t PointCount() const;
};
FlatProfile FlatProfileOf(const ProfilePointer& profile);

/// How many chords replace an arc, such that none is farther from it than kChordError.
std::size_t ChordCount(double radius, double angle);

// The solids. Each is made in the coordinates of the item, then moved by `map`. A mesh of more
// than `maxPoints` points is not made; the fault is kLimit then.

MadeMesh MakeExtrusion(const Extrusion& solid, const Transform3& map, std::size_t maxPoints);
MadeMesh MakeRevolution(const Revolution& solid, const Transform3& map, std::size_t maxPoints);
MadeMesh MakeSweptDisk(const SweptDisk& solid, const Transform3& map, std::size_t maxPoints);
MadeMesh MakeSweptCurve(const SweptCurve& solid, const Transform3& map, std::size_t maxPoints);
MadeMesh MakePrimitive(const Primitive& solid, const Transform3& map, std::size_t maxPoints);

/// The boundary of shells: points are welded, all faces of a closed shell turn outwards, those of
/// its voids inwards. A shell that is not closed stays open; its faces turn as far as they agree.
MadeMesh MakeShells(const Shells& solid, const Transform3& map, std::size_t maxPoints);

/// The faces of a mesh as a closed boundary whose faces turn outwards. Files round coordinates, so
/// that faces which do not close within the usual distance may within a larger one. Empty if they
/// do not.
Mesh CloseShell(const Mesh& mesh);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_MADE_MESH_H_
