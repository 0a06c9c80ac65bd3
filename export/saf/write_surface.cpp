#include "export/saf/write_surface.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "kelifc/building/measures.h"

#include "export/saf/surface_boundary.h"
#include "export/text.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr double kMillimetres = 1000.0;
constexpr int kDecimals = 4;          // of a length in millimetres
constexpr double kSteepest = 0.7071;  // the vertical part of the normal of a plate is larger

// A plane region, or a curved wall with four edges.
struct Region {
  std::vector<Point3> outline;
  std::vector<OutlineArc> arcs;
  Vector3 normal;  // of a plane region
  Vector3 x;       // the direction of the local x axis
  double area = 0.0;
  bool isCurved = false;
  bool isWhole = true;  // false if the element consists of several regions
};

// The horizontal direction in the plane of a steep region, otherwise the world's x axis.
Vector3 DirectionOfX(const Vector3& normal) {
  Vector3 x = Cross(Vector3(0.0, 0.0, 1.0), normal);
  if (!(Length(x) > 1e-3)) return {1.0, 0.0, 0.0};
  Normalise(x);
  return x;
}

double AreaOf(const std::vector<Point3>& outline) {
  Vector3 sum;
  for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
    sum = sum + Cross(outline[i] - outline[0], outline[i + 1] - outline[0]);
  }
  return Length(sum) / 2.0;
}

// The rectangle above a line of the lower edge of a wall.
Region RectangleAbove(const Point3& from, const Point3& to, const Vector3& rise) {
  Region region;
  region.outline = {from, to, to + rise, from + rise};
  region.normal = Cross(to - from, rise);
  Normalise(region.normal);
  region.x = to - from;
  Normalise(region.x);
  region.area = AreaOf(region.outline);
  return region;
}

Region CurvedRegion(const WallSweep& sweep, const Vector3& rise) {
  Region region = RectangleAbove(sweep.points[0], sweep.points[2], rise);
  region.arcs = {{0, sweep.points[1]}, {2, sweep.points[1] + rise}};
  region.area = LengthOf(sweep) * sweep.height;
  region.isCurved = true;
  return region;
}

std::vector<Region> RegionsOf(const WallSweep& sweep) {
  const Vector3 rise = sweep.direction * sweep.height;
  if (sweep.curve == CurveForm::kArc && sweep.points.size() == 3) {
    return {CurvedRegion(sweep, rise)};
  }
  std::vector<Region> regions;
  for (std::size_t i = 1; i < sweep.points.size(); ++i) {
    regions.push_back(RectangleAbove(sweep.points[i - 1], sweep.points[i], rise));
    regions.back().isWhole = sweep.points.size() == 2;
  }
  return regions;
}

std::vector<Region> RegionsOf(const SurfaceRegion& surface) {
  if (surface.sweep) return RegionsOf(*surface.sweep);
  Region region;
  region.outline = surface.outline;
  region.arcs = surface.arcs;
  region.normal = surface.normal;
  region.x = DirectionOfX(surface.normal);
  region.area = KelIFC::AreaOf(surface);
  return {std::move(region)};
}

Obstacle FindObstacle(const Region& region) {
  if (region.outline.size() < 2) return kNoIdealisation;
  if (region.outline.size() + region.arcs.size() > kMostNodes) return kTooManyPoints;
  const bool isUsable = std::all_of(region.outline.begin(), region.outline.end(), IsUsable) &&
                        std::all_of(region.arcs.begin(), region.arcs.end(),
                                    [](const OutlineArc& arc) { return IsUsable(arc.through); }) &&
                        IsUsable({region.normal.x, region.normal.y, region.normal.z});
  return isUsable ? Obstacle() : kOutOfRange;
}

std::string_view TypeOf(const BuildingElement& element, const Region& region) {
  if (element.className == "IfcWall" || element.className == "IfcWallStandardCase") return "Wall";
  if (element.className == "IfcSlab") return "Plate";
  return std::abs(region.normal.z) < kSteepest ? "Wall" : "Plate";
}

std::string MillimetresOf(double metres) {
  std::string text;
  AppendRounded(text, metres * kMillimetres, kDecimals);
  return text;
}

// What a row of a surface member refers to.
struct RowNames {
  std::string name;
  std::string id;
  std::string parent;  // the id of the element if it consists of several rows
};

void WriteRow(SafWriter& writer, const BuildingElement& element, const Region& region,
              const SurfaceBoundary& boundary, const RowNames& names) {
  Table& table = writer.workbook["StructuralSurfaceMember"];
  table.BeginRow();
  table.Set("Name", names.name);
  table.Set("Type", TypeOf(element, region));
  table.Set("Material", writer.materials.NameOf(element.material));
  table.Set("Thickness type", "Constant");
  table.Set("Thickness [mm]", MillimetresOf(element.surface->thickness));
  table.Set("System plane at", "Centre");
  table.Set("Nodes", NodeList::NamesOf(boundary.nodes));
  table.Set("Edges", boundary.edges);
  table.Set("Area [m2]", region.area);
  table.Set("Layer", writer.LayerOf(element));
  table.Set("LCS Type", "x by vector");
  table.Set("Coordinate X [m]", region.x.x);
  table.Set("Coordinate Y [m]", region.x.y);
  table.Set("Coordinate Z [m]", region.x.z);
  table.Set("LCS Rotation [deg]", 0.0);
  table.Set("Structural Z Eccentricity [mm]", 0.0);
  table.Set("Analysis Z Eccentricity [mm]", 0.0);
  table.Set("Shape", region.isCurved ? "Curved" : "Flat");
  table.Set("Behavior in analysis", "Isotropic");
  table.Set("Parent ID", names.parent);
  table.Set("Id", names.id);
}

