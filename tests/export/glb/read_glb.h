#ifndef TESTS_EXPORT_GLB_READ_GLB_H_
#define TESTS_EXPORT_GLB_READ_GLB_H_

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace KelIFC::exporting {

/// A GLB file that was read.
struct GlbFile {
  nlohmann::json scene;
  std::string binary;  ///< empty if there is no binary chunk

  /// The numbers of an accessor.
  std::vector<double> NumbersOf(std::size_t accessor) const;

  /// The signed volume of the mesh of a node under its scale.
  double VolumeOf(const nlohmann::json& node) const;

  /// The nodes that have a mesh.
  std::vector<nlohmann::json> ElementNodes() const;
};

/// Reads a file. Throws std::runtime_error if a header or a size is wrong.
GlbFile ReadGlb(const std::string& path);

}  // namespace KelIFC::exporting

#endif  // TESTS_EXPORT_GLB_READ_GLB_H_
