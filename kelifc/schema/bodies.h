#ifndef KELIFC_SCHEMA_BODIES_H_
#define KELIFC_SCHEMA_BODIES_H_

// What the sources of entity classes include ahead of their namespace. The operations that are
// written by hand stand in files of their own, <family>/<entity>.inl: each is compiled once in the
// namespace of every release that has the entity, so that its text names classes plainly.

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

/// The cross product of two directions of space, right-handed.
inline std::array<double, 3> CrossOf(const std::array<double, 3>& a,
                                     const std::array<double, 3>& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_BODIES_H_
