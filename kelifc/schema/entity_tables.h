#ifndef KELIFC_SCHEMA_ENTITY_TABLES_H_
#define KELIFC_SCHEMA_ENTITY_TABLES_H_

#include <span>
#include <typeinfo>

#include "kelifc/schema/attribute_table.h"

namespace KelIFC {

/// A class that can have instances.
struct EntityType {
  const std::type_info* type;
  const EntityDescription* entity;
};

/// The generated tables of the classes of one release.
struct EntityTables {
  EntityRange entities;  ///< in alphabetical order without regard to case
  std::span<const EntityType> types;
};

extern const EntityTables kTables151;
extern const EntityTables kTables20;
extern const EntityTables kTables2x;
extern const EntityTables kTables2x2;
extern const EntityTables kTables2x3;

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_ENTITY_TABLES_H_
