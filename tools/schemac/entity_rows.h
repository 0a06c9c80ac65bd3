#ifndef KELIFC_TOOLS_SCHEMAC_ENTITY_ROWS_H_
#define KELIFC_TOOLS_SCHEMAC_ENTITY_ROWS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "tools/schemac/attribute_rows.h"
#include "tools/schemac/inverse_rows.h"
#include "tools/schemac/release_model.h"

namespace schemac {

/// One class in the table of entities. Fields without a comment are those of EntityDescription in
/// kelifc/schema/attribute_table.h. `form` and `valueKind` are enumerators.
struct EntityRow {
  std::string name;
  std::string type;  ///< the C++ class; empty for one of the core
  std::string form;
  std::string valueKind;
  std::string valueReader;
  bool isInstantiable = false;  ///< `type` can have instances
  bool isInFile = false;
  std::vector<std::string> bases;
  std::string record;
  std::vector<AttributeRow> attributes;
  std::vector<InverseRow> inverses;
  std::size_t positionCount = 0;
};

/// Returns all classes of a release, each after its bases. The classes of the core come first.
/// Throws DescriptionError for a class with more than two bases, and as InverseRowsOf does.
std::vector<EntityRow> EntityRows(const ReleaseModel& model);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_ENTITY_ROWS_H_
