#ifndef EXPORT_SAF_WRITE_SAF_H_
#define EXPORT_SAF_WRITE_SAF_H_

#include "export/export.h"

namespace KelIFC::exporting {

/// Writes a workbook of the SAF format: members, surfaces, nodes, cross-sections, materials and
/// storeys, and the boundaries of bodies. Parts of other elements are omitted. Throws ExportError
/// and std::bad_alloc.
ExportResult WriteSaf(const Building& building, const ExportOptions& options);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SAF_WRITE_SAF_H_
