#ifndef KELIFC_SERVER_LOAD_REPORT_H_
#define KELIFC_SERVER_LOAD_REPORT_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>

#include "kelifc/server/load_findings.h"

namespace KelIFC {

/// An attribute of an entity.
struct EntityAttribute {
  std::string entity;         ///< in upper case; empty for an instance of several types
  std::size_t attribute = 0;  ///< the position in the statement, from 1; 0 for such an instance
  std::string name;           ///< of the attribute in the schema; empty if it is not known

  /// The order by entity, then by attribute.
  friend bool operator<(const EntityAttribute& a, const EntityAttribute& b) {
    return std::tie(a.entity, a.attribute) < std::tie(b.entity, b.attribute);
  }
};

/// What LoadIfc, LoadIfcStream or LoadIfcMemory met in a file. The number of each instance is in
/// exactly one of three groups: made + raw + dropped == numbers.
struct LoadReport {
  /// Counts by the name of the entity, in upper case. The name of an instance of several types is
  /// empty.
  using EntityCounts = std::map<std::string, std::uint64_t>;

  std::uint64_t statements = 0;  ///< numbered statements
  std::uint64_t numbers = 0;     ///< different numbers of them
  std::uint64_t made = 0;        ///< numbers of instances of the classes of the release
  std::uint64_t raw = 0;         ///< numbers of instances that are kept as raw text (IfcOther)
  std::uint64_t dropped = 0;     ///< numbers whose statements were left out
  std::uint64_t added = 0;       ///< instances that classes added, such as directions of placements

  EntityCounts rawByEntity;      ///< the counts add up to `raw`
  EntityCounts droppedByEntity;  ///< the counts add up to `dropped`

  /// What is wrong in the file, with the first places of each kind.
  LoadFindings findings;

  /// The statement at which a load that failed has stopped: the first one of a file that is not a
  /// STEP file, that of an unknown schema, or the one that exceeds a limit. None if the model was
  /// loaded, or if the place is not known.
  std::optional<SourcePlace> failure;

  /// True if the last call of CheckModel found that the source has changed since the load.
  bool hasSourceChanged = false;

  /// True after a call of CheckModel that returned true. What follows is only known then.
  bool isChecked = false;
  /// Counts by the entity and the position of the attribute.
  using AttributeCounts = std::map<EntityAttribute, std::uint64_t>;
  AttributeCounts danglingByAttribute;  ///< references to numbers that no statement has
  AttributeCounts unreadByAttribute;    ///< attributes that cannot be read
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_LOAD_REPORT_H_
