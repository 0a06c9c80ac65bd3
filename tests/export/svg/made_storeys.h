#ifndef TESTS_EXPORT_SVG_MADE_STOREYS_H_
#define TESTS_EXPORT_SVG_MADE_STOREYS_H_

#include <string>

#include "kelifc/building/building.h"

namespace KelIFC::exporting::svg {

// Storeys and elements of small buildings, made by hand.

inline BuildingStorey StoreyAt(std::size_t id, double elevation, const std::string& name = "") {
  BuildingStorey storey;
  storey.id = id;
  storey.name = name;
  storey.elevation = elevation;
  storey.hasElevation = true;
  return storey;
}

inline BuildingElement ElementIn(std::size_t id, const std::string& className, std::size_t storey) {
  BuildingElement element;
  element.id = id;
  element.className = className;
  element.storey = storey;
  element.storeyByHeight = storey;
  return element;
}

/// A rectangle with its centroid at the origin.
inline BuildingProfile Rectangle(double b, double h) {
  BuildingProfile profile;
  profile.shape = ProfileShape::kRectangle;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kB)] = b;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kH)] = h;
  profile.outline = {{-b / 2, -h / 2}, {b / 2, -h / 2}, {b / 2, h / 2}, {-b / 2, h / 2}};
  return profile;
}

/// A column of 0.4 m by 0.4 m. Its profile has the index 0.
inline BuildingElement Column(std::size_t id, std::size_t storey, const Point3& foot,
                              double height) {
  BuildingElement element = ElementIn(id, "IfcColumn", storey);
  element.kind = ElementKind::kMember;
  element.member.emplace();
  element.member->points = {foot, foot + Vector3(0.0, 0.0, height)};
  element.member->y = {1.0, 0.0, 0.0};
  element.box = {foot + Vector3(-0.2, -0.2, 0.0), foot + Vector3(0.2, 0.2, height)};
  return element;
}

/// A beam along x, 0.4 m wide and 0.4 m high. Its axis is in its middle, and its profile has the
/// index 0.
inline BuildingElement Beam(std::size_t id, std::size_t storey, const Point3& from, double length) {
  BuildingElement element = ElementIn(id, "IfcBeam", storey);
  element.kind = ElementKind::kMember;
  element.member.emplace();
  element.member->points = {from, from + Vector3(length, 0.0, 0.0)};
  element.member->y = {0.0, 1.0, 0.0};
  element.box = {from + Vector3(0.0, -0.2, -0.2), from + Vector3(length, 0.2, 0.2)};
  return element;
}

/// A wall along x, 0.2 m thick. Its axis is in its middle.
inline BuildingElement Wall(std::size_t id, std::size_t storey, const Point3& from, double length,
                            double height) {
  BuildingElement element = ElementIn(id, "IfcWall", storey);
  element.kind = ElementKind::kSurface;
  const Vector3 along(length, 0.0, 0.0);
  const Vector3 up(0.0, 0.0, height);
  element.surface.emplace();
  element.surface->outline = {from, from + along, from + along + up, from + up};
  element.surface->normal = {0.0, -1.0, 0.0};
  element.surface->thickness = 0.2;
  element.box = {from + Vector3(0.0, -0.1, 0.0), from + Vector3(length, 0.1, height)};
  return element;
}

/// A slab with a corner and its upper face at a point, 0.2 m thick.
inline BuildingElement Floor(std::size_t id, std::size_t storey, const Point3& corner, double width,
                             double depth) {
  BuildingElement element = ElementIn(id, "IfcSlab", storey);
  element.kind = ElementKind::kSurface;
  const Point3 middle = corner + Vector3(0.0, 0.0, -0.1);
  const Vector3 x(width, 0.0, 0.0);
  const Vector3 y(0.0, depth, 0.0);
  element.surface.emplace();
  element.surface->outline = {middle, middle + x, middle + x + y, middle + y};
  element.surface->normal = {0.0, 0.0, 1.0};
  element.surface->thickness = 0.2;
  element.box = {corner + Vector3(0.0, 0.0, -0.2), corner + Vector3(width, depth, 0.0)};
  return element;
}

/// A rectangular opening in a wall along x, in the middle plane of the wall.
inline BuildingOpening OpeningAt(OpeningKind kind, const Point3& corner, double width,
                                 double height, double depth = 0.2) {
  BuildingOpening opening;
  opening.kind = kind;
  const Vector3 along(width, 0.0, 0.0);
  const Vector3 up(0.0, 0.0, height);
  opening.outline = {corner, corner + along, corner + along + up, corner + up};
  opening.depth = depth;
  return opening;
}

}  // namespace KelIFC::exporting::svg

#endif  // TESTS_EXPORT_SVG_MADE_STOREYS_H_
