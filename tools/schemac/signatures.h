#ifndef KELIFC_TOOLS_SCHEMAC_SIGNATURES_H_
#define KELIFC_TOOLS_SCHEMAC_SIGNATURES_H_

#include <string>

#include "tools/schemac/release_model.h"

namespace schemac {

/// Returns the C++ type of a described result, such as `integer`, `list IfcDirection`, `IfcCurve`,
/// or a C++ type. An empty result is void.
std::string ResultType(const std::string& described, const ReleaseModel& model);

/// Returns the C++ parameters, with names, of a described list, such as `index, real` or `const
/// IfcDirection&`.
std::string Parameters(const std::string& described);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_SIGNATURES_H_
