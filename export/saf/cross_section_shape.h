#ifndef EXPORT_SAF_CROSS_SECTION_SHAPE_H_
#define EXPORT_SAF_CROSS_SECTION_SHAPE_H_

#include <optional>
#include <string>
#include <string_view>

#include "kelifc/building/profile.h"

namespace KelIFC::exporting::saf {

/// A published shape and the values of its parameters.
struct ParametricShape {
  std::string_view name;   ///< such as "I rolled"
  std::string parameters;  ///< in millimetres, such as "300; 150; 10.7; 7.1; 15"
};

/// The published shape that a profile has, in the position in which it is published. None if there
/// is none: the profile is turned or mirrored, or it has fillets that the shape does not have.
std::optional<ParametricShape> ParametricShapeOf(const BuildingProfile& profile);

/// The form code of a profile with a designation: the kind of section and how it lies. None if the
/// profile has no designation or no code says how it lies.
std::optional<int> FormCodeOf(const BuildingProfile& profile);

/// A closed polyline in millimetres as the text of a cell, such as "0; 0 | 100; 0 | 0; 100".
std::string PolygonText(const Outline& outline);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_CROSS_SECTION_SHAPE_H_
