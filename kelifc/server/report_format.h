#ifndef KELIFC_SERVER_REPORT_FORMAT_H_
#define KELIFC_SERVER_REPORT_FORMAT_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "kelifc/platform/export.h"
#include "kelifc/server/load_report.h"

namespace KelIFC {

/// Returns a report for people, in ASCII: the counts, and the first places of each kind of finding.
/// A byte of a name outside ASCII is shown as `\xNN`.
KELIFC_API std::string FormatReport(const LoadReport& report);

/// Returns a report as a JSON object, in ASCII. Its members are the counts, "droppedEntities", and
/// for each kind of finding an object with "count" and "places". A byte of a name outside ASCII is
/// the character of that code.
KELIFC_API std::string FormatReportAsJson(const LoadReport& report);

/// Returns the count that has this name in the JSON, also that of a kind of finding. Empty if none
/// has it.
KELIFC_API std::optional<std::uint64_t> FindReportCount(const LoadReport& report,
                                                        std::string_view name);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_REPORT_FORMAT_H_
