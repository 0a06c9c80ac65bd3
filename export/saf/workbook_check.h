#ifndef EXPORT_SAF_WORKBOOK_CHECK_H_
#define EXPORT_SAF_WORKBOOK_CHECK_H_

#include <cstddef>
#include <string>
#include <vector>

namespace KelIFC::exporting::saf {

/// Reads a workbook back and returns true if no part of it is missing: each XML file ends with its
/// root element, each sheet has the number of cells that `cells` lists, and the list of shared
/// texts has the length that it states. libxlsxwriter writes temporary files without a check, so a
/// full disk for these files would cut off a workbook without an error.
bool IsWorkbookComplete(const std::string& path, const std::vector<std::size_t>& cells);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_WORKBOOK_CHECK_H_
