#ifndef KELIFC_IMPORT_MODEL_RELEASE_2X2_H_
#define KELIFC_IMPORT_MODEL_RELEASE_2X2_H_

#include "kelifc/import/model/instances.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

// What is particular to release 2x2. Each release has such a header; all of them declare the same
// functions, overloaded by the tag of the release.

/// Returns the project of the model, null if there is none.
inline const KelIFC2x2::IfcProject* ProjectOf(const IfcServer& server, Release2x2) {
  return server.GetProject2x2();
}

/// Returns the products that become beams.
inline Products<KelIFC2x2::IfcBuildingElement> CollectBeams(const IfcServer& server, Release2x2) {
  return CollectBeamsAndMembers<Release2x2>(server);
}

/// Whether footings of this release are converted.
constexpr bool HasFootings(Release2x2) { return true; }

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_RELEASE_2X2_H_
