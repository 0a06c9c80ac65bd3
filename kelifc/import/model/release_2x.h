#ifndef KELIFC_IMPORT_MODEL_RELEASE_2X_H_
#define KELIFC_IMPORT_MODEL_RELEASE_2X_H_

#include "kelifc/import/model/instances.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

// What is particular to release 2x. Each release has such a header; all of them declare the same
// functions, overloaded by the tag of the release.

/// Returns the project of the model, null if there is none.
inline const KelIFC2x::IfcProject* ProjectOf(const IfcServer& server, Release2x) {
  return server.GetProject2x();
}

/// Returns the products that become beams. This release has no class IfcMember.
inline Products<KelIFC2x::IfcBeam> CollectBeams(const IfcServer& server, Release2x) {
  return CollectInstances<KelIFC2x::IfcBeam>(server);
}

/// Whether footings of this release are converted.
constexpr bool HasFootings(Release2x) { return false; }

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_RELEASE_2X_H_
