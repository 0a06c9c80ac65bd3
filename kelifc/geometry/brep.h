#ifndef KELIFC_GEOMETRY_BREP_H_
#define KELIFC_GEOMETRY_BREP_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A vertex of one loop, with the normal of that loop.
struct BRepVertex {
  Point3 position;
  Vector3 normal;
};

/// A face by its loops: indices into the vertices, from 0. Loops are closed without repeating their
/// first vertex. A face may have no outer loop, and a loop fewer than three vertices.
struct BRepFace {
  Mvector<int> outerLoop;
  Mvector<Mvector<int>> innerLoops;
};

/// The boundary of a solid: vertices, each of one loop, and faces. Vertices at one place are not
/// merged, and faces need not be plane.
struct KELIFC_API BRep {
  Mvector<BRepVertex> vertices;
  Mvector<BRepFace> faces;

  BRep();
  BRep(const BRep& other);
  BRep(BRep&& other) noexcept;
  BRep& operator=(const BRep& other);
  BRep& operator=(BRep&& other) noexcept;
  ~BRep();

  /// Moves all positions, and turns all normals, in place.
  void operator<<=(const Isometry3& isometry);
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_BREP_H_
