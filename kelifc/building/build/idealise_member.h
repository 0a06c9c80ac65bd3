#ifndef KELIFC_BUILDING_BUILD_IDEALISE_MEMBER_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_MEMBER_H_

#include <optional>

#include "kelifc/building/build/idealise_reading.h"
#include "kelifc/building/build/idealise_scan.h"

namespace KelIFC::building::idealising {

/// Reads a subject as a member along a direction, by slices square to it. None if there is no
/// section of one region, or no solid.
std::optional<Reading> ReadMember(Subject& subject, const Vector3& direction);

/// Reads a subject as a member along a direction that pieces were cut off from everywhere, so that
/// no section is that of the member. None if there is no such member.
std::optional<Reading> ReadMemberAround(Subject& subject, const Vector3& direction);

/// The direction from the start to the end of a member: that of the axis of the product if it has
/// one, otherwise upwards, or towards world x or y if it is horizontal.
Vector3 OrientAxis(const Subject& subject, const Vector3& direction);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_MEMBER_H_
