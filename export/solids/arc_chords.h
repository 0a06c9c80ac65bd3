#ifndef EXPORT_SOLIDS_ARC_CHORDS_H_
#define EXPORT_SOLIDS_ARC_CHORDS_H_

#include <vector>

#include "kelifc/geometry/point.h"

namespace KelIFC::exporting {

/// Appends the points of an arc of a circle after `from`, up to `to`. The chords between them are
/// at most 1 mm from the arc; there are 2 to 200 of them. If the three points are on a straight
/// line, only `to` is appended.
void AppendArc(std::vector<Point3>& points, const Point3& from, const Point3& through,
               const Point3& to);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SOLIDS_ARC_CHORDS_H_
