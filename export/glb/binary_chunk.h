#ifndef EXPORT_GLB_BINARY_CHUNK_H_
#define EXPORT_GLB_BINARY_CHUNK_H_

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "export/export.h"
#include "export/output_file.h"
#include "export/solids/display_model.h"

namespace KelIFC::exporting {

/// The place of a mesh in the binary chunk of a GLB file. Offsets are in bytes from the beginning
/// of the part.
struct GlbMesh {
  std::uint64_t positionOffset = 0;  ///< in the part of the positions
  std::uint64_t indexOffset = 0;     ///< in the part of short or of long indices
  bool hasShortIndices = false;      ///< true if indices have 2 bytes, false if they have 4
  std::array<float, 3> min = {};     ///< the smallest coordinates
  std::array<float, 3> max = {};     ///< the largest coordinates
};

/// How the binary chunk is divided: positions, long indices, short indices. Sizes are in bytes.
/// Each part begins at a multiple of 4.
struct GlbLayout {
  std::vector<GlbMesh> meshes;  ///< by the mesh of the display model
  std::uint64_t positionSize = 0;
  std::uint64_t longIndexSize = 0;
  std::uint64_t shortIndexSize = 0;  ///< without the padding

  /// The size of the whole chunk with its padding.
  std::uint64_t Size() const { return positionSize + longIndexSize + (shortIndexSize + 3) / 4 * 4; }
};

/// Places all meshes of a display model.
GlbLayout LayOut(const DisplayModel& model);

/// Writes the binary chunk. It reports progress as a share of 0.5 to 1.
void WriteBinary(const DisplayModel& model, const GlbLayout& layout, const ExportOptions& options,
                 OutputFile& file);

/// Appends the bytes of a number, the lowest one first.
template <typename Number>
void AppendLittleEndian(std::string& bytes, Number number) {
  for (unsigned shift = 0; shift < 8 * sizeof(Number); shift += 8) {
    bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
  }
}

}  // namespace KelIFC::exporting

#endif  // EXPORT_GLB_BINARY_CHUNK_H_
