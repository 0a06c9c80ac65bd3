#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "kelifc/building/audit.h"
#include "kelifc/building/difference.h"
#include "kelifc/building/read_building.h"
#include "kelifc/server/ifc_server.h"

// Reads the building of a file of arbitrary bytes completely. Whatever the file holds, each product
// is an element, decomposed or a loss, all numbers are finite, and all indices are in range.

namespace {

using namespace KelIFC;

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

void RequireFinite(double number) { Require(std::isfinite(number), "a number is not finite"); }

void RequireFinite(const Point3& p) {
  RequireFinite(p.x);
  RequireFinite(p.y);
  RequireFinite(p.z);
}

void RequireFinite(const Vector3& v) { RequireFinite(Point3() + v); }

void RequireFinite(const std::vector<Point3>& points) {
  for (const Point3& point : points) RequireFinite(point);
}

void RequireFinite(const Outline& outline) {
  for (const Point2& point : outline) {
    RequireFinite(point.x);
    RequireFinite(point.y);
  }
}

void RequireIndex(const BuildingIndex& index, std::size_t count) {
  Require(!index || *index < count, "an index is out of range");
}

void CheckProfile(const BuildingProfile& profile) {
  RequireFinite(profile.outline);
  for (const Outline& hole : profile.holes) RequireFinite(hole);
  for (const double size : profile.parameters) RequireFinite(size);
  for (const double number : {profile.area, profile.iy, profile.iz, profile.iyz}) {
    RequireFinite(number);
  }
}

void CheckMember(const MemberAxis& member, const Building& building) {
  RequireFinite(member.points);
  RequireFinite(member.y);
  Require(member.points.size() >= 2, "an axis has no two points");
  RequireIndex(member.profile, building.profiles.size());
  RequireIndex(member.endProfile, building.profiles.size());
}

void CheckSurface(const SurfaceRegion& surface, const Building& building) {
  RequireFinite(surface.outline);
  RequireFinite(surface.normal);
  RequireFinite(surface.thickness);
  RequireFinite(surface.reference);
  for (const auto& hole : surface.holes) RequireFinite(hole);
  for (const OutlineArc& arc : surface.arcs) {
    RequireFinite(arc.through);
    RequireIndex(arc.edge, surface.outline.size());
  }
  for (const MaterialLayer& layer : surface.layers) {
    RequireFinite(layer.thickness);
    RequireIndex(layer.material, building.materials.size());
  }
}

void CheckMesh(const Mesh& mesh) {
  RequireFinite(mesh.points);
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      for (const Mesh::Index index : mesh.LoopOf(face, loop)) {
        RequireIndex(std::size_t{index}, mesh.points.size());
      }
    }
  }
}

void CheckElement(const BuildingElement& element, const Building& building) {
  for (const double number : {element.deviation, element.volumeRatio.value_or(0.0), element.volume,
                              element.body.volume}) {
    RequireFinite(number);
  }
  for (const BuildingBox& box : {element.box, element.body.box}) {
    RequireFinite(box.min);
    RequireFinite(box.max);
    Require(!box.IsEmpty(), "a box is empty");
  }
  Require(element.deviation >= 0.0, "a deviation is negative");
  Require(element.partOf != element.id, "an element is a part of itself");
  Require(element.member.has_value() == (element.kind == ElementKind::kMember), "a kind is wrong");
  Require(element.surface.has_value() == (element.kind == ElementKind::kSurface),
          "a kind is wrong");
  RequireIndex(element.material, building.materials.size());
  if (element.member) CheckMember(*element.member, building);
  if (element.surface) CheckSurface(*element.surface, building);
  if (element.body.mesh) CheckMesh(*element.body.mesh);
  for (const BuildingOpening& opening : element.openings) {
    RequireFinite(opening.outline);
    RequireFinite(opening.depth);
  }
}

void CheckBalance(const Building& building) {
  const BuildingTotals& totals = building.totals;
  const std::size_t elements = totals.members + totals.surfaces + totals.bodies;
  Require(elements + totals.decomposed + totals.lost == totals.products, "no balance");
  Require(elements == building.elements.size(), "elements are miscounted");
  Require(totals.lost == building.losses.size(), "losses are miscounted");
  std::size_t audited = 0;
  for (const ClassAudit& audit : Audit(building).classes) audited += audit.totals.products;
  Require(audited == totals.products, "the audit is miscounted");
}

void Check(const Building& building) {
  CheckBalance(building);
  for (const BuildingProfile& profile : building.profiles) CheckProfile(profile);
  for (const BuildingElement& element : building.elements) CheckElement(element, building);
  for (const BuildingStorey& storey : building.storeys) {
    RequireFinite(storey.elevation);
    RequireFinite(storey.height.value_or(0.0));
  }
  RequireFinite(building.lengthUnit.metres);
  Require(Compare(building, building).same == building.elements.size(),
          "a building differs from itself");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LoadOptions loading;
  loading.dialect = STEP_DIALECT_ISO;
  loading.limits.maxInstances = 100'000;
  IfcServer server;
  if (server.LoadIfcMemory(data, size, loading) != LOAD_RESULT_LOADED) return 0;
  ReadingOptions reading;
  reading.keptBodies = KeptBodies::kAll;
  reading.maxPoints = 100'000;
  reading.maxBodyPoints = 20'000;
  reading.maxDepth = 16;
  Check(ReadBuilding(server, reading));
  return 0;
}
