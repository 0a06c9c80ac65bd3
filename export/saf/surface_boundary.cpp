#include "export/saf/surface_boundary.h"

namespace KelIFC::exporting::saf {
namespace {

void AppendEdge(SurfaceBoundary& boundary, std::string_view form) {
  if (!boundary.edges.empty()) boundary.edges += "; ";
  boundary.edges += form;
}

}  // namespace

SurfaceBoundary BoundaryOf(NodeList& nodes, const std::vector<Point3>& outline,
                           const std::vector<OutlineArc>& arcs) {
  std::vector<NodeList::Index> corners;
  corners.reserve(outline.size());
  for (const Point3& point : outline) corners.push_back(nodes.Add(point));

  SurfaceBoundary boundary;
  auto arc = arcs.begin();
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const NodeList::Index from = corners[i];
    const NodeList::Index to = corners[i + 1 < corners.size() ? i + 1 : 0];
    while (arc != arcs.end() && arc->edge < i) ++arc;
    const bool isArc = arc != arcs.end() && arc->edge == i;
    if (from == to) continue;
    boundary.nodes.push_back(from);
    const NodeList::Index through = isArc ? nodes.Add(arc->through) : from;
    const bool isRound = through != from && through != to;
    if (isRound) boundary.nodes.push_back(through);
    AppendEdge(boundary, isRound ? "Circular Arc" : "Line");
  }
  return boundary;
}

}  // namespace KelIFC::exporting::saf
