#ifndef EXPORT_SVG_DIMENSIONS_H_
#define EXPORT_SVG_DIMENSIONS_H_

#include <string>

#include "export/svg/sheet.h"

namespace KelIFC::exporting::svg {

/// Appends the dimension lines of a box of the drawing, in millimetres of the building: its width
/// below `drawn`, which surrounds all that is drawn, and its depth to the left of it. Both boxes
/// are on the paper. Appends nothing if the box is empty, or less than half as wide or as deep as
/// what is drawn, because it says little then.
void AppendDimensions(std::string& markup, const Sheet& sheet, const PaperBox& measured,
                      const PaperBox& drawn);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_DIMENSIONS_H_
