#ifndef KELIFC_BUILDING_BUILD_IDEALISE_STRIP_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_STRIP_H_

#include <optional>

#include "kelifc/building/profile.h"

namespace KelIFC::building::idealising {

/// The long sides of a region with two straight ends. Both go from the same end to the other.
struct Strip {
  Outline left;
  Outline right;
};

/// The strip whose four corners are the points at which an outline turns sharply. Each side has at
/// least three points. None if the outline has another form. Linear time.
std::optional<Strip> FindStrip(const Outline& outline);

/// The strip whose sides are parallel and have the same number of points, at least three. It may
/// turn sharply. None if the outline has another form, or very many points.
std::optional<Strip> FindParallelStrip(const Outline& outline);

/// A circle in the plane, in metres.
struct PlaneCircle {
  Point2 centre;
  double radius = 0.0;
};

/// The circles of the two sides of a strip, which have the same centre.
struct StripCircles {
  PlaneCircle left;
  PlaneCircle right;

  /// The largest distance between a circle and the chords that stand for it.
  double chordError = 0.0;
};

/// The circles on which all points of a strip lie, within 1 mm. None if there are no such circles,
/// or a side has fewer than four points.
std::optional<StripCircles> FindCircles(const Strip& strip);

/// Chords with a larger chord error are no arc, in metres. It is smaller than the deviation that
/// makes an element approximate.
constexpr double kLargestChordError = 3e-3;

/// The strip of an outline whose sides are arcs, with their circles. Chords that are broken in two
/// nearly straight edges count as one. None if the sides are no arcs, or their chords are too long.
struct ArcStrip {
  Strip strip;
  StripCircles circles;
};
std::optional<ArcStrip> FindArcStrip(const Outline& outline);

/// The distance within which points lie on a circle, in metres.
constexpr double kOnCircle = 1e-3;

inline Point2 Between(const Point2& a, const Point2& b) { return a + (b - a) * 0.5; }

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_STRIP_H_
