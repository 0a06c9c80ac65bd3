#include "export/view/display_arrays.h"

#include <span>

namespace KelIFC::exporting {
namespace {

constexpr std::size_t kNumbersOfMesh = 6;
constexpr std::size_t kNumbersOfRoundEdges = 2;
constexpr std::size_t kNumbersOfMatrix = 12;
constexpr std::size_t kNumbersOfLoop = 4;

std::vector<std::uint32_t> NumbersOf(const std::vector<DisplayMesh>& meshes) {
  std::vector<std::uint32_t> numbers;
  numbers.reserve(meshes.size() * kNumbersOfMesh);
  for (const DisplayMesh& mesh : meshes) {
    numbers.insert(numbers.end(), {mesh.firstVertex, mesh.vertexCount, mesh.firstTriangle,
                                   mesh.triangleCount, mesh.firstEdge, mesh.edgeCount});
  }
  return numbers;
}

std::vector<std::uint32_t> RoundEdgesOf(const std::vector<DisplayMesh>& meshes) {
  std::vector<std::uint32_t> numbers;
  numbers.reserve(meshes.size() * kNumbersOfRoundEdges);
  for (const DisplayMesh& mesh : meshes) {
    numbers.insert(numbers.end(), {mesh.firstRoundEdge, mesh.roundEdgeCount});
  }
  return numbers;
}

void AppendVector(std::vector<float>& numbers, const Vector3& v) {
  numbers.insert(numbers.end(),
                 {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)});
}

// The page gets the translation relative to the origin, because a float has only seven digits.
std::vector<float> NumbersOf(const std::vector<DisplayMatrix>& matrices, const Point3& origin) {
  std::vector<float> numbers;
  numbers.reserve(matrices.size() * kNumbersOfMatrix);
  for (const DisplayMatrix& matrix : matrices) {
    AppendVector(numbers, matrix.x);
    AppendVector(numbers, matrix.y);
    AppendVector(numbers, matrix.z);
    AppendVector(numbers, matrix.origin - origin);
  }
  return numbers;
}

std::vector<std::uint32_t> NumbersOf(const std::vector<DisplayLoop>& loops) {
  std::vector<std::uint32_t> numbers;
  numbers.reserve(loops.size() * kNumbersOfLoop);
  for (const DisplayLoop& loop : loops) {
    numbers.insert(numbers.end(), {loop.element, loop.firstPoint, loop.pointCount,
                                   static_cast<std::uint32_t>(loop.kind)});
  }
  return numbers;
}

}  // namespace

DisplayArrays::DisplayArrays(const DisplayModel& model)
    : model(model),
      meshes(NumbersOf(model.meshes)),
      meshRoundEdges(RoundEdgesOf(model.meshes)),
      elementMatrix(NumbersOf(model.elementMatrix, model.origin)),
      loops(NumbersOf(model.loops)) {}

std::vector<ContainerArray> DisplayArrays::GetArrays() const {
  return {{"positions", std::span(model.positions)},
          {"triangles", std::span(model.triangles)},
          {"edges", std::span(model.edges)},
          {"roundEdges", std::span(model.roundEdges)},
          {"meshes", std::span(meshes)},
          {"meshRoundEdges", std::span(meshRoundEdges)},
          {"elementMesh", std::span(model.elementMesh)},
          {"elementMatrix", std::span(elementMatrix)},
          {"loops", std::span(loops)},
          {"loopPoints", std::span(model.loopPoints)}};
}

}  // namespace KelIFC::exporting
