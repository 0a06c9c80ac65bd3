#ifndef EXPORT_VIEW_ELEMENT_COLUMNS_H_
#define EXPORT_VIEW_ELEMENT_COLUMNS_H_

#include "kelifc/building/building.h"

#include "export/view/json_text.h"

namespace KelIFC::exporting {

/// Appends the members `classes`, `types`, `sources` and `elements` of the description, which
/// viewer/data.md defines.
void WriteElementColumns(JsonText& json, const Building& building);

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_ELEMENT_COLUMNS_H_
