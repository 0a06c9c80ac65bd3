#ifndef KELIFC_BUILDING_BUILD_IDEALISE_STRIP_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_STRIP_H_

#include <optional>

#include "kelifc/building/building.h"
#include "kelifc/building/profile.h"

namespace KelIFC::building::idealising {

/// The long sides of a strip of the plane, both from the same end to the other.
struct Strip {
  Outline left;
  Outline right;
};

/// Finds the long sides of an outline that has four corners. None if it has more or fewer, or if
/// its sides have no bends.
std::optional<Strip> FindStrip(const Outline& outline);

/// The line in the middle of a strip: an arc by its start, a point between and its end, or a
/// polyline.
struct MiddleLine {
  CurveForm curve = CurveForm::kArc;
  Outline points;
  double thickness = 0.0;
};

/// None if the strip is neither an arc nor a line with bends that has the same thickness
/// everywhere.
std::optional<MiddleLine> MiddleOf(const Strip& strip);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_STRIP_H_
