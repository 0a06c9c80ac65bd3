#ifndef EXPORT_SVG_STYLE_H_
#define EXPORT_SVG_STYLE_H_

#include <string>

#include "export/svg/sheet.h"

namespace KelIFC::exporting::svg {

/// The style element and the patterns of the hatches: the only place that defines how lines,
/// regions and texts look.
std::string StyleOf(const Sheet& sheet);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_STYLE_H_
