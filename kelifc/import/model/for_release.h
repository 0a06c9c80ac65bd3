#ifndef KELIFC_IMPORT_MODEL_FOR_RELEASE_H_
#define KELIFC_IMPORT_MODEL_FOR_RELEASE_H_

#include "kelifc/schema/ifc2x/release.h"
#include "kelifc/schema/ifc2x2/release.h"
#include "kelifc/schema/ifc2x3/release.h"
#include "kelifc/server/release.h"

namespace KelIFC {

/// Runs `act` with the classes of the release that a model is of, and gives its result; `otherwise`
/// for a release that has no conversion.
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
