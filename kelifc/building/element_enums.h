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
  kBody,     ///< neither: only the boundary is known
};

/// What the body of an element was made from.
enum class BodySource : std::uint8_t {
  kExtrusion,
  kTapered,
  kRevolved,
  kSweptDisk,
  kSweptCurve,
  kBoolean,
  kBrep,
  kSurfaceModel,
  kMulti,  ///< several items, or several separate regions
};

/// Why a product could not be read.
enum class LossReason : std::uint8_t {
  kNoRepresentation,    ///< the product has no shape, and no parts that are products
  kNoItems,             ///< its representation has no items
  kUnsupportedItem,     ///< an item of a class without a volume or one that is not known
  kUnsupportedProfile,  ///< an extrusion of a profile that is not known
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

/// The shape of a profile. The parameters of each are listed at ProfileParameter.
enum class ProfileShape : std::uint8_t {
  kArbitrary,  ///< only the outline describes it
  kRectangle,
  kRoundedRectangle,
  kHollowRectangle,
  kCircle,
  kHollowCircle,
  kEllipse,
  kTrapezium,
  kI,
  kAsymmetricI,
  kU,
  kL,
  kT,
  kZ,
  kC,
};

/// What fills an opening.
enum class OpeningKind : std::uint8_t { kVoid, kDoor, kWindow };

// The texts of the enumerators, as the command prints them: "member", "swept-disk",
// "no-representation", "hollow-rectangle". The texts live as long as the library is loaded.

KELIFC_API std::string_view TextOf(ElementKind kind);
KELIFC_API std::string_view TextOf(BodySource source);
KELIFC_API std::string_view TextOf(LossReason reason);
KELIFC_API std::string_view TextOf(CurveForm form);
KELIFC_API std::string_view TextOf(ProfileShape shape);
KELIFC_API std::string_view TextOf(OpeningKind kind);

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_ELEMENT_ENUMS_H_
