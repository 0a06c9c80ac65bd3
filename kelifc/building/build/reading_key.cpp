#include "kelifc/building/build/reading_key.h"

#include "kelifc/building/solid/key_writer.h"

namespace KelIFC::building::idealising {
namespace {

// Larger bodies are hardly ever repeated, and their keys take memory.
constexpr std::size_t kMostPoints = 1000;

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
  key.Add(body.mesh, -centre);
}

template <class Form>
void AddIf(KeyWriter& key, const Solid& solid) {
  if (const auto* form = std::get_if<Form>(&solid.form)) key.Add(*form);
}

void AddSolid(KeyWriter& key, const SingleSolid& single, const Vector3& centre) {
  key.Add(single.solid != nullptr);
  if (single.solid == nullptr) return;
  key.Add(single.hasBoolean);
  Transform3 toLocal = single.transform;
  toLocal.origin = toLocal.origin + -centre;
  key.Add(toLocal);
  key.Add(single.solid->form.index());
  // Only these are read directly. Of others the boundary alone counts.
  AddIf<Extrusion>(key, *single.solid);
  AddIf<Revolution>(key, *single.solid);
  AddIf<SweptDisk>(key, *single.solid);
  AddIf<SweptCurve>(key, *single.solid);
}

}  // namespace

bool MakeReadingKey(const Subject& subject, const EvaluatedBody& body, const SingleSolid& single,
                    std::string& key) {
  if (body.mesh.points.size() > kMostPoints) return false;
  const Vector3& centre = subject.boundary.Centre();
  KeyWriter writer(key);
  AddProduct(writer, subject);
  AddBody(writer, body, centre);
  AddSolid(writer, single, centre);
  return writer.IsUsable();
}

}  // namespace KelIFC::building::idealising
