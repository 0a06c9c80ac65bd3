#ifndef EXPORT_VIEW_DISPLAY_ARRAYS_H_
#define EXPORT_VIEW_DISPLAY_ARRAYS_H_

#include <cstdint>
#include <vector>

#include "export/solids/display_model.h"
#include "export/view/container.h"

namespace KelIFC::exporting {

/// The arrays of a container that show a display model.
class DisplayArrays {
 public:
  /// Refers to the arrays of the model, which the caller keeps, and copies the others.
  explicit DisplayArrays(const DisplayModel& model);

  /// The arrays, in the order of the container. They are valid as long as this object.
  std::vector<ContainerArray> GetArrays() const;

 private:
  const DisplayModel& model;
  std::vector<std::uint32_t> meshes;
  std::vector<std::uint32_t> meshRoundEdges;
  std::vector<float> elementMatrix;
  std::vector<std::uint32_t> loops;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_DISPLAY_ARRAYS_H_
