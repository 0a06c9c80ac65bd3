#ifndef KELIFC_TOOLS_SCHEMAC_BODIES_H_
#define KELIFC_TOOLS_SCHEMAC_BODIES_H_

#include <string>
#include <string_view>

#include "tools/schemac/release_model.h"

namespace schemac {

/// Reads one file of code that is written by hand and adds its sections to `description`, which
/// already describes the entities and functions that they belong to. A line `// entity NAME` or `//
/// function NAME` begins a section. A mark such as `[2x..]` after the name limits the section to
/// some releases. Throws DescriptionError for a section of something that is not described, and for
/// code before the first section.
void ParseBodies(const std::string& file, std::string_view text, Description& description);

/// Adds its sections to each class and function of the release, and the place of the definition to
/// each part that is written by hand. The text of a definition, up to the closing parenthesis, must
/// be that of the declaration. Throws DescriptionError for a part that no section defines.
void AttachBodies(const Description& description, ReleaseModel& model);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_BODIES_H_
