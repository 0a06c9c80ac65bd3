#include "python/source/packed.h"

namespace KelIFC::python {

void Packer::Put(const Mesh& mesh) {
  Put(mesh.points);
  Put(mesh.FaceCount());
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    Put(mesh.LoopCount(face));
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      const Mesh::Loop indices = mesh.LoopOf(face, loop);
      Put(std::vector<Mesh::Index>(indices.begin(), indices.end()));
    }
  }
}

void Unpacker::Take(std::shared_ptr<const Mesh>& mesh) {
  bool isSet = false;
  Take(isSet);
  if (!isSet) return;
  const auto taken = std::make_shared<Mesh>();
  Take(taken->points);
  const std::size_t faceCount = TakeSize(1);
  for (std::size_t face = 0; face < faceCount; ++face) {
    taken->BeginFace();
    const std::size_t loopCount = TakeSize(1);
    for (std::size_t loop = 0; loop < loopCount; ++loop) {
      std::vector<Mesh::Index> indices;
      Take(indices);
      for (const Mesh::Index index : indices) {
        if (index >= taken->points.size())
          throw std::invalid_argument("the pickled data is damaged");
      }
      taken->AddLoop(indices);
    }
  }
  mesh = taken;
}

}  // namespace KelIFC::python
