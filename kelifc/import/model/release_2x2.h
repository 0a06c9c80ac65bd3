#ifndef KELIFC_IMPORT_MODEL_RELEASE_2X2_H_
#define KELIFC_IMPORT_MODEL_RELEASE_2X2_H_

#include <vector>

#include "kelifc/import/model/instances.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

// Where the classes of release 2x2 differ from those of the other releases, as import sees them.

inline bool IsLengthUnit(KelIFC2x2::IfcUnitEnum type) {
  return type == KelIFC2x2::IfcUnitEnum_LENGTHUNIT;
}

inline const KelIFC2x2::IfcProject* ProjectOf(const IfcServer& server, Release2x2) {
  return server.GetProject2x2();
}

inline Products<KelIFC2x2::IfcBuildingElement> CollectBeams(const IfcServer& server, Release2x2) {
  return CollectBeamsAndMembers<Release2x2>(server);
}

inline bool HasFootings(Release2x2) { return true; }
inline Products<KelIFC2x2::IfcFooting> CollectFootings(const IfcServer& server, Release2x2) {
  return CollectInstances<KelIFC2x2::IfcFooting>(server);
}
inline bool IsFoot(const KelIFC2x2::IfcFooting& footing) {
  const auto type = footing.GetPredefinedType();
  return type == KelIFC2x2::IfcFootingTypeEnum_NOTDEFINED ||
         type == KelIFC2x2::IfcFootingTypeEnum_PAD_FOOTING;
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_RELEASE_2X2_H_
