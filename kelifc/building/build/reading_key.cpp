#include "kelifc/building/build/reading_key.h"

#include <array>
#include <cstdint>

namespace KelIFC::building::idealising {
namespace {

// Larger bodies are hardly ever repeated, and their keys take memory.
constexpr std::size_t kMostPoints = 1000;
constexpr std::size_t kMostBytes = std::size_t{1} << 16;

// Collects the bits of values. The length of each list comes before its elements, so that different
// values never have the same text.
class KeyWriter {
 public:
  void Add(double value) { AddBytes(&value, sizeof value); }
  void Add(std::size_t value) { AddBytes(&value, sizeof value); }
  void Add(bool value) { text.push_back(value ? '\1' : '\0'); }
  void Add(const Point2& p) { AddAll(std::array{p.x, p.y}); }
  void Add(const Vector2& v) { AddAll(std::array{v.x, v.y}); }
  void Add(const Point3& p) { AddAll(std::array{p.x, p.y, p.z}); }
  void Add(const Vector3& v) { AddAll(std::array{v.x, v.y, v.z}); }

  void Add(const std::string& value) {
    Add(value.size());
    text += value;
  }

  template <class T>
  void Add(const std::vector<T>& list) {
    Add(list.size());
    for (const T& value : list) Add(value);
  }

  void Add(const Transform3& t) {
    AddAxes(t);
    Add(t.origin);
  }

  void AddAxes(const Transform3& t) {
    Add(t.x);
    Add(t.y);
    Add(t.z);
  }

  void Add(const ContourArc& arc) {
    Add(arc.edge);
    Add(arc.through);
  }

  void Add(const Contour& contour) {
    Add(contour.points);
    Add(contour.arcs);
  }

  void Add(const Region& region) {
    Add(region.outer);
    Add(region.holes);
  }

  void Add(const ProfilePointer& profile) {
    Add(profile != nullptr);
    if (profile == nullptr) return;
    Add(profile->name);
    Add(static_cast<std::size_t>(profile->shape));
    AddAll(profile->parameters);
    Add(profile->position.x);
    Add(profile->position.y);
    Add(profile->position.origin);
    Add(profile->regions);
  }

  void Add(const SpaceCurve& curve) {
    Add(curve.points);
    Add(curve.arcs.size());
    for (const auto& [edge, through] : curve.arcs) {
      Add(edge);
      Add(through);
    }
    Add(curve.isClosed);
  }

  // The solids that are read directly; of others only the boundary counts.
  void Add(const Extrusion& form) {
    Add(form.profile);
    Add(form.endProfile);
    Add(form.position);
    Add(form.direction);
    Add(form.depth);
  }

  void Add(const Revolution& form) {
    Add(form.profile);
    Add(form.position);
    Add(form.axisPoint);
    Add(form.axis);
    Add(form.angle);
  }

  void Add(const SweptDisk& form) {
    Add(form.directrix);
    Add(form.radius);
    Add(form.innerRadius);
  }

  void Add(const SweptCurve& form) {
    Add(form.profile);
    Add(form.position);
    Add(form.directrix);
    Add(form.reference);
  }

  template <class Form>
  void AddForm(const Form& form) {
    if constexpr (requires(KeyWriter & writer) { writer.Add(form); }) Add(form);
  }

  // Points are in local coordinates.
  void Add(const Mesh& mesh, const Vector3& centre) {
    Add(mesh.points.size());
    for (const Point3& p : mesh.points) Add(p + -centre);
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

  std::string Take() { return std::move(text); }

 private:
  template <std::size_t n>
  void AddAll(const std::array<double, n>& values) {
    AddBytes(values.data(), n * sizeof values[0]);
  }

  void AddBytes(const void* first, std::size_t count) {
    text.append(static_cast<const char*>(first), count);
  }

  std::string text;
};

void AddProduct(KeyWriter& key, const Subject& subject) {
  key.Add(static_cast<std::size_t>(subject.role));
  const ProductFacts* const product = subject.product;
  key.Add(product != nullptr);
  if (product == nullptr) return;
  key.AddAxes(product->placement);
  const bool hasAxis = product->axis && product->axis->points.size() >= 2;
  key.Add(hasAxis);
  if (hasAxis) key.Add(product->axis->points.back() - product->axis->points.front());
}

void AddBody(KeyWriter& key, const EvaluatedBody& body, const Vector3& centre) {
  key.Add(body.volume);
  key.Add(body.isClosed);
  key.Add(body.isExact);
  key.Add(body.hasBoolean);
  key.Add(body.isSurfaceModel);
  key.Add(body.solidCount);
  key.Add(body.mesh, centre);
}

void AddSolid(KeyWriter& key, const SingleSolid& single, const Vector3& centre) {
  key.Add(single.solid != nullptr);
  if (single.solid == nullptr) return;
  key.Add(single.hasBoolean);
  Transform3 toLocal = single.transform;
  toLocal.origin = toLocal.origin + -centre;
  key.Add(toLocal);
  key.Add(single.solid->form.index());
  std::visit([&](const auto& form) { key.AddForm(form); }, single.solid->form);
}

}  // namespace

std::string ReadingKey(const Subject& subject, const EvaluatedBody& body,
                       const SingleSolid& single) {
  if (body.mesh.points.size() > kMostPoints) return {};
  const Vector3& centre = subject.boundary.Centre();
  KeyWriter key;
  AddProduct(key, subject);
  AddBody(key, body, centre);
  AddSolid(key, single, centre);
  std::string text = key.Take();
  if (text.size() > kMostBytes) text.clear();
  return text;
}

}  // namespace KelIFC::building::idealising
