#ifndef EXPORT_SVG_ELEMENT_FORM_H_
#define EXPORT_SVG_ELEMENT_FORM_H_

#include <cstdint>
#include <string_view>

#include "kelifc/building/building.h"

namespace KelIFC::exporting::svg {

// What a plan needs to know of the form of an element.

/// True for a plane surface that is nearly horizontal.
bool IsFlat(const BuildingElement& element);

/// True for a member whose axis rises by less than 45 degrees.
bool IsLevelMember(const BuildingElement& element);

/// True for a straight member or a plane surface that is neither nearly upright nor nearly
/// horizontal, such as a brace or a roof.
bool IsSloping(const BuildingElement& element);

/// How the cut of an element is hatched.
enum class Hatch : std::uint8_t { kGeneral, kConcrete, kMasonry, kSteel, kTimber };

/// The number of the enumerators of Hatch.
constexpr std::size_t kHatchCount = static_cast<std::size_t>(Hatch::kTimber) + 1;

/// The name of a hatch in lower case, which is also its CSS class.
std::string_view NameOf(Hatch hatch);

/// The hatch of an element: by the words in the name of its material, otherwise by its profile.
Hatch HatchOf(const Building& building, const BuildingElement& element);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_ELEMENT_FORM_H_