// Projects the points into the plane of a region, along its normal. Empty if a point is not usable.
std::vector<Point3> Project(const std::vector<Point3>& points, const Region& region) {
  std::vector<Point3> projected;
  for (const Point3& point : points) {
    if (!IsUsable(point)) return {};
    const double distance = Dot(point - region.outline.front(), region.normal);
    projected.push_back(point + region.normal * -distance);
  }
  return projected;
}

// Writes an opening with the edge in the plane of a region. Returns false if it does not fit.
bool WriteOpening(SafWriter& writer, const std::vector<Point3>& edge, const Region& region,
                  const std::string& member, std::string_view guid) {
  Table& table = writer.workbook["StructuralSurfaceMemberOpening"];
  if (edge.size() < 3 || edge.size() > kMostNodes || !table.HasRoomFor(1)) return false;
  const std::vector<Point3> outline = Project(edge, region);
  const std::size_t nodes = writer.nodes.GetCount();
  const SurfaceBoundary boundary = BoundaryOf(writer.nodes, outline, {});
  if (!boundary.IsUsable() || writer.nodes.GetCount() > Table::kMostRows) {
    writer.nodes.Truncate(nodes);
    return false;
  }
  const std::string name = writer.names.Take(member + " opening", "Opening");
  table.BeginRow();
  table.Set("Name", name);
  table.Set("2D Member", member);
  table.Set("Nodes", NodeList::NamesOf(boundary.nodes));
  table.Set("Edges", boundary.edges);
  table.Set("Area [m2]", AreaOf(outline));
  table.Set("Id", writer.ids.Take(guid, "opening/" + name));
  return true;
}

void WriteOpenings(SafWriter& writer, const BuildingElement& element, const Region& region,
                   const std::string& member) {
  if (element.surface->sweep) {
    writer.omissions.Add("openings of curved walls", element.openings.size());
    return;
  }
  for (const std::vector<Point3>& hole : element.surface->holes) {
    if (!WriteOpening(writer, hole, region, member, {})) writer.omissions.Add("unusable holes");
  }
  for (const BuildingOpening& opening : element.openings) {
    if (WriteOpening(writer, opening.outline, region, member, opening.guid)) continue;
    writer.omissions.Add(opening.outline.empty() ? "openings without an outline"
                                                 : "unusable openings");
  }
}

// The boundaries of the regions. Adds nodes; if there is an obstacle, none are left.
Obstacle AddBoundaries(SafWriter& writer, const std::vector<Region>& regions,
                       std::vector<SurfaceBoundary>& boundaries) {
  const std::size_t nodes = writer.nodes.GetCount();
  Obstacle obstacle;
  for (const Region& region : regions) {
    if (obstacle.empty()) obstacle = FindObstacle(region);
    if (!obstacle.empty()) break;
    boundaries.push_back(BoundaryOf(writer.nodes, region.outline, region.arcs));
    if (!boundaries.back().IsUsable()) obstacle = kTooSmall;
    if (writer.nodes.GetCount() > Table::kMostRows) obstacle = kSheetFull;
  }
  if (!obstacle.empty()) writer.nodes.Truncate(nodes);
  return obstacle;
}

}  // namespace

Obstacle WriteSurface(SafWriter& writer, const BuildingElement& element) {
  if (!element.surface) return kNoIdealisation;
  const SurfaceRegion& surface = *element.surface;
  if (!(surface.thickness > 0.0 && std::isfinite(surface.thickness))) return kNoIdealisation;
  const std::vector<Region> regions = RegionsOf(surface);
  if (regions.empty()) return kNoIdealisation;
  if (!writer.workbook["StructuralSurfaceMember"].HasRoomFor(regions.size())) return kSheetFull;
  std::vector<SurfaceBoundary> boundaries;
  const Obstacle obstacle = AddBoundaries(writer, regions, boundaries);
  if (!obstacle.empty()) return obstacle;

  const std::string name = writer.TakeName(element);
  const std::string id = writer.TakeId(element, name);
  for (std::size_t i = 0; i < regions.size(); ++i) {
    RowNames names = {name, id, {}};
    if (!regions[i].isWhole) {
      if (i > 0) names.name = writer.names.Take(name, name);
      names.id = writer.ids.Take("part/" + names.name);
      names.parent = id;
    }
    WriteRow(writer, element, regions[i], boundaries[i], names);
  }
  WriteOpenings(writer, element, regions.front(), name);
  writer.omissions.Add("layers of surfaces", surface.layers.size() > 1 ? surface.layers.size() : 0);
  return {};
}

}  // namespace KelIFC::exporting::saf
