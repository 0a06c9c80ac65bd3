#ifndef KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_
#define KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_

#include "tools/schemac/release_model.h"

namespace schemac {

/// Turns the described operations of a class into C++. An operation whose name names an attribute
/// gets a body; the body of one with a signature is written by hand. An operation on an attribute
/// that the release does not have is left out. Throws DescriptionError for an operation that is
/// neither.
void ResolveOperations(ResolvedClass& type, const ReleaseModel& model);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_
