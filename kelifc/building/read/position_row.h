#ifndef KELIFC_BUILDING_READ_POSITION_ROW_H_
#define KELIFC_BUILDING_READ_POSITION_ROW_H_

#include <cstdint>

#include "kelifc/building/read/attribute.h"
#include "kelifc/building/read/entity.h"

namespace KelIFC::building {

// Releases, as bits.
constexpr unsigned k2x = 1;
constexpr unsigned k2x2 = 2;
constexpr unsigned k2x3 = 4;
constexpr unsigned kAll = k2x | k2x2 | k2x3;

/// Where an attribute is in the statements of an entity, in some of the releases.
struct PositionRow {
  Entity entity;
  Attribute attribute;
  std::int8_t position;  ///< counted from 0; -1 if the entity does not have the attribute
  unsigned releases = kAll;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_POSITION_ROW_H_
