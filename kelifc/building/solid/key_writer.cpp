#include "kelifc/building/solid/key_writer.h"

namespace KelIFC::building {
namespace {

// Longer keys are not kept: what is so large is hardly ever repeated.
constexpr std::size_t kMostBytes = std::size_t{1} << 16;

// Solids that are nested deeper have no key, so that the recursion is bounded.
constexpr std::size_t kMostDepth = 64;

}  // namespace

void KeyWriter::Add(const std::string& value) {
  Add(value.size());
  text += value;
}

void KeyWriter::AddAxes(const Transform3& map) {
  Add(map.x);
  Add(map.y);
  Add(map.z);
}

void KeyWriter::Add(const Transform3& map) {
  AddAxes(map);
  Add(map.origin);
}

void KeyWriter::Add(const Contour& contour) {
  AddList(contour.points);
  Add(contour.arcs.size());
  for (const ContourArc& arc : contour.arcs) {
    Add(arc.edge);
    Add(arc.through);
  }
}

void KeyWriter::Add(const Region& region) {
  Add(region.outer);
  AddList(region.holes);
}

void KeyWriter::Add(const ProfilePointer& profile) {
  Add(profile != nullptr);
  if (profile == nullptr) return;
  Add(profile->name);
  Add(static_cast<std::size_t>(profile->shape));
  AddAll(profile->parameters);
  Add(profile->position.x);
  Add(profile->position.y);
  Add(profile->position.origin);
  AddList(profile->regions);
}

void KeyWriter::Add(const SpaceCurve& curve) {
  AddList(curve.points);
  Add(curve.arcs.size());
  for (const auto& [edge, through] : curve.arcs) {
    Add(edge);
    Add(through);
  }
  Add(curve.isClosed);
}

void KeyWriter::Add(const Mesh& mesh, const Vector3& shift) {
  Add(mesh.points.size());
  for (const Point3& p : mesh.points) Add(p + shift);
  Add(mesh.FaceCount());
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    Add(mesh.LoopCount(face));
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      Add(loop.size());
      AddBytes(loop.first, loop.count * sizeof *loop.first);
    }
  }
}

void KeyWriter::Add(const Extrusion& form) {
  Add(form.profile);
  Add(form.endProfile);
  Add(form.position);
  Add(form.direction);
  Add(form.depth);
}

void KeyWriter::Add(const Revolution& form) {
  Add(form.profile);
  Add(form.position);
  Add(form.axisPoint);
  Add(form.axis);
  Add(form.angle);
}

void KeyWriter::Add(const SweptDisk& form) {
  Add(form.directrix);
  Add(form.radius);
  Add(form.innerRadius);
}

void KeyWriter::Add(const SweptCurve& form) {
  Add(form.profile);
  Add(form.position);
  Add(form.directrix);
  Add(form.reference);
}

void KeyWriter::Add(const Shells& form) {
  Add(form.shells.size());
  for (const Mesh& shell : form.shells) Add(shell, Vector3());
  Add(form.isSurface);
}

void KeyWriter::Add(const HalfSpace& form) {
  Add(form.point);
  Add(form.normal);
  Add(form.position);
  Add(form.boundary.has_value());
  if (form.boundary) Add(*form.boundary);
}

void KeyWriter::Add(const BooleanResult& form) {
  Add(static_cast<std::size_t>(form.operation));
  Add(form.first);
  Add(form.second);
}

void KeyWriter::Add(const MappedItems& form) {
  Add(form.transform);
  AddList(form.items);
}

void KeyWriter::Add(const Primitive& form) {
  Add(static_cast<std::size_t>(form.form));
  Add(form.position);
  AddAll(form.sizes);
}

void KeyWriter::Add(const SolidPointer& solid) {
  Add(solid != nullptr);
  if (solid == nullptr) return;
  isReadable = isReadable && depth < kMostDepth;
  if (!IsUsable()) return;
  ++depth;
  Add(solid->form.index());
  std::visit([this](const auto& form) { Add(form); }, solid->form);
  --depth;
}

bool KeyWriter::IsUsable() const { return isReadable && text.size() <= kMostBytes; }

}  // namespace KelIFC::building
