#ifndef KELIFC_IMPORT_MODEL_RELEASE_2X_H_
#define KELIFC_IMPORT_MODEL_RELEASE_2X_H_

#include <vector>

#include "kelifc/import/model/instances.h"
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

/// This release has no class of members.
inline Products<KelIFC2x::IfcBeam> CollectBeams(const IfcServer& server, Release2x) {
  return CollectInstances<KelIFC2x::IfcBeam>(server);
}

/// Footings of this release are not converted.
inline bool HasFootings(Release2x) { return false; }
inline Products<KelIFC2x::IfcBuildingElement> CollectFootings(const IfcServer& server, Release2x) {
  return Products<KelIFC2x::IfcBuildingElement>(server);
}
inline bool IsFoot(const KelIFC2x::IfcBuildingElement&) { return false; }

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_RELEASE_2X_H_
