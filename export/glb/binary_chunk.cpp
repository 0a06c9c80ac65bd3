#include "export/glb/binary_chunk.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <string>

#include "export/report_progress.h"

namespace KelIFC::exporting {
namespace {

/// Index 65535 is reserved, so a mesh of more vertices needs long indices.
constexpr std::uint32_t kMostVerticesOfShortIndices = 65535;
constexpr std::uint64_t kPositionBytes = 12;
constexpr std::size_t kMeshesPerReport = 256;

void FindBounds(const DisplayModel& model, const DisplayMesh& mesh, GlbMesh& result) {
  const float* const first = model.positions.data() + std::size_t{3} * mesh.firstVertex;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    result.min[axis] = first[axis];
    result.max[axis] = first[axis];
    for (std::size_t i = 1; i < mesh.vertexCount; ++i) {
      result.min[axis] = std::min(result.min[axis], first[3 * i + axis]);
      result.max[axis] = std::max(result.max[axis], first[3 * i + axis]);
    }
  }
}

/// Writes the indices of the meshes that have short ones, or of the others.
template <typename Index>
void WriteIndices(const DisplayModel& model, const GlbLayout& layout, bool isShort,
                  OutputFile& file) {
  std::string bytes;
  for (std::size_t i = 0; i < model.meshes.size(); ++i) {
    if (layout.meshes[i].hasShortIndices != isShort) continue;
    const DisplayMesh& mesh = model.meshes[i];
    bytes.clear();
    const std::uint32_t* const first = model.triangles.data() + std::size_t{3} * mesh.firstTriangle;
    for (std::size_t k = 0; k < std::size_t{3} * mesh.triangleCount; ++k) {
      AppendLittleEndian(bytes, static_cast<Index>(first[k]));
    }
    file.Write(bytes);
  }
}

}  // namespace

GlbLayout LayOut(const DisplayModel& model) {
  GlbLayout layout;
  layout.meshes.resize(model.meshes.size());
  for (std::size_t i = 0; i < model.meshes.size(); ++i) {
    const DisplayMesh& mesh = model.meshes[i];
    GlbMesh& result = layout.meshes[i];
    FindBounds(model, mesh, result);
    result.hasShortIndices = mesh.vertexCount <= kMostVerticesOfShortIndices;
    result.positionOffset = layout.positionSize;
    layout.positionSize += kPositionBytes * mesh.vertexCount;
    const std::uint64_t indices = std::uint64_t{3} * mesh.triangleCount;
    std::uint64_t& size = result.hasShortIndices ? layout.shortIndexSize : layout.longIndexSize;
    result.indexOffset = size;
    size += indices * (result.hasShortIndices ? sizeof(std::uint16_t) : sizeof(std::uint32_t));
  }
  return layout;
}

void WriteBinary(const DisplayModel& model, const GlbLayout& layout, const ExportOptions& options,
                 OutputFile& file) {
  std::string bytes;
  const std::size_t count = model.meshes.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (i % kMeshesPerReport == 0) ReportProgress(options, count + i, 2 * count);
    const DisplayMesh& mesh = model.meshes[i];
    bytes.clear();
    const float* const first = model.positions.data() + std::size_t{3} * mesh.firstVertex;
    for (std::size_t k = 0; k < std::size_t{3} * mesh.vertexCount; ++k) {
      AppendLittleEndian(bytes, std::bit_cast<std::uint32_t>(first[k]));
    }
    file.Write(bytes);
  }
  WriteIndices<std::uint32_t>(model, layout, false, file);
  WriteIndices<std::uint16_t>(model, layout, true, file);
  file.Write(std::string(
      layout.Size() - layout.positionSize - layout.longIndexSize - layout.shortIndexSize, '\0'));
  ReportProgress(options, 1, 1);
}

}  // namespace KelIFC::exporting
