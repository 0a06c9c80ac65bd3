#ifndef PYTHON_SOURCE_BUILDING_FIELDS_H_
#define PYTHON_SOURCE_BUILDING_FIELDS_H_

#include "kelifc/kelifc.h"

#include "python/source/described.h"

// The structures of a building as Python shows them. The order of the fields is also that of the
// pickled form.

namespace KelIFC::python {

template <>
inline constexpr auto kDescribed<BuildingStorey> = Describe(
    "Storey", "A storey of the building. Lengths are in metres.",
    Field{"id", &BuildingStorey::id, "The instance number of the storey."},
    Field{"guid", &BuildingStorey::guid, "The GlobalId; empty if the file has none."},
    Field{"name", &BuildingStorey::name, "The name of the storey."},
    Field{"elevation", &BuildingStorey::elevation,
          "The world z of the storey; 0.0 if has_elevation is False."},
    Field{"has_elevation", &BuildingStorey::hasElevation, "False if the elevation cannot be read."},
    Field{"height", &BuildingStorey::height,
          "The distance to the next higher storey; None for the highest one."});

template <>
inline constexpr auto kDescribed<BuildingMaterial> =
    Describe("Material", "A material that at least one element uses.",
             Field{"name", &BuildingMaterial::name, "The name of the material."});

template <>
inline constexpr auto kDescribed<EndPlane> =
    Describe("EndPlane", "The plane that cuts a member at one end.",
             Field{"point", &EndPlane::point,
                   "The point where the axis meets the plane: an array of shape (3,), in metres."},
             Field{"normal", &EndPlane::normal,
                   "The unit normal, which points out of the member: an array of shape (3,)."});

template <>
inline constexpr auto kDescribed<MemberAxis> = Describe(
    "Member", "The axis and the profile of an element of the kind member.",
    Field{"curve", &MemberAxis::curve,
          "How the points are joined: 'line', 'arc' (start, a point between, end) or 'polyline'."},
    Field{"points", &MemberAxis::points,
          "The axis from the start to the end: an array of shape (n, 3), in metres."},
    Field{"profile", &MemberAxis::profile, "The index of the profile in Building.profiles."},
    Field{"end_profile", &MemberAxis::endProfile,
          "The index of the profile at the end of a tapered member; otherwise None."},
    Field{"y", &MemberAxis::y,
          "The unit vector of the y axis of the profile at the start: an array of shape (3,)."},
    Field{"offset", &MemberAxis::offset,
          "The place (y, z) of the axis in the coordinates of the profile: an array of shape "
          "(2,), in metres."},
    Field{"ends", &MemberAxis::ends,
          "The planes that cut the start and the end; None for an end that is square to the "
          "axis."});

template <>
inline constexpr auto kDescribed<OutlineArc> =
    Describe("OutlineArc", "An edge of an outline that is an arc of a circle.",
             Field{"edge", &OutlineArc::edge, "The index of the point at which the edge starts."},
             Field{"through", &OutlineArc::through,
                   "A point of the arc between its ends: an array of shape (3,), in metres."});

template <>
inline constexpr auto kDescribed<MaterialLayer> =
    Describe("MaterialLayer", "A layer of the material of a wall or a slab.",
             Field{"material", &MaterialLayer::material,
                   "The index of the material in Building.materials, or None."},
             Field{"thickness", &MaterialLayer::thickness,
                   "The thickness in metres; 0.0 if the file states none."});

template <>
inline constexpr auto kDescribed<WallSweep> =
    Describe("WallSweep", "A curved wall: a rectangle that is swept along a curve.",
             Field{"curve", &WallSweep::curve, "How the points are joined, such as 'arc'."},
             Field{"points", &WallSweep::points,
                   "The middle of the lower edge: an array of shape (n, 3), in metres."},
             Field{"direction", &WallSweep::direction,
                   "The unit vector from the lower to the upper edge: an array of shape (3,)."},
             Field{"height", &WallSweep::height, "The extent along the direction, in metres."});

template <>
inline constexpr auto kDescribed<SurfaceRegion> = Describe(
    "Surface", "The region and the thickness of an element of the kind surface.",
    Field{"outline", &SurfaceRegion::outline,
          "The outer edge in the middle plane, counter-clockwise: an array of shape (n, 3), in "
          "metres."},
    Field{"arcs", &SurfaceRegion::arcs, "The edges of the outline that are arcs."},
    Field{"holes", &SurfaceRegion::holes,
          "The holes, clockwise: arrays of shape (n, 3), in metres. Openings are not among them."},
    Field{"normal", &SurfaceRegion::normal,
          "The unit normal of the middle plane: an array of shape (3,)."},
    Field{"thickness", &SurfaceRegion::thickness, "The thickness, in metres."},
    Field{"reference", &SurfaceRegion::reference,
          "The signed distance from the reference plane of the file to the middle plane, in "
          "metres."},
    Field{"layers", &SurfaceRegion::layers, "The layers in the direction of the normal."},
    Field{"sweep", &SurfaceRegion::sweep,
          "The curve of a curved wall; None if the surface is plane."});

template <>
inline constexpr auto kDescribed<BuildingOpening> = Describe(
    "Opening", "An opening that voids an element.",
    Field{"id", &BuildingOpening::id, "The instance number of the opening."},
    Field{"guid", &BuildingOpening::guid, "The GlobalId; empty if the file has none."},
    Field{"kind", &BuildingOpening::kind, "What fills it: 'void', 'door' or 'window'."},
    IdField{"fill", &BuildingOpening::fill, "The instance number of what fills it, or None."},
    Field{"outline", &BuildingOpening::outline,
          "The section of the opening: an array of shape (n, 3), in metres. Empty if the body of "
          "the opening cannot be read."},
    Field{"depth", &BuildingOpening::depth,
          "The extent square to the outline, in metres; 0.0 if the body cannot be read."});

template <>
inline constexpr auto kDescribed<BuildingBody> = Describe(
    "Body", "The body of an element as it was read. Openings are not subtracted.",
    Field{"box", &BuildingBody::box,
          "The lowest and the highest corner: an array of shape (2, 3), in metres; None if the "
          "box is empty."},
    Field{"volume", &BuildingBody::volume,
          "The volume in cubic metres; it has no meaning if the body is not closed."},
    Field{"is_closed", &BuildingBody::isClosed, "True if the boundary has no gaps."},
    Field{"mesh", &BuildingBody::mesh, "The boundary; None if the building was read without it."});

template <>
inline constexpr auto kDescribed<BuildingElement> = Describe(
    "Element", "A product with geometry. Lengths are in metres, points in world coordinates.",
    Field{"id", &BuildingElement::id, "The instance number of the product."},
    Field{"class_name", &BuildingElement::className, "The entity, such as 'IfcColumn'."},
    Field{"guid", &BuildingElement::guid, "The GlobalId; empty if the file has none."},
    Field{"name", &BuildingElement::name, "The name of the product."},
    Field{"tag", &BuildingElement::tag, "The identifier of the writing application."},
    Field{"type", &BuildingElement::type, "The predefined type, such as 'BASESLAB'."},
    IdField{"storey", &BuildingElement::storey,
            "The instance number of the storey that contains the element, or None."},
    IdField{"storey_by_height", &BuildingElement::storeyByHeight,
            "The instance number of the storey in which the element is by its height, or None."},
    IdField{"part_of", &BuildingElement::partOf,
            "The instance number of the element that this one is a part of, or None."},
    Field{"material", &BuildingElement::material,
          "The index of the main material in Building.materials, or None."},
    Field{"kind", &BuildingElement::kind,
          "How the element is idealised: 'member', 'surface' or 'body'."},
    Field{"source", &BuildingElement::source,
          "What the body was made from, such as 'extrusion' or 'brep'."},
    Field{"mapped_depth", &BuildingElement::mappedDepth,
          "How many nested mapped items lead to the body."},
    Field{"deviation", &BuildingElement::deviation,
          "The largest distance between the idealised solid and the body, in metres."},
    Field{"volume_ratio", &BuildingElement::volumeRatio,
          "The volume of the idealised solid, divided by that of the body; None if the body is "
          "not closed."},
    Field{"is_approximate", &BuildingElement::isApproximate,
          "True if the idealised solid differs from the body."},
    Field{"cutouts", &BuildingElement::cutouts,
          "How many copes, notches and holes the idealised solid lacks."},
    Field{"box", &BuildingElement::box,
          "The box of the idealised solid: an array of shape (2, 3), in metres; None if it is "
          "empty."},
    Field{"volume", &BuildingElement::volume,
          "The volume of the idealised solid, in cubic metres."},
    Field{"body", &BuildingElement::body, "The body as it was read."},
    Field{"openings", &BuildingElement::openings, "The openings, in the order of the file."},
    Field{"member", &BuildingElement::member, "Set for the kind member, otherwise None."},
    Field{"surface", &BuildingElement::surface, "Set for the kind surface, otherwise None."});

template <>
inline constexpr auto kDescribed<BuildingLoss> = Describe(
    "Loss", "A product that could not be read.",
    Field{"id", &BuildingLoss::id, "The instance number of the product."},
    IdField{"line", &BuildingLoss::line, "The line of the product in the file, from 1, or None."},
    Field{"class_name", &BuildingLoss::className, "The entity, such as 'IfcColumn'."},
    Field{"guid", &BuildingLoss::guid, "The GlobalId; empty if the file has none."},
    Field{"name", &BuildingLoss::name, "The name of the product."},
    Field{"reason", &BuildingLoss::reason, "The reason, such as 'no-representation'."},
    IdField{"at", &BuildingLoss::at, "The instance number of the instance at fault, or None."});

template <>
inline constexpr auto kDescribed<BuildingWhole> =
    Describe("Whole", "A product without a body whose parts are products.",
             Field{"id", &BuildingWhole::id, "The instance number of the product."},
             Field{"class_name", &BuildingWhole::className, "The entity, such as 'IfcSlab'."});

template <>
inline constexpr auto kDescribed<BuildingTotals> = Describe(
    "Totals",
    "How many products became what: members + surfaces + bodies + decomposed + lost == products.",
    Field{"products", &BuildingTotals::products, "All products."},
    Field{"members", &BuildingTotals::members, "Elements of the kind member."},
    Field{"surfaces", &BuildingTotals::surfaces, "Elements of the kind surface."},
    Field{"bodies", &BuildingTotals::bodies, "Elements of the kind body."},
    Field{"decomposed", &BuildingTotals::decomposed, "Wholes whose parts are products."},
    Field{"lost", &BuildingTotals::lost, "Products that could not be read."},
    Field{"approximate", &BuildingTotals::approximate, "Elements that are approximate."});

template <>
inline constexpr auto kDescribed<BuildingLengthUnit> =
    Describe("LengthUnit", "The unit of length of the file.",
             Field{"name", &BuildingLengthUnit::name, "The name in upper case, such as 'FOOT'."},
             Field{"metres", &BuildingLengthUnit::metres, "The length of one unit in metres."});

template <>
inline constexpr auto kDescribed<Mesh> = Describe("Mesh", "");

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_BUILDING_FIELDS_H_
