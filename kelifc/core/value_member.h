#ifndef KELIFC_CORE_VALUE_MEMBER_H_
#define KELIFC_CORE_VALUE_MEMBER_H_

#include <iosfwd>

#include "kelifc/core/member.h"
#include "kelifc/platform/export.h"

// An attribute whose select holds typed values, such as the value of a property or of a unit.

namespace KelIFC {

class IfcServer;

/// Reads a typed value such as `IFCLENGTHMEASURE(2.5)` into `target`. Text that is no typed value,
/// `$` included, leaves `target` unset and the cursor where it is, so that the next attribute is
/// read from the same text.
KELIFC_API const char* ParseValueMember(IfcServer* server, const char* text, MEMBER& target);

/// Writes the typed form of the value, `$` if `member` holds none.
KELIFC_API std::ostream& WriteValueMember(std::ostream& out, const MEMBER& member);

}  // namespace KelIFC

#endif  // KELIFC_CORE_VALUE_MEMBER_H_
