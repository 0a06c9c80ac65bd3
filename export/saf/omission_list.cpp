#include "export/saf/omission_list.h"

#include <algorithm>
#include <string>

namespace KelIFC::exporting::saf {

void OmissionList::Add(std::string_view what, std::size_t count) {
  if (count == 0) return;
  const auto at =
      std::find_if(omissions.begin(), omissions.end(),
                   [&](const ExportOmission& omission) { return omission.what == what; });
  if (at == omissions.end()) {
    omissions.push_back({std::string(what), count});
  } else {
    at->count += count;
  }
}

}  // namespace KelIFC::exporting::saf
