#ifndef EXPORT_GLB_WRITE_GLB_H_
#define EXPORT_GLB_WRITE_GLB_H_

#include "kelifc/building/building.h"

#include "export/export.h"

namespace KelIFC::exporting {

/// Writes a building as a binary file of glTF 2.0. Elements without a solid are left out and
/// counted. Throws ExportError; a file of more than 4 GB cannot be written.
ExportResult WriteGlb(const Building& building, const ExportOptions& options);

}  // namespace KelIFC::exporting

#endif  // EXPORT_GLB_WRITE_GLB_H_
