#include <vector>

#include "kelifc/geo/beam.h"
#include "kelifc/geo/column.h"
#include "kelifc/import/element/fill_elements.h"
#include "kelifc/import/linear/build_linear.h"
#include "kelifc/import/linear/read_linear.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/instances.h"

namespace KelIFC {

namespace {

template <class Element, class Release, class Collection, class Product>
HRESULT ConvertLinear(Collection& collection, CoIFCServer& server,
                      const Products<Product>& products) {
  ElementMaker<Element, Collection> maker(collection, server);
  const HRESULT status = maker.Open();
  if (FAILED(status)) return status;
  LinearReader<Release> reader(server.Model(), server.GetLengthScale(),
                               kHasBoundary<Element> ? Boundaries::kRead : Boundaries::kLeftOut);
  LinearBuilder builder(maker);
  for (const Product* product : products) builder.Convert(reader.Read(*product));
  return S_OK;
}

}  // namespace

HRESULT FillColumns(CoGeoColumns& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    using Release = decltype(release);
    return ConvertLinear<CoGeoColumn, Release>(
        collection, server, CollectInstances<typename Release::IfcColumn>(server.Model()));
  });
}

HRESULT FillBeams(CoGeoBeams& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    return ConvertLinear<CoGeoBeam, decltype(release)>(collection, server,
                                                       CollectBeams(server.Model(), release));
  });
}

}  // namespace KelIFC
