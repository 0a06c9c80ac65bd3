#ifndef KELIFC_BUILDING_BUILD_IDEALISE_SLICES_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_SLICES_H_

#include <optional>
#include <vector>

#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

/// Reads a subject from its boundary alone: tries the directions in which it may have been swept,
/// the most promising first, as a member along each and as a surface square to each. `hints` are
/// further directions to try. Of a boundary of several parts only few directions are tried, since
/// it is hardly ever a prism.
std::optional<Reading> ReadBySlices(Subject& subject, const std::vector<Vector3>& hints,
                                    bool isSeveral);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_SLICES_H_
