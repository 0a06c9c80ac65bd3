#ifndef EXPORT_SAF_WRITE_SAF_H_
#define EXPORT_SAF_WRITE_SAF_H_

#include "export/export.h"

namespace KelIFC::exporting {

/// The format "saf": a workbook for programs of structural analysis, with members, surfaces, nodes,
/// cross-sections, materials and storeys, and the boundaries of bodies. Parts of other elements are
/// left out. In a build without libxlsxwriter it cannot be written.
ExportFormat SafFormat();

}  // namespace KelIFC::exporting

#endif  // EXPORT_SAF_WRITE_SAF_H_
