#include "export/saf/write_proxy.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "export/saf/cell_text.h"
#include "export/saf/face_loop.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr Obstacle kNoBoundary = "bodies without a boundary";
constexpr Mesh::Index kUnused = std::numeric_limits<Mesh::Index>::max();

// The rows of a body. Points that belong to no face are left out.
struct ProxyRows {
  std::vector<Mesh::Index> points;  // the points of the mesh that are vertices
  std::vector<std::string> faces;   // the definitions
  std::size_t lostHoles = 0;
};

bool AreUsable(const Mesh& mesh, const Mesh::Loop& loop) {
  return std::all_of(loop.begin(), loop.end(), [&](Mesh::Index index) {
    return index < mesh.points.size() && IsUsable(mesh.points[index]);
  });
}

bool IsFaceUsable(const Mesh& mesh, std::size_t face) {
  for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
    if (!AreUsable(mesh, mesh.LoopOf(face, i))) return false;
  }
  return true;
}

// The definition of a face: the indices of its vertices. Adds the vertices that are new.
std::string DefinitionOf(const std::vector<Mesh::Index>& loop, std::vector<Mesh::Index>& places,
                         ProxyRows& rows) {
  std::string definition;
  for (const Mesh::Index point : loop) {
    if (places[point] == kUnused) {
      places[point] = static_cast<Mesh::Index>(rows.points.size());
      rows.points.push_back(point);
    }
    if (!definition.empty()) definition += "; ";
    definition += std::to_string(places[point]);
  }
  return definition;
}

Obstacle MakeRows(const Mesh& mesh, ProxyRows& rows) {
  std::vector<Mesh::Index> places(mesh.points.size(), kUnused);
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    if (mesh.LoopCount(face) == 0) continue;
    if (!IsFaceUsable(mesh, face)) return kOutOfRange;
    const FaceLoop loop = SingleLoopOf(mesh, face);
    if (loop.points.size() < 3) continue;
    rows.lostHoles += loop.lostHoles;
    rows.faces.push_back(DefinitionOf(loop.points, places, rows));
    if (rows.faces.back().size() > kLongestCell) return kTooManyPoints;
  }
  return rows.faces.empty() ? kNoBoundary : Obstacle();
}

void Write(SafWriter& writer, const BuildingElement& element, const ProxyRows& rows) {
  const Mesh& mesh = *element.body.mesh;
  const std::string name = writer.TakeName(element);
  Table& proxies = writer.workbook["StructuralProxyElement"];
  proxies.BeginRow();
  proxies.Set("Name", name);
  proxies.Set("Material", writer.materials.NameOf(element.material));
  proxies.Set("Layer", writer.LayerOf(element));
  proxies.Set("Id", writer.TakeId(element, name));
  Table& vertices = writer.workbook["StructuralProxyElementVertices"];
  for (std::size_t i = 0; i < rows.points.size(); ++i) {
    const Point3& point = mesh.points[rows.points[i]];
    vertices.BeginRow();
    vertices.Set("Structural proxy element", name);
    vertices.Set("Index", static_cast<double>(i));
    vertices.Set("X [m]", point.x);
    vertices.Set("Y [m]", point.y);
    vertices.Set("Z [m]", point.z);
  }
  Table& faces = writer.workbook["StructuralProxyElementFaces"];
  for (std::size_t i = 0; i < rows.faces.size(); ++i) {
    faces.BeginRow();
    faces.Set("Structural proxy element", name);
    faces.Set("Index", static_cast<double>(i));
    faces.Set("Definition", rows.faces[i]);
  }
}

}  // namespace

Obstacle WriteProxy(SafWriter& writer, const BuildingElement& element) {
  if (!element.body.mesh || element.body.mesh->IsEmpty()) return kNoBoundary;
  ProxyRows rows;
  const Obstacle obstacle = MakeRows(*element.body.mesh, rows);
  if (!obstacle.empty()) return obstacle;
  Workbook& workbook = writer.workbook;
  const bool hasRoom = workbook["StructuralProxyElement"].HasRoomFor(1) &&
                       workbook["StructuralProxyElementVertices"].HasRoomFor(rows.points.size()) &&
                       workbook["StructuralProxyElementFaces"].HasRoomFor(rows.faces.size());
  if (!hasRoom) return kSheetFull;
  Write(writer, element, rows);
  writer.omissions.Add("holes of faces", rows.lostHoles);
  writer.omissions.Add("openings of members and bodies", element.openings.size());
  return {};
}

}  // namespace KelIFC::exporting::saf
