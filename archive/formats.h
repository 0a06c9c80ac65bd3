#ifndef KELIFC_ARCHIVE_FORMATS_H_
#define KELIFC_ARCHIVE_FORMATS_H_

#include <iosfwd>
#include <string>

#include "archive/packed_model.h"

namespace KelIFC::archive {

// One function per packing, each with the contract of ExpandModel.

void ExpandGzip(const std::string& path, std::ostream& out, const ExpansionLimits& limits);
void ExpandZip(const std::string& path, std::ostream& out, const ExpansionLimits& limits);

}  // namespace KelIFC::archive

#endif  // KELIFC_ARCHIVE_FORMATS_H_
