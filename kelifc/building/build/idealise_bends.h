#ifndef KELIFC_BUILDING_BUILD_IDEALISE_BENDS_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_BENDS_H_

#include <cstddef>
#include <optional>

#include "kelifc/building/build/idealise_reading.h"
#include "kelifc/building/build/idealise_strip.h"

namespace KelIFC::building::idealising {

/// The strip in which the plane of its bends cuts a member. The plane goes through the origin.
struct Bends {
  PlaneFrame plane;
  Strip strip;
  std::size_t edge = 0;  ///< of the left side: the middle one of an arc, else the longest

  Vector3 Normal() const { return NormalOf(plane); }
  Point2 MiddleOfEdge() const { return Between(strip.left[edge], strip.left[edge + 1]); }
  Vector2 EdgeDirection() const {
    Vector2 direction = strip.left[edge + 1] - strip.left[edge];
    Normalise(direction);
    return direction;
  }
  Vector3 InSpace(const Vector2& v) const { return v.x * plane.x + v.y * plane.y; }
  Point3 AtLevel(const Point2& p, double level) const { return Lift(plane, p) + level * Normal(); }
};

/// The bends of a member in a plane square to a direction. None if the cut of the plane is no
/// strip.
std::optional<Bends> FindBends(Subject& subject, const Vector3& normal);

/// The level along the normal at which the strip is cut.
double LevelOfCut(const Subject& subject, const Bends& bends);

/// True if the line between the corners of an end runs through the centre of an arc.
bool IsRadial(const Point2& centre, const Point2& a, const Point2& b);

/// Reads a member along an arc with square ends whose section changes evenly with the angle. None
/// if its sections do not correspond, or have their centroids on no such arc.
std::optional<Reading> ReadTaperedArc(Subject& subject, const Bends& bends);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_BENDS_H_
