#ifndef KELIFC_IMPORT_FAMILY_2X_H_
#define KELIFC_IMPORT_FAMILY_2X_H_

#include "kelifc/schema/ifc2x.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

// Where the classes of release 2x differ from those of the other releases, as import sees them.

inline bool IsLengthUnit(KelIFC2x::IfcUnitEnum type) {
  return type == KelIFC2x::IfcUnitEnum_LENGTHUNIT;
}

inline const KelIFC2x::IfcProject* ProjectOf(const IfcServer& server, Release2x) {
  return server.GetProject2x();
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_FAMILY_2X_H_
