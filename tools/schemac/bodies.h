#ifndef KELIFC_TOOLS_SCHEMAC_BODIES_H_
#define KELIFC_TOOLS_SCHEMAC_BODIES_H_

#include <string>
#include <string_view>

#include "tools/schemac/release_model.h"

namespace schemac {

/// Reads one file of code that is written by hand and adds its sections to `description`, which
/// already describes the entities and functions that they belong to. A line `// entity NAME` or
/// `// function NAME`, with a mark such as `[2x..]` where the code is for some releases only,
/// begins a section. Throws DescriptionError for a section of something that is not described, and
/// for code ahead of the first section.
void ParseBodies(const std::string& file, std::string_view text, Description& description);

/// Gives each class and function of the release its sections, and each part that is written by hand
/// the place of its definition. A definition is recognised by its text up to the closing
/// parenthesis, with the parameters as they are declared. Throws DescriptionError for a part that
/// no section defines.
void AttachBodies(const Description& description, ReleaseModel& model);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_BODIES_H_
