#ifndef KELIFC_BUILDING_PROFILE_STANDARD_SECTIONS_H_
#define KELIFC_BUILDING_PROFILE_STANDARD_SECTIONS_H_

#include <string>
#include <string_view>
#include <vector>

#include "kelifc/building/profile/shape_region.h"

namespace KelIFC::building {

/// A section of the dimension tables.
struct StandardSection {
  std::string designation;  ///< as "HEB220", "L100x100x10", "CHS114.3x5"
  ProfileShape shape = ProfileShape::kI;
  ProfileParameters parameters = {};  ///< in metres
  double area = 0.0;                  ///< in square metres, as published
};

/// All sections of the tables. The list is made at the first call.
const std::vector<StandardSection>& StandardSections();

/// The section of a designation; null if there is none.
const StandardSection* FindStandardSection(std::string_view designation);

/// The section whose sizes are nearest. Its lengths differ by at most 0.5 mm (the walls of hollow
/// sections by 0.25 mm) and its fillets by 1 mm; sizes without fillets by at most 0.3 mm. Null if
/// there is none. h and b of angles and hollow sections may be exchanged.
const StandardSection* FindStandardSection(ProfileShape shape, const ProfileParameters& parameters);

/// True if the lengths that both have differ by less than the tolerances, fillets not considered.
bool HasSizesOf(const StandardSection& section, ProfileShape shape,
                const ProfileParameters& parameters);

/// The designation of an angle or a hollow section of any size: "RHS100x50x5". Sizes in metres.
std::string DesignationOf(ProfileShape shape, const ProfileParameters& parameters);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_STANDARD_SECTIONS_H_
