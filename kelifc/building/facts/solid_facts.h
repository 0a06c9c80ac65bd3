#ifndef KELIFC_BUILDING_FACTS_SOLID_FACTS_H_
#define KELIFC_BUILDING_FACTS_SOLID_FACTS_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "kelifc/building/element_enums.h"
#include "kelifc/building/facts/contour.h"
#include "kelifc/building/facts/profile_facts.h"
#include "kelifc/building/facts/transform3.h"
#include "kelifc/building/mesh.h"

namespace KelIFC::building {

// What a file says of the shape of an item, without the classes of a release. Lengths are in
// metres, angles in radians, in the coordinates of the item. Solids are shared: an item that
// several products or maps use is read once.

struct Solid;
using SolidPointer = std::shared_ptr<const Solid>;
using ProfilePointer = std::shared_ptr<const ProfileFacts>;

/// A region of the plane of x and y of `position`, swept along a direction of its coordinates.
struct Extrusion {
  ProfilePointer profile;
  ProfilePointer endProfile;  ///< of a tapered extrusion; null otherwise
  Transform3 position;
  Vector3 direction{0.0, 0.0, 1.0};  ///< unit vector in the coordinates of `position`
  double depth = 0.0;
};

/// A region of the plane of x and y of `position`, turned about an axis of that plane.
struct Revolution {
  ProfilePointer profile;
  Transform3 position;
  Point3 axisPoint;    ///< in the coordinates of `position`
  Vector3 axis;        ///< unit vector
  double angle = 0.0;  ///< counter-clockwise about the axis; at most a full turn
};

/// A curve in space as points; the edges that are arcs name a point between their ends.
struct SpaceCurve {
  std::vector<Point3> points;
  std::vector<std::pair<std::size_t, Point3>> arcs;  ///< edge, point of the arc; by rising edge
  bool isClosed = false;                             ///< the first point is not repeated
};

/// A disk, or a ring, whose centre moves along a curve.
struct SweptDisk {
  SpaceCurve directrix;
  double radius = 0.0;
  double innerRadius = 0.0;  ///< 0 for a disk without a hole
};

/// A profile that moves along a curve. The plane of the profile stays square to the curve, and its
/// x axis stays square to `reference` (a fixed reference direction or the normal of a surface).
struct SweptCurve {
  ProfilePointer profile;
  Transform3 position;
  SpaceCurve directrix;
  Vector3 reference{0.0, 0.0, 1.0};
};

/// Shells of plane faces. The outer shell comes first, the others are its voids.
struct Shells {
  std::vector<Mesh> shells;
  bool isSurface = false;  ///< of a surface model, which need not be closed
};

/// All of space on one side of a plane, or the part of it that lies above a region of the plane of
/// x and y of `position`, swept along z of it in both directions without an end.
struct HalfSpace {
  Point3 point;
  Vector3 normal;  ///< unit vector that points out of the half-space
  std::optional<Region> boundary;
  Transform3 position;
};

enum class BooleanOperation : std::uint8_t { kUnion, kIntersection, kDifference };

struct BooleanResult {
  BooleanOperation operation = BooleanOperation::kDifference;
  SolidPointer first;
  SolidPointer second;
};

/// Other items, moved by a transform.
struct MappedItems {
  Transform3 transform;
  std::vector<SolidPointer> items;
};

/// A box with a corner at the origin of `position`, a cylinder or cone about its z axis, a pyramid
/// on the plane of x and y, or a sphere about the origin.
struct Primitive {
  enum class Form : std::uint8_t { kBlock, kPyramid, kCylinder, kCone, kSphere };
  Form form = Form::kBlock;
  Transform3 position;
  std::array<double, 3> sizes = {};  ///< x, y, z; for a round one: radius, radius, height
};

/// An item that cannot be read, and why.
struct Unreadable {
  LossReason reason = LossReason::kUnsupportedItem;
  std::size_t at = 0;  ///< the instance at fault
};

struct Solid {
  std::size_t id = 0;  ///< of the item
  std::variant<Unreadable, Extrusion, Revolution, SweptDisk, SweptCurve, Shells, HalfSpace,
               BooleanResult, MappedItems, Primitive>
      form;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_SOLID_FACTS_H_
