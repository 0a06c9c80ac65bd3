#include "export/solids/display_model.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "kelifc/building/element_solid.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/opened_solid.h"

#include "export/report_progress.h"
#include "export/solids/display_loops.h"
#include "export/solids/mesh_store.h"

namespace KelIFC::exporting {
namespace {

/// How far the axes of a member may be from square unit vectors if it shares a mesh.
constexpr double kSquareTolerance = 1e-9;

constexpr std::size_t kElementsPerReport = 256;

/// The centre of all elements with a usable box, in whole metres.
Point3 CentreOf(const Building& building) {
  BuildingBox all;
  for (const BuildingElement& element : building.elements) {
    const BuildingBox& box = element.box;
    if (box.IsEmpty() || !IsUsable(box.min) || !IsUsable(box.max)) continue;
    all.min = {std::min(all.min.x, box.min.x), std::min(all.min.y, box.min.y),
               std::min(all.min.z, box.min.z)};
    all.max = {std::max(all.max.x, box.max.x), std::max(all.max.y, box.max.y),
               std::max(all.max.z, box.max.z)};
  }
  if (all.IsEmpty()) return {};
  return {std::round((all.min.x + all.max.x) / 2), std::round((all.min.y + all.max.y) / 2),
          std::round((all.min.z + all.max.z) / 2)};
}

/// The matrix of a straight member with square ends and one profile. None for other elements.
std::optional<DisplayMatrix> MatrixOfPrism(const BuildingElement& element) {
  if (!element.member) return std::nullopt;
  const MemberAxis& axis = *element.member;
  if (axis.curve != CurveForm::kLine || axis.points.size() < 2) return std::nullopt;
  if (axis.endProfile || axis.ends[0] || axis.ends[1]) return std::nullopt;
  const Point3& from = axis.points.front();
  const Point3& to = axis.points.back();
  if (!IsUsable(from) || !IsUsable(to)) return std::nullopt;
  const Vector3 along = to - from;
  const double length = Length(along);
  if (!(length > 0.0)) return std::nullopt;
  const Vector3 unit = along / length;
  const bool isSquare = std::abs(Dot(unit, axis.y)) < kSquareTolerance &&
                        std::abs(Length(axis.y) - 1.0) < kSquareTolerance;
  if (!isSquare || !IsUsable({axis.offset.x, axis.offset.y, 0.0})) return std::nullopt;
  const Vector3 z = Cross(unit, axis.y);
  return DisplayMatrix{along, axis.y, z, from + -(axis.offset.x * axis.y + axis.offset.y * z)};
}

/// A member from x = 0 to x = 1 with a profile.
BuildingElement UnitPrism(std::size_t profile) {
  BuildingElement element;
  element.member.emplace();
  element.member->points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}};
  element.member->y = {0.0, 1.0, 0.0};
  element.member->profile = profile;
  return element;
}

/// The edges of the openings that are not cut out of a solid, on both sides of it.
std::vector<Mesh> WiresOf(const BuildingElement& element,
                          const std::vector<std::size_t>& openings) {
  const double thickness = element.surface ? element.surface->thickness : 0.0;
  std::vector<Mesh> wires;
  for (const std::size_t i : openings) {
    const BuildingOpening& opening = element.openings[i];
    Mesh body = OpeningBodyOf(opening, std::max(opening.depth, thickness));
    if (!body.IsEmpty()) wires.push_back(std::move(body));
  }
  return wires;
}

class DisplayModelMaker {
 public:
  DisplayModelMaker(const Building& someBuilding, const ExportOptions& someOptions,
                    OpeningDisplay display)
      : building(someBuilding),
        options(someOptions),
        showsOpenings(display == OpeningDisplay::kCut),
        store(model) {}

  DisplayModel Make() {
    const std::size_t count = building.elements.size();
    IndexOf(count);
    model.origin = CentreOf(building);
    model.elementMesh.assign(count, kNoDisplayMesh);
    model.elementMatrix.resize(count);
    prisms.resize(building.profiles.size());
    for (std::size_t i = 0; i < count; ++i) {
      if (i % kElementsPerReport == 0) ReportProgress(options, i, 2 * count);
      const BuildingElement& element = building.elements[i];
      model.elementMesh[i] = AddElement(element, model.elementMatrix[i]);
      AddLines(i, IdealLinesOf(element));
      if (showsOpenings) AddLines(i, OpeningLinesOf(element));
    }
    return std::move(model);
  }

 private:
  using Origin = MeshStore::Origin;

  /// Adds the mesh of an element and returns its number.
  std::uint32_t AddElement(const BuildingElement& element, DisplayMatrix& matrix) {
    const bool isBody = !element.member && !element.surface;
    const bool isClosed = !isBody || element.body.isClosed;
    if (showsOpenings && !element.openings.empty()) {
      const OpenedSolid opened = OpenedSolidOf(building, element);
      return store.Add(opened.mesh, isClosed, Origin::kMiddle, matrix.origin,
                       WiresOf(element, opened.uncut));
    }
    if (const std::optional<DisplayMatrix> shared = MatrixOfPrism(element)) {
      const std::uint32_t mesh = PrismOf(element.member->profile);
      if (mesh != kNoDisplayMesh) matrix = *shared;
      return mesh;
    }
    if (isBody && element.body.mesh) {
      return store.Add(*element.body.mesh, isClosed, Origin::kMiddle, matrix.origin);
    }
    return store.Add(SolidOf(building, element), isClosed, Origin::kMiddle, matrix.origin);
  }

  /// The mesh of a profile from x = 0 to x = 1.
  std::uint32_t PrismOf(std::size_t profile) {
    if (profile >= prisms.size()) return kNoDisplayMesh;
    if (!prisms[profile]) {
      Point3 zero;
      prisms[profile] = store.Add(SolidOf(building, UnitPrism(profile)), true, Origin::kZero, zero);
    }
    return *prisms[profile];
  }

  void AddLines(std::size_t element, const std::vector<IdealLine>& lines) {
    for (const IdealLine& line : lines) {
      const bool isUsable = std::all_of(line.points.begin(), line.points.end(),
                                        [](const Point3& p) { return IsUsable(p); });
      if (!isUsable || line.points.size() < 2) continue;
      model.loops.push_back({IndexOf(element), IndexOf(model.loopPoints.size() / 3),
                             IndexOf(line.points.size()), line.kind});
      for (const Point3& p : line.points) {
        const Vector3 v = p - model.origin;
        for (const double value : {v.x, v.y, v.z}) {
          model.loopPoints.push_back(static_cast<float>(value));
        }
      }
    }
  }

  const Building& building;
  const ExportOptions& options;
  const bool showsOpenings;
  DisplayModel model;
  MeshStore store;
  std::vector<std::optional<std::uint32_t>> prisms;  // by profile: its mesh
};

}  // namespace

DisplayModel MakeDisplayModel(const Building& building, const ExportOptions& options,
                              OpeningDisplay openings) {
  return DisplayModelMaker(building, options, openings).Make();
}

}  // namespace KelIFC::exporting
