#ifndef KELIFC_SCHEMA_BODIES_H_
#define KELIFC_SCHEMA_BODIES_H_

// The headers that the sources of entity classes include before their namespace. The code that is
// written by hand is in <family>.inl. It is compiled in the namespace of each release that has the
// entity, so it uses the names of the classes without a qualifier.

#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <numbers>

#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/global_id.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/selects.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/schema/record.h"
#include "kelifc/schema/references.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Returns the right-handed cross product of two directions in space.
inline std::array<double, 3> CrossOf(const std::array<double, 3>& a,
                                     const std::array<double, 3>& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_BODIES_H_
