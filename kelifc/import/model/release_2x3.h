#ifndef KELIFC_IMPORT_MODEL_RELEASE_2X3_H_
#define KELIFC_IMPORT_MODEL_RELEASE_2X3_H_

#include <vector>

#include "kelifc/import/model/instances.h"
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

inline Products<KelIFC2x3::IfcBuildingElement> CollectBeams(const IfcServer& server, Release2x3) {
  return CollectBeamsAndMembers<Release2x3>(server);
}

inline bool HasFootings(Release2x3) { return true; }
inline Products<KelIFC2x3::IfcFooting> CollectFootings(const IfcServer& server, Release2x3) {
  return CollectInstances<KelIFC2x3::IfcFooting>(server);
}
inline bool IsFoot(const KelIFC2x3::IfcFooting& footing) {
  const auto type = footing.GetPredefinedType();
  return type == KelIFC2x3::IfcFootingTypeEnum_NOTDEFINED ||
         type == KelIFC2x3::IfcFootingTypeEnum_PAD_FOOTING;
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_RELEASE_2X3_H_
