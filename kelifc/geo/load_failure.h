#ifndef KELIFC_GEO_LOAD_FAILURE_H_
#define KELIFC_GEO_LOAD_FAILURE_H_

#include "kelifc/platform/com_interfaces.h"

namespace KelIFC {

/// Why a load failed. The values are the numbers of the messages.
enum class LoadFailure {
  kNotFound = 61858,       ///< the file cannot be opened
  kNoModel = 61879,        ///< the file has no schema or an unknown one
  kNotConvertible = 65208  ///< the release has no conversion
};

/// Sets the error object of the thread to a message about the file. Returns the status for the
/// host, which is the same for all failures.
HRESULT ReportLoadFailure(LoadFailure failure, BSTR fileName);

}  // namespace KelIFC

#endif  // KELIFC_GEO_LOAD_FAILURE_H_
