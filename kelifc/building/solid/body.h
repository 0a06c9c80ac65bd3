#ifndef KELIFC_BUILDING_SOLID_BODY_H_
#define KELIFC_BUILDING_SOLID_BODY_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/read_building.h"

namespace KelIFC::building {

// Bodies made from facts. No IFC file is needed here.

/// What limits the evaluation of a body: the limits of one body in ReadingOptions.
struct BodyLimits {
  std::size_t maxPoints = ReadingOptions().maxBodyPoints;
  std::size_t maxDepth = ReadingOptions().maxDepth;
};

/// A body: the boundary of one or several solids, in the coordinates that the caller chose.
struct EvaluatedBody {
  Mesh mesh;
  BuildingBox box;
  double volume = 0.0;    ///< by the divergence theorem; positive for faces that point outwards
  bool isClosed = false;  ///< each edge is used once in each direction
  bool isExact = true;    ///< false: a boolean operation failed, and the first operand was taken
  bool hasBoolean = false;
  bool isSurfaceModel = false;
  std::size_t mappedDepth = 0;
  std::size_t solidCount = 0;  ///< how many items contributed
};

/// Makes the body of some items. If it cannot be made, `fault` says why, and the mesh is empty.
struct BodyResult {
  EvaluatedBody body;
  std::optional<Unreadable> fault;
};

class OperationCache;

/// `operations` keeps the results of boolean operations for other bodies; it may be null.
BodyResult EvaluateBody(const std::vector<SolidPointer>& items, const Transform3& placement,
                        const BodyLimits& limits = {}, OperationCache* operations = nullptr);

/// The box of all points that faces use.
BuildingBox BoxOf(const Mesh& mesh);

/// The signed volume inside a mesh. Of an open mesh it has no meaning.
double VolumeOf(const Mesh& mesh);

/// True if each edge is used as often in one direction as in the other. Points that coincide within
/// 1e-7 m count as one.
bool IsClosed(const Mesh& mesh);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_BODY_H_
