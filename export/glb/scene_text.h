#ifndef EXPORT_GLB_SCENE_TEXT_H_
#define EXPORT_GLB_SCENE_TEXT_H_

#include <string>

#include "kelifc/building/building.h"

#include "export/export.h"
#include "export/glb/binary_chunk.h"
#include "export/solids/display_model.h"

namespace KelIFC::exporting {

/// The JSON text of a glTF scene: the root node with y upwards, a node for each storey and one for
/// the elements without a storey, and below them a node for each element that has a mesh.
///
/// Nodes are in metres relative to a point in world coordinates, which is `origin` in the extras of
/// the root node. It is zero if the building lies within 10 km of the zero point; otherwise it is
/// the middle of the building, because viewers compute in single precision.
std::string SceneTextOf(const Building& building, const DisplayModel& model,
                        const GlbLayout& layout, const ExportOptions& options);

}  // namespace KelIFC::exporting

#endif  // EXPORT_GLB_SCENE_TEXT_H_
