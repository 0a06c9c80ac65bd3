#ifndef EXPORT_VIEW_WRITE_PAGE_H_
#define EXPORT_VIEW_WRITE_PAGE_H_

#include "kelifc/building/building.h"

#include "export/export.h"
#include "export/view/page_template.h"

namespace KelIFC::exporting {

/// The format "view": one HTML file that shows the building in a browser. The file needs no other
/// file and no network. It is missing in a build without the page.
ExportFormat PageFormat();

/// Writes such a file with the given page, as ExportFormat::write defines. The element with the
/// data is between the head and the tail.
ExportResult FillPage(const PageTemplate& page, const Building& building,
                      const ExportOptions& options);

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_WRITE_PAGE_H_
