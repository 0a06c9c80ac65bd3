#ifndef KELIFC_TOOLS_SCHEMAC_SIGNATURES_H_
#define KELIFC_TOOLS_SCHEMAC_SIGNATURES_H_

#include <string>

#include "tools/schemac/release_model.h"

namespace schemac {

/// The C++ type of a described result: `integer`, `list IfcDirection`, `IfcCurve`, or a C++ type.
/// An empty one is void.
std::string ResultType(const std::string& described, const ReleaseModel& model);

/// The C++ parameters, with names, of a described list: `index, real`, `const IfcDirection&`.
std::string Parameters(const std::string& described);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_SIGNATURES_H_
