#include "archive/formats.h"

// Takes the place of the readers in a build without zlib or libzip.

namespace KelIFC::archive {
namespace {

[[noreturn]] void Refuse() {
  throw NotBuilt("this build cannot expand archives: it was made without zlib or libzip");
}

}  // namespace

void ExpandGzip(const std::string&, std::ostream&, const ExpansionLimits&) { Refuse(); }

void ExpandZip(const std::string&, std::ostream&, const ExpansionLimits&) { Refuse(); }

}  // namespace KelIFC::archive
