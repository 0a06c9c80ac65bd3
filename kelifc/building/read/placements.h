#ifndef KELIFC_BUILDING_READ_PLACEMENTS_H_
#define KELIFC_BUILDING_READ_PLACEMENTS_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/facts/transform3.h"
#include "kelifc/building/read/read_context.h"

namespace KelIFC::building {

/// A coordinate of more than this, in metres, counts as not finite: products of such numbers lose
/// all meaning.
constexpr double kLargestReadable = 1e12;

/// True if all coordinates are numbers up to kLargestReadable.
bool IsReadable(const Point3& point);

/// A point in metres; z is 0 for a point of the plane. None, and `why`, if it cannot be read.
std::optional<Point3> ReadPoint(ReadContext& context, const Instance& point, Unreadable& why);

/// A unit vector; none if the instance is not a direction, or its length is 0 or not finite.
std::optional<Vector3> ReadDirection(const Instance& direction);

/// The axes of a placement as ISO 10303-42 defines them: z, and x made square to it. A missing or
/// zero z is that of the world. A missing x, and one parallel to z, is the x axis of the world, or
/// its y axis if z is parallel to x.
Transform3 MakeAxes(const Point3& origin, std::optional<Vector3> z, std::optional<Vector3> x);

/// The map of an axis placement in the plane or in space.
std::optional<Transform3> ReadAxes(ReadContext& context, const Instance& placement,
                                   Unreadable& why);

/// The same for an attribute. An unset one is the identity.
std::optional<Transform3> ReadAxes(ReadContext& context, const Instance& from, Attribute attribute,
                                   Unreadable& why);

/// The map of a transformation operator, with its scales; it may mirror. An unset axis is derived
/// from the others.
std::optional<Transform3> ReadOperator(ReadContext& context, const Instance& transformation,
                                       Unreadable& why);

/// The inverse of a map whose axes are unit vectors, square to each other.
Transform3 InverseOfAxes(const Transform3& axes);

/// The places of products in the world. Each placement is computed once, however many products are
/// placed relative to it; a chain of any length takes no stack.
class PlacementReader {
 public:
  explicit PlacementReader(ReadContext& reading) : context(reading) {}

  /// The map to the world. None, and `why`, if a placement of the chain is dangling, cyclic, of an
  /// entity that is not known, or not finite.
  std::optional<Transform3> Read(const Instance& placement, Unreadable& why);

 private:
  struct Entry {
    bool isComplete = false;  // false while its chain is followed
    std::optional<Transform3> toWorld;
    Unreadable why;
  };

  Entry Complete(const Instance& placement, const Entry* parent);

  ReadContext& context;
  NumberMap<Entry> entries;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_PLACEMENTS_H_
