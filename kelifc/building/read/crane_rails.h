#ifndef KELIFC_BUILDING_READ_CRANE_RAILS_H_
#define KELIFC_BUILDING_READ_CRANE_RAILS_H_

#include "kelifc/building/profile/crane_rail.h"
#include "kelifc/building/read/instance.h"

namespace KelIFC::building {

/// The sizes of a crane rail. Unset sizes are 0; no size is checked. `metres` is the length of the
/// unit of the file.
CraneRail ReadCraneRail(const Instance& profile, double metres);

/// True if no size is larger than coordinates may be.
bool IsFinite(const CraneRail& rail);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_CRANE_RAILS_H_
