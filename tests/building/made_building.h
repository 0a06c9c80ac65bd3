#ifndef TESTS_BUILDING_MADE_BUILDING_H_
#define TESTS_BUILDING_MADE_BUILDING_H_

#include <string>

#include "kelifc/building/building.h"

namespace KelIFC {

// Elements of small buildings, made by hand.

/// An upright member from a point, with a profile by its index.
inline BuildingElement MemberFrom(std::size_t id, const Point3& foot, double length = 3.0,
                                  std::size_t profile = 0) {
  BuildingElement element;
  element.id = id;
  element.className = "IfcColumn";
  element.guid = "guid" + std::to_string(id);
  element.kind = ElementKind::kMember;
  element.member.emplace();
  element.member->points = {foot, foot + Vector3(0.0, 0.0, length)};
  element.member->y = {1.0, 0.0, 0.0};
  element.member->profile = profile;
  element.box = {foot + Vector3(-0.1, -0.1, 0.0), foot + Vector3(0.1, 0.1, length)};
  return element;
}

/// A horizontal surface with a corner at the origin.
inline BuildingElement Slab(std::size_t id, double width, double depth, double thickness = 0.2) {
  BuildingElement element;
  element.id = id;
  element.className = "IfcSlab";
  element.guid = "guid" + std::to_string(id);
  element.kind = ElementKind::kSurface;
  element.surface.emplace();
  element.surface->outline = {
      {0.0, 0.0, 0.0}, {width, 0.0, 0.0}, {width, depth, 0.0}, {0.0, depth, 0.0}};
  element.surface->normal = {0.0, 0.0, 1.0};
  element.surface->thickness = thickness;
  element.box = {{0.0, 0.0, -0.5 * thickness}, {width, depth, 0.5 * thickness}};
  return element;
}

inline BuildingProfile Circle(double diameter, const std::string& name = "") {
  BuildingProfile profile;
  profile.name = name;
  profile.shape = ProfileShape::kCircle;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kD)] = diameter;
  return profile;
}

}  // namespace KelIFC

#endif  // TESTS_BUILDING_MADE_BUILDING_H_
