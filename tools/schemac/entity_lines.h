#ifndef KELIFC_TOOLS_SCHEMAC_ENTITY_LINES_H_
#define KELIFC_TOOLS_SCHEMAC_ENTITY_LINES_H_

#include "tools/schemac/description.h"
#include "tools/schemac/token_reader.h"

namespace schemac {

/// Reads one line of the body of an entity: a directive or an attribute. `in` reads `line`. Throws
/// DescriptionError for a line that is neither.
void ReadEntityLine(const Line& line, TokenReader& in, Entity& entity);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_ENTITY_LINES_H_
