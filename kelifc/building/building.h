#ifndef KELIFC_BUILDING_BUILDING_H_
#define KELIFC_BUILDING_BUILDING_H_

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kelifc/building/element_enums.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/profile.h"
#include "kelifc/geometry/point.h"
#include "kelifc/server/release.h"

namespace KelIFC {

// The building model: all structural elements of a model, how exact each of them is, and the
// products that could not be read. A building is plain data. It can be copied, moved to another
// thread and kept after the model is destroyed.
//
// Unless a comment says otherwise, lengths are in metres, areas in square metres and volumes in
// cubic metres. Points are in the world coordinates of the model, with z upwards. Texts are UTF-8
// and empty if the file has none. `id` and the other members that name an instance hold the
// instance number; 0 means none.

/// The index of a material or of a profile in the lists of a building; none if there is none.
using BuildingIndex = std::optional<std::size_t>;

/// A box with edges parallel to the world axes. It is empty until it contains a point; `min` is
/// greater than `max` then.
struct BuildingBox {
  Point3 min{1e300, 1e300, 1e300};     ///< the corner with the smallest coordinates
  Point3 max{-1e300, -1e300, -1e300};  ///< the corner with the largest coordinates

  /// True if the box contains no point.
  bool IsEmpty() const { return min.x > max.x; }
};

/// A storey of the building.
struct BuildingStorey {
  std::size_t id = 0;  ///< the instance number of the storey
  std::string guid;    ///< the GlobalId: the 22 characters of the file
  std::string name;    ///< the name of the storey

  /// The world z of the origin of the placement. If the storey has no placement that can be read,
  /// the attribute `Elevation`. 0 if there is neither.
  double elevation = 0.0;
  bool hasElevation = false;  ///< false if neither can be read

  /// The distance to the next higher storey. None for the highest storey and for a storey without
  /// an elevation.
  std::optional<double> height;
};

/// A material that at least one element uses.
struct BuildingMaterial {
  std::string name;  ///< the name of the material
};

/// The plane that cuts a member at one end.
struct EndPlane {
  Point3 point;    ///< the point where the axis meets the plane
  Vector3 normal;  ///< the unit normal, which points out of the member
};

/// An element that is idealised as a line with a profile. The axes of the member are right-handed:
/// x is the tangent of the line, from the start to the end, and z is the cross product of x and y.
struct MemberAxis {
  CurveForm curve = CurveForm::kLine;  ///< how `points` are joined
  std::vector<Point3> points;          ///< from the start to the end
  std::size_t profile = 0;             ///< the index of the profile in Building::profiles
  BuildingIndex endProfile;            ///< the profile at the end of a tapered member; else none
  Vector3 y;                           ///< the unit vector of the profile's y axis at the start
  Vector2 offset;                      ///< the place (y, z) of the line in profile coordinates

  /// The planes that cut the start and the end. None if the end is square to the line.
  std::array<std::optional<EndPlane>, 2> ends;
};

/// An edge of an outline that is an arc of a circle.
struct OutlineArc {
  std::size_t edge = 0;  ///< the index of the point at which the edge starts
  Point3 through;        ///< a point of the arc between its ends
};

/// A layer of the material of a wall or a slab.
struct MaterialLayer {
  BuildingIndex material;  ///< the index in Building::materials; none if the layer has no material
  double thickness = 0.0;  ///< 0 if the file states none
};

/// A curved wall: a rectangle that is swept along a curve. The curve lies in the middle of the
/// thickness, at the lower edge.
struct WallSweep {
  CurveForm curve = CurveForm::kArc;  ///< how `points` are joined
  std::vector<Point3> points;         ///< from the start to the end of the wall
  Vector3 direction;                  ///< the unit vector from the lower to the upper edge
  double height = 0.0;                ///< the extent of the wall along `direction`
};

/// An element that is idealised as a plane region with a thickness, or as a curved wall.
struct SurfaceRegion {
  /// The points of the outer edge in the middle plane, counter-clockwise seen against `normal`. The
  /// first point is not repeated.
  std::vector<Point3> outline;
  std::vector<OutlineArc> arcs;  ///< the edges of `outline` that are arcs, by rising edge

  /// The holes that go through the body, clockwise, with arcs replaced by chords. Openings are not
  /// among them.
  std::vector<std::vector<Point3>> holes;

  /// The unit normal of the middle plane. Of a slab or a plate it does not point downwards. Of a
  /// wall it points in the direction in which the layers follow each other, or to the left of its
  /// axis.
  Vector3 normal;
  double thickness = 0.0;  ///< the extent along `normal`; half of it lies on each side of the plane

  /// The signed distance along `normal` from the reference plane of the file to the middle plane. 0
  /// if the file has no reference plane that is parallel to the surface.
  double reference = 0.0;

  /// The layers in the direction of `normal`. If the file does not state their direction, and in a
  /// curved wall, they are in the order of the file. Empty if there are none.
  std::vector<MaterialLayer> layers;

  /// The curve and the height of a curved wall. Only `thickness` and `layers` are set beside it.
  /// None if the surface is plane.
  std::optional<WallSweep> sweep;
};

/// An opening that voids an element.
struct BuildingOpening {
  std::size_t id = 0;                     ///< the instance number of the opening
  std::string guid;                       ///< the GlobalId: the 22 characters of the file
  OpeningKind kind = OpeningKind::kVoid;  ///< what fills the opening
  std::size_t fill = 0;  ///< the instance number of what fills it; 0 if nothing does

