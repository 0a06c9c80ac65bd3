#ifndef KELIFC_BUILDING_PROFILE_PROFILE_NAME_H_
#define KELIFC_BUILDING_PROFILE_PROFILE_NAME_H_

#include <array>
#include <optional>
#include <string_view>

#include "kelifc/building/profile/standard_sections.h"

namespace KelIFC::building {

/// Reads the designation with which the name of a profile begins: "HE 220 B", "HEB220 S235",
/// "IPE 300", "UNP 200", "L 100*10", "RHS100x50x5", "CHS 114,3 x 5". Upper and lower case are one.
/// A designation of the series I and U is known only if the tables have it; angles and hollow
/// sections may have any sizes, and their area is 0 if the tables do not have them. None if the
/// name begins otherwise.
std::optional<StandardSection> ParseProfileName(std::string_view name);

/// The two numbers of which a name consists, as "300x600". None if it is anything else.
std::optional<std::array<double, 2>> ParseTwoNumbers(std::string_view name);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_PROFILE_NAME_H_
