#ifndef KELIFC_GEO_LOAD_FAILURE_H_
#define KELIFC_GEO_LOAD_FAILURE_H_

#include "kelifc/platform/com_interfaces.h"

namespace KelIFC {

/// Why a model was not loaded; the values are the numbers of the messages.
enum class LoadFailure {
  kNotFound = 61858,       ///< the file cannot be opened
  kNoModel = 61879,        ///< no schema in it, or an unknown one
  kNotConvertible = 65208  ///< a release that has no conversion
};

/// Makes the failure, with its message about the file, the error object of the thread. Gives the
/// status for the host, the same for all failures.
HRESULT ReportLoadFailure(LoadFailure failure, BSTR fileName);

}  // namespace KelIFC

#endif  // KELIFC_GEO_LOAD_FAILURE_H_
