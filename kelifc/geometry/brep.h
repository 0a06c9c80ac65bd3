#ifndef KELIFC_GEOMETRY_BREP_H_
#define KELIFC_GEOMETRY_BREP_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A vertex of one loop. It has the normal of that loop.
struct BRepVertex {
  Point3 position;  ///< in the unit of the boundary; the object model uses metres
  Vector3 normal;   ///< of length 1 in a converted model; zero for a loop on one line
};

/// A face, given by its loops. A loop is a list of indices into the vertices, from 0. It is closed,
/// but does not repeat its first index. A face may have no outer loop, and a loop may have fewer
/// than three indices.
struct BRepFace {
  Mvector<int> outerLoop;            ///< empty if the face has none
  Mvector<Mvector<int>> innerLoops;  ///< the holes of the face
};

/// The boundary of a solid: vertices and faces. Each vertex belongs to one loop; vertices at the
/// same position are not merged. Faces need not be plane. The members are plain data that nothing
/// checks. A copy is deep.
struct KELIFC_API BRep {
  Mvector<BRepVertex> vertices;  ///< in the order of their loops
  Mvector<BRepFace> faces;       ///< they refer to `vertices` by index

  BRep();
  BRep(const BRep& other);
  BRep(BRep&& other) noexcept;
  BRep& operator=(const BRep& other);
  BRep& operator=(BRep&& other) noexcept;
  ~BRep();

  /// Transforms the boundary in place: positions are rotated and translated, normals are rotated.
  void operator<<=(const Isometry3& isometry);
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_BREP_H_
