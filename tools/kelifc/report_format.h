#ifndef TOOLS_KELIFC_REPORT_FORMAT_H_
#define TOOLS_KELIFC_REPORT_FORMAT_H_

#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/json.h"

namespace command {

/// The member "report" of the output of `info`.
Json ReportJson(const KelIFC::LoadReport& report);

/// The same for people: the counts, and for each kind of finding its first places.
std::string ReportText(const KelIFC::LoadReport& report);

}  // namespace command

#endif  // TOOLS_KELIFC_REPORT_FORMAT_H_
