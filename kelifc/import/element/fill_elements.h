#ifndef KELIFC_IMPORT_ELEMENT_FILL_ELEMENTS_H_
#define KELIFC_IMPORT_ELEMENT_FILL_ELEMENTS_H_

#include "kelifc/geo/fill.h"
#include "kelifc/import/model/for_release.h"

namespace KelIFC {

/// Begins the fill of a collection of elements: links the collection to the server and calls
/// `convert` with the release of the model, such as Release2x3(). Returns what `convert` returns;
/// S_OK without elements for a release that cannot be converted; E_NOTIMPL for a storey filter
/// other than kAllStoreys.
template <class Collection, class Convert>
HRESULT FillElements(Collection& collection, CoIFCServer& server, SHORT storeyFilter,
                     Convert&& convert) {
  if (storeyFilter != kAllStoreys) return E_NOTIMPL;
  collection.SetServer(server.Link());
  return ForRelease(server.Model().GetRelease(), S_OK, convert);
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_ELEMENT_FILL_ELEMENTS_H_
