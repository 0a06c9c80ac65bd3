#ifndef KELIFC_GEO_SECTION_NAME_H_
#define KELIFC_GEO_SECTION_NAME_H_

#include <cstddef>
#include <string>

#include "kelifc/geo/section_index.h"
#include "kelifc/geometry/box2.h"

namespace KelIFC {

/// Converts a length in metres to centimetres and rounds it to one decimal.
double SectionNameValue(double length);

/// Returns the name of a new section, such as "IFC_R_30x50", or "" for a kind without sizes. The
/// name of a T shows its web and height only, so different sections can have the same name.
std::string SectionName(const SectionSizes& sizes);

/// Returns the name of a polygon, such as "IFC_N6_40x30": the number of its points and the sides of
/// its box.
std::string ProfileName(std::size_t points, const Box2& box);

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTION_NAME_H_
