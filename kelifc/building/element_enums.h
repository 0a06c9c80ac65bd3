#ifndef KELIFC_BUILDING_ELEMENT_ENUMS_H_
#define KELIFC_BUILDING_ELEMENT_ENUMS_H_

#include <cstdint>
#include <string_view>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// How an element of a building is idealised.
enum class ElementKind : std::uint8_t {
  kMember,   ///< a line with a profile
  kSurface,  ///< a plane region with a thickness, or a curved wall
  kBody,     ///< neither of them: only the boundary is known
};

/// What the body of an element was made from.
enum class BodySource : std::uint8_t {
  kExtrusion,     ///< a profile that is swept along a direction
  kTapered,       ///< an extrusion from a profile to another one
  kRevolved,      ///< a profile that is turned about an axis
  kSweptDisk,     ///< a disk or a ring that is swept along a curve
  kSweptCurve,    ///< a profile that is swept along a curve
  kBoolean,       ///< the result of boolean operations
  kBrep,          ///< the boundary of a solid
  kSurfaceModel,  ///< a surface model, which need not be closed
  kMulti,         ///< several items, or several separate regions
};

/// Why a product could not be read.
enum class LossReason : std::uint8_t {
  kNoRepresentation,    ///< the product has no shape and no parts that are products
  kNoItems,             ///< its representation has no items
  kUnsupportedItem,     ///< an item of a class that has no volume or is not known
  kUnsupportedProfile,  ///< a profile of a class that is not known
  kDangling,            ///< a reference to an instance that the file does not have
  kCycle,               ///< maps, booleans, curves or placements that contain themselves
  kDegenerate,          ///< a body without a volume: zero depth, zero area, zero direction
  kOpen,                ///< a boundary with so many gaps that no volume can be defined
  kSelfIntersecting,    ///< an outline or a boundary that crosses itself and has no inside
  kNotFinite,           ///< a coordinate or a size that is not a finite number
  kLimit,               ///< a limit of ReadingOptions
};

/// The form of the axis of a member, and of the base line of a curved wall.
enum class CurveForm : std::uint8_t {
  kLine,      ///< two points
  kArc,       ///< three points: start, a point between, end
  kPolyline,  ///< two or more points
};

/// The shape of a profile. ParametersOf returns its parameters.
enum class ProfileShape : std::uint8_t {
  kArbitrary,  ///< only the outline describes it
  kRectangle,
  kRoundedRectangle,
  kHollowRectangle,
  kCircle,
  kHollowCircle,
  kEllipse,
  kTrapezium,
  kI,            ///< both flanges are equal
  kAsymmetricI,  ///< the flanges differ
  kU,            ///< a channel: a web and two flanges on one side of it
  kL,            ///< an angle: two legs
  kT,
  kZ,
  kC,  ///< a channel with lips, made of sheet metal
};

/// What fills an opening.
enum class OpeningKind : std::uint8_t {
  kVoid,    ///< nothing, or neither a door nor a window
  kDoor,    ///< a door
  kWindow,  ///< a window
};

// The texts of the enumerators, as the command prints them. They are empty for a value that is no
// enumerator. They live as long as the library is loaded.

/// The text of a kind, such as "member".
KELIFC_API std::string_view TextOf(ElementKind kind);
/// The text of a source, such as "swept-disk".
KELIFC_API std::string_view TextOf(BodySource source);
/// The text of a reason, such as "no-representation".
KELIFC_API std::string_view TextOf(LossReason reason);
/// The text of a form, such as "polyline".
KELIFC_API std::string_view TextOf(CurveForm form);
/// The text of a shape, such as "hollow-rectangle".
KELIFC_API std::string_view TextOf(ProfileShape shape);
/// The text of a kind of opening, such as "door".
KELIFC_API std::string_view TextOf(OpeningKind kind);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_ELEMENT_ENUMS_H_
