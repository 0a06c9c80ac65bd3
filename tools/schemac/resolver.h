#ifndef KELIFC_TOOLS_SCHEMAC_RESOLVER_H_
#define KELIFC_TOOLS_SCHEMAC_RESOLVER_H_

#include "tools/schemac/release_model.h"

namespace schemac {

/// Resolves the description for one release. Throws DescriptionError for a name, a base or a record
/// that cannot be resolved.
ReleaseModel Resolve(const Description& description, std::size_t release);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_RESOLVER_H_
