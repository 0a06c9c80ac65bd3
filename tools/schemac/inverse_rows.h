#ifndef KELIFC_TOOLS_SCHEMAC_INVERSE_ROWS_H_
#define KELIFC_TOOLS_SCHEMAC_INVERSE_ROWS_H_

#include <string>
#include <vector>

#include "tools/schemac/release_model.h"

namespace schemac {

/// One inverse attribute in the table of entities. The fields are those of InverseAttribute in
/// kelifc/schema/attribute_table.h.
struct InverseRow {
  std::string name;
  std::string entity;
  std::string attribute;
};

/// Returns the inverse attributes that a class adds. Throws DescriptionError for one whose entity
/// the release does not have, or whose attribute that entity does not keep.
std::vector<InverseRow> InverseRowsOf(const ReleaseModel& model, const ResolvedClass& type);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_INVERSE_ROWS_H_