  /// The section of the opening: in a plane surface with the middle plane of the surface, otherwise
  /// halfway through the opening. Empty if the body of the opening cannot be read.
  std::vector<Point3> outline;
  double depth = 0.0;  ///< the extent square to the outline; 0 if the body cannot be read
};

/// The body of an element as it was read. Openings are not subtracted.
struct BuildingBody {
  BuildingBox box;        ///< the box of the boundary
  double volume = 0.0;    ///< the volume; it has no meaning if the body is not closed
  bool isClosed = false;  ///< true if the boundary has no gaps

  /// The boundary. Null if ReadingOptions::keptBodies leaves it out. Copies of a building share it.
  std::shared_ptr<const Mesh> mesh;
};

/// A product with geometry.
struct BuildingElement {
  std::size_t id = 0;     ///< the instance number of the product
  std::string className;  ///< the entity, such as "IfcColumn"
  std::string guid;       ///< the GlobalId: the 22 characters of the file
  std::string name;       ///< the name of the product
  std::string tag;        ///< the tag: the identifier that the writing application uses
  std::string type;       ///< the predefined type, such as "BASESLAB"

  /// The instance number of the storey that contains the element, directly or through its whole or
  /// a space.
  std::size_t storey = 0;

  /// The instance number of the storey in which the element is by its height: by the lowest point
  /// of its body, or by the upper face of a horizontal slab. 0 if no storey has an elevation.
  std::size_t storeyByHeight = 0;
  std::size_t partOf = 0;  ///< the instance number of the element that this one is a part of

  /// The index in Building::materials: the first material of a list, or the material of the
  /// thickest layer. None if the element has no material.
  BuildingIndex material;

  ElementKind kind = ElementKind::kBody;  ///< how the element is idealised
  BodySource source = BodySource::kBrep;  ///< what the body was made from
  std::size_t mappedDepth = 0;            ///< how many nested mapped items lead to the body

  /// The largest distance between the idealised solid and the body, at least 0. Vertices of
  /// cut-outs are excepted.
  double deviation = 0.0;

  /// The volume of the idealised solid, divided by the volume of the body. None if the body is not
  /// closed.
  std::optional<double> volumeRatio;

  /// True if the deviation is more than 5 mm, if the volumes differ by more than 2 % and no
  /// cut-outs explain it, if `volumeRatio` is none, or if a boolean operation of the body failed.
  bool isApproximate = false;
  std::size_t cutouts = 0;  ///< copes, notches and holes of the body that the idealised solid lacks

  BuildingBox box;      ///< the box of the idealised solid; of the kind kBody that of the body
  double volume = 0.0;  ///< the volume of the idealised solid; of the kind kBody that of the body
  BuildingBody body;    ///< the body as it was read
  std::vector<BuildingOpening> openings;  ///< in the order of the file; they are not subtracted

  std::optional<MemberAxis> member;      ///< set for the kind kMember only
  std::optional<SurfaceRegion> surface;  ///< set for the kind kSurface only
};

/// A product that could not be read.
struct BuildingLoss {
  std::size_t id = 0;     ///< the instance number of the product
  std::size_t line = 0;   ///< the line of the product in the file, from 1; 0 if it is not known
  std::string className;  ///< the entity, such as "IfcColumn"
  std::string guid;       ///< the GlobalId: the 22 characters of the file
  std::string name;       ///< the name of the product
  LossReason reason = LossReason::kNoRepresentation;  ///< why the product could not be read
  std::size_t at = 0;  ///< the instance number of the instance at fault
};

/// A product that is neither an element nor a loss: a whole without a body whose parts are
/// products.
struct BuildingWhole {
  std::size_t id = 0;     ///< the instance number of the product
  std::string className;  ///< the entity, such as "IfcSlab"
};

/// How many products became what. members + surfaces + bodies + decomposed + lost == products.
struct BuildingTotals {
  std::size_t products = 0;     ///< all products
  std::size_t members = 0;      ///< elements of the kind kMember
  std::size_t surfaces = 0;     ///< elements of the kind kSurface
  std::size_t bodies = 0;       ///< elements of the kind kBody
  std::size_t decomposed = 0;   ///< wholes without a body whose parts are products
  std::size_t lost = 0;         ///< products that could not be read
  std::size_t approximate = 0;  ///< elements that are approximate; each counts by its kind, too
};

/// The unit of length of the file.
struct BuildingLengthUnit {
  std::string name;     ///< in upper case, such as "FOOT"; "METRE" if the file states none
  double metres = 1.0;  ///< the length of one unit in metres
};

/// What was read of a model. It has no pointers into the model.
struct Building {
  IFC_RELEASE release = IFC_RELEASE_NONE;  ///< IFC_RELEASE_NONE if the release cannot be read
  std::string schema;                      ///< the schema as the file names it, such as "IFC2X3"
  std::string application;  ///< the full name of the application that wrote the model
  std::string projectGuid;  ///< the GlobalId of the project

  /// The unit vector to true north in the plane of the world's x and y. None if the file states
  /// none.
  std::optional<Vector2> trueNorth;
  BuildingLengthUnit lengthUnit;            ///< the unit of the file, not of the building
  std::vector<BuildingStorey> storeys;      ///< by elevation; equal ones in the order of the file
  std::vector<BuildingMaterial> materials;  ///< in the order of their first use
  std::vector<BuildingProfile> profiles;    ///< in the order of their first use
  std::vector<BuildingElement> elements;    ///< in the order of the file
  std::vector<BuildingWhole> decomposed;    ///< in the order of the file
  std::vector<BuildingLoss> losses;         ///< in the order of the file
  BuildingTotals totals;                    ///< counts of the lists above
};

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_BUILDING_H_
