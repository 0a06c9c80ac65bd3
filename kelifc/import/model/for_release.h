#ifndef KELIFC_IMPORT_MODEL_FOR_RELEASE_H_
#define KELIFC_IMPORT_MODEL_FOR_RELEASE_H_

#include "kelifc/schema/ifc2x/release.h"
#include "kelifc/schema/ifc2x2/release.h"
#include "kelifc/schema/ifc2x3/release.h"
#include "kelifc/server/release.h"

namespace KelIFC {

/// Calls `act` with the tag of the release, such as Release2x3(), and returns its result. Returns
/// `otherwise` for a release that cannot be converted.
template <class Result, class Act>
Result ForRelease(IFC_RELEASE release, const Result& otherwise, Act&& act) {
  switch (release) {
    case IFC_RELEASE_2X:
      return act(Release2x());
    case IFC_RELEASE_2X2:
      return act(Release2x2());
    case IFC_RELEASE_2X3:
      return act(Release2x3());
    default:
      return otherwise;
  }
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_FOR_RELEASE_H_
