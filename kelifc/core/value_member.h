#ifndef KELIFC_CORE_VALUE_MEMBER_H_
#define KELIFC_CORE_VALUE_MEMBER_H_

#include <iosfwd>

#include "kelifc/core/member.h"
#include "kelifc/platform/export.h"

// Attributes with a select that holds typed values, such as the value of a property or of a unit.

namespace KelIFC {

class IfcServer;

/// Parses a typed value such as `IFCLENGTHMEASURE(2.5)` into `target`. Any other text, and `$`,
/// leaves `target` unset and the cursor where it is, so that the next attribute is read from the
/// same text.
KELIFC_API const char* ParseValueMember(IfcServer* server, const char* text, MEMBER& target);

/// Writes the value with the name of its type, or `$` if `member` holds none.
KELIFC_API std::ostream& WriteValueMember(std::ostream& out, const MEMBER& member);

}  // namespace KelIFC

#endif  // KELIFC_CORE_VALUE_MEMBER_H_
