#ifndef EXPORT_SAF_OMISSION_LIST_H_
#define EXPORT_SAF_OMISSION_LIST_H_

#include <cstddef>
#include <string_view>
#include <vector>

#include "export/export.h"

namespace KelIFC::exporting::saf {

/// Counts what the workbook cannot hold, by kind, in the order in which the kinds first occur.
class OmissionList {
 public:
  /// Counts `count` omissions of a kind. Does nothing if `count` is 0.
  void Add(std::string_view what, std::size_t count = 1);

  const std::vector<ExportOmission>& GetOmissions() const { return omissions; }

 private:
  std::vector<ExportOmission> omissions;
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_OMISSION_LIST_H_
