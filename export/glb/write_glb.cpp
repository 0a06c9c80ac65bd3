#include "export/glb/write_glb.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "export/glb/binary_chunk.h"
#include "export/glb/scene_text.h"
#include "export/output_file.h"
#include "export/solids/display_model.h"

namespace KelIFC::exporting {
namespace {

constexpr std::uint32_t kVersion = 2;
constexpr std::uint64_t kHeaderSize = 12;
constexpr std::uint64_t kChunkHeaderSize = 8;

std::string HeaderOf(std::string_view name, std::uint32_t first, std::uint32_t second) {
  std::string bytes(name);
  AppendLittleEndian(bytes, first);
  AppendLittleEndian(bytes, second);
  return bytes;
}

/// The header of a chunk. `type` has 4 characters.
std::string ChunkHeaderOf(std::uint64_t size, std::string_view type) {
  std::string bytes;
  AppendLittleEndian(bytes, static_cast<std::uint32_t>(size));
  bytes += type;
  return bytes;
}

ExportResult ResultOf(const DisplayModel& model) {
  ExportResult result;
  const auto missing = static_cast<std::size_t>(
      std::count(model.elementMesh.begin(), model.elementMesh.end(), kNoDisplayMesh));
  result.elements = model.elementMesh.size() - missing;
  if (missing > 0) result.omissions.push_back({"elements without a solid", missing});
  return result;
}

}  // namespace

ExportResult WriteGlb(const Building& building, const ExportOptions& options) {
  const DisplayModel model = MakeDisplayModel(building, options);
  const GlbLayout layout = LayOut(model);
  std::string scene = SceneTextOf(building, model, layout, options);
  scene.append((4 - scene.size() % 4) % 4, ' ');
  const bool hasBinary = layout.Size() > 0;
  const std::uint64_t size = kHeaderSize + kChunkHeaderSize + scene.size() +
                             (hasBinary ? kChunkHeaderSize + layout.Size() : 0);
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw ExportError(ExportFailure::kFile,
                      "cannot write " + options.path + ": the format is limited to 4 GB");
  }
  OutputFile file(options.path);
  file.Write(HeaderOf("glTF", kVersion, static_cast<std::uint32_t>(size)));
  file.Write(ChunkHeaderOf(scene.size(), "JSON"));
  file.Write(scene);
  if (hasBinary) {
    file.Write(ChunkHeaderOf(layout.Size(), std::string_view("BIN\0", 4)));
    WriteBinary(model, layout, options, file);
  }
  file.Commit();
  return ResultOf(model);
}

}  // namespace KelIFC::exporting
