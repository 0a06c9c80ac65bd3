#ifndef EXPORT_SAF_SURFACE_BOUNDARY_H_
#define EXPORT_SAF_SURFACE_BOUNDARY_H_

#include <string>
#include <vector>

#include "kelifc/building/building.h"

#include "export/saf/node_list.h"

namespace KelIFC::exporting::saf {

/// A closed boundary as the cells "Nodes" and "Edges" describe it. A line has its first node, an
/// arc has its first node and a node between its ends.
struct SurfaceBoundary {
  std::vector<NodeList::Index> nodes;
  std::string edges;  ///< such as "Line; Circular Arc; Line"

  /// True if the boundary encloses an area.
  bool IsUsable() const { return nodes.size() >= 3; }
};

/// Adds the nodes of a closed polyline whose edges `arcs` are arcs. Edges that are shorter than the
/// tolerance of the nodes are left out.
SurfaceBoundary BoundaryOf(NodeList& nodes, const std::vector<Point3>& outline,
                           const std::vector<OutlineArc>& arcs);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_SURFACE_BOUNDARY_H_
