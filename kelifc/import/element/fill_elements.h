#ifndef KELIFC_IMPORT_ELEMENT_FILL_ELEMENTS_H_
#define KELIFC_IMPORT_ELEMENT_FILL_ELEMENTS_H_

#include "kelifc/geo/fill.h"
#include "kelifc/import/model/for_release.h"

namespace KelIFC {

/// What all fills of elements begin with: there is no filter by storey, and the model's release
/// decides which family of classes `convert` runs with. A release that cannot be converted adds
/// nothing.
template <class Collection, class Convert>
HRESULT FillElements(Collection& collection, CoIFCServer& server, SHORT storeyFilter,
                     Convert&& convert) {
  if (storeyFilter != kAllStoreys) return E_NOTIMPL;
  collection.SetServer(server.Link());
  return ForRelease(server.Model().GetRelease(), S_OK, convert);
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_ELEMENT_FILL_ELEMENTS_H_
