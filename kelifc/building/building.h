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

// The building model: all structural elements of a model, how exact each is, and what could not be
// read. It is plain data: it can be copied, moved to another thread and kept after the model that
// it was read from is gone.
//
// Lengths are in metres, points are in the world coordinates of the model, z points up. Texts are
// UTF-8. An instance number of 0 is no instance.

/// An index of a material, a profile or a storey in the lists of a building.
using BuildingIndex = std::optional<std::size_t>;

/// An axis-aligned box. It is empty, with min greater than max, before the first point.
struct BuildingBox {
  Point3 min{1e300, 1e300, 1e300};
  Point3 max{-1e300, -1e300, -1e300};

  bool IsEmpty() const { return min.x > max.x; }
};

struct BuildingStorey {
  std::size_t id = 0;
  std::string guid;
  std::string name;
  double elevation = 0.0;        ///< of the placement if it has one, otherwise of the attribute
  bool hasElevation = false;     ///< false: neither placement nor attribute; elevation is 0
  std::optional<double> height;  ///< up to the next higher storey; none for the highest
};

struct BuildingMaterial {
  std::string name;
};

/// A plane with the outward normal, at which a member is cut.
struct EndPlane {
  Point3 point;
  Vector3 normal;
};

/// An element idealised as a line with a profile.
struct MemberAxis {
  CurveForm curve = CurveForm::kLine;
  std::vector<Point3> points;
  std::size_t profile = 0;
  BuildingIndex endProfile;  ///< of a tapered member
  Vector3 y;                 ///< unit vector at the start; z is the cross product of x and y
  Vector2 offset;            ///< the place of the axis in coordinates of the profile: y, z
  std::array<std::optional<EndPlane>, 2> ends;  ///< none: square to the axis
};

/// An edge of an outline that is an arc. Edge i goes from point i to the next one.
struct OutlineArc {
  std::size_t edge = 0;
  Point3 through;  ///< a point of the arc between its ends
};

struct MaterialLayer {
  BuildingIndex material;
  double thickness = 0.0;
};

/// The sweep of a curved wall: a curve in the middle of its thickness, at its lower edge.
struct WallSweep {
  CurveForm curve = CurveForm::kArc;
  std::vector<Point3> points;
  Vector3 direction;  ///< unit vector, in which the curve is swept
  double height = 0.0;
};

/// An element idealised as a plane region with a thickness, or as a curved wall.
struct SurfaceRegion {
  std::vector<Point3> outline;  ///< in the middle plane, counter-clockwise seen against the normal
  std::vector<OutlineArc> arcs;
  std::vector<std::vector<Point3>> holes;
  Vector3 normal;
  double thickness = 0.0;
  double reference = 0.0;  ///< from the reference plane of the file to the middle plane
  std::vector<MaterialLayer> layers;
  std::optional<WallSweep> sweep;  ///< of a curved wall; outline, arcs and holes are empty then
};

struct BuildingOpening {
  std::size_t id = 0;
  std::string guid;
  OpeningKind kind = OpeningKind::kVoid;
  std::size_t fill = 0;         ///< the door or window
  std::vector<Point3> outline;  ///< of its face, in the middle plane of a surface
  double depth = 0.0;
};

/// The body of an element as it was read. Openings are not cut out.
struct BuildingBody {
  BuildingBox box;
  double volume = 0.0;
  bool isClosed = false;
  std::shared_ptr<const Mesh> mesh;  ///< in world coordinates; null if it was not asked for
};

struct BuildingElement {
  std::size_t id = 0;
  std::string className;  ///< as "IfcColumn"
  std::string guid;       ///< the 22 characters of the file; may be empty
  std::string name;
  std::string tag;
  std::string type;                ///< the predefined type, as "BASESLAB"; empty if there is none
  std::size_t storey = 0;          ///< the instance number of the storey that contains it
  std::size_t storeyByHeight = 0;  ///< by its lowest point, or by the upper face of a slab
  std::size_t partOf = 0;          ///< the element that it is a part of
  BuildingIndex material;          ///< the first of a list; of layers that of the thickest

  ElementKind kind = ElementKind::kBody;
  BodySource source = BodySource::kBrep;
  std::size_t mappedDepth = 0;  ///< how many mapped items lead to the body
  double deviation = 0.0;
  std::optional<double> volumeRatio;
  bool isApproximate = false;
  std::size_t cutouts = 0;

  BuildingBox box;      ///< of the idealised solid; for a body that of the body
  double volume = 0.0;  ///< of the idealised solid; for a body that of the body
  BuildingBody body;
  std::vector<BuildingOpening> openings;

  std::optional<MemberAxis> member;      ///< of the kind kMember only
  std::optional<SurfaceRegion> surface;  ///< of the kind kSurface only
};

/// A product that could not be read.
struct BuildingLoss {
  std::size_t id = 0;
  std::size_t line = 0;  ///< in the file, counted from 1; 0 if it is not known
  std::string className;
  std::string guid;
  std::string name;
  LossReason reason = LossReason::kNoRepresentation;
  std::size_t at = 0;  ///< the instance at fault
};

/// A product that is neither read nor lost: a whole without a body, whose parts are products.
struct BuildingWhole {
  std::size_t id = 0;
  std::string className;
};

/// How many products became what. members + surfaces + bodies + decomposed + lost == products.
struct BuildingTotals {
  std::size_t products = 0;
  std::size_t members = 0;
  std::size_t surfaces = 0;
  std::size_t bodies = 0;
  std::size_t decomposed = 0;
  std::size_t lost = 0;
  std::size_t approximate = 0;
};

/// The unit of length of the file.
struct BuildingLengthUnit {
  std::string name;  ///< as "MILLIMETRE" or "FOOT"
  double metres = 1.0;
};

struct Building {
  IFC_RELEASE release = IFC_RELEASE_NONE;
  std::string schema;       ///< as the file names it
  std::string application;  ///< that wrote the model
  std::string projectGuid;
  std::optional<Vector2> trueNorth;  ///< unit vector in the plane of x and y
  BuildingLengthUnit lengthUnit;
  std::vector<BuildingStorey> storeys;      ///< by elevation, then in the order of the file
  std::vector<BuildingMaterial> materials;  ///< in the order of their first use
  std::vector<BuildingProfile> profiles;    ///< in the order of their first use
  std::vector<BuildingElement> elements;    ///< in the order of the file
  std::vector<BuildingWhole> decomposed;    ///< in the order of the file
  std::vector<BuildingLoss> losses;         ///< in the order of the file
  BuildingTotals totals;
};

}  // namespace KelIFC

#endif  // KELIFC_BUILDING_BUILDING_H_
