#ifndef EXPORT_SVG_WRITE_SVG_H_
#define EXPORT_SVG_WRITE_SVG_H_

#include "export/export.h"

namespace KelIFC::exporting {

/// Writes a folder with a plan for each storey as SVG, and one for the elements without a storey if
/// there are any: "01-NAME.svg" for the lowest storey, "00-unassigned.svg" for the others. All
/// plans have the same scale and the same place of the building on the paper, so that they can be
/// laid on each other. Of more than 500 storeys those without elements have no plan.
ExportResult WriteSvg(const Building& building, const ExportOptions& options);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SVG_WRITE_SVG_H_
