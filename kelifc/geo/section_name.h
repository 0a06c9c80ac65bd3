#ifndef KELIFC_GEO_SECTION_NAME_H_
#define KELIFC_GEO_SECTION_NAME_H_

#include <cstddef>
#include <string>

#include "kelifc/geo/section_index.h"
#include "kelifc/geometry/box2.h"

namespace KelIFC {

/// A length in metres as names tell it: in centimetres, rounded to one decimal.
double SectionNameValue(double length);

/// The name of a new section, such as "IFC_R_30x50"; empty for a kind without sizes. A T is named
/// by its web and height only.
std::string SectionName(const SectionSizes& sizes);

/// The name of a polygon: its number of points and its extents, such as "IFC_N6_40x30".
std::string ProfileName(std::size_t points, const Box2& box);

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTION_NAME_H_
