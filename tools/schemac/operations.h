#ifndef KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_
#define KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_

#include "tools/schemac/release_model.h"

namespace schemac {

/// Turns the described operations of a class into C++. The body of an operation on an attribute is
/// generated. The body of an operation with a signature is written by hand. An operation on an
/// attribute that the release does not have is left out. Throws DescriptionError for any other
/// operation.
void ResolveOperations(ResolvedClass& type, const ReleaseModel& model);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_
