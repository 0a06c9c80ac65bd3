#ifndef KELIFC_IMPORT_FAMILY_2X3_H_
#define KELIFC_IMPORT_FAMILY_2X3_H_

#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

// Where the classes of release 2x3 differ from those of the other releases, as import sees them.

inline bool IsLengthUnit(KelIFC2x3::IfcUnitEnum type) {
  return type == KelIFC2x3::IfcUnitEnum_LENGTHUNIT;
}

inline const KelIFC2x3::IfcProject* ProjectOf(const IfcServer& server, Release2x3) {
  return server.GetProject2x3();
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_FAMILY_2X3_H_
