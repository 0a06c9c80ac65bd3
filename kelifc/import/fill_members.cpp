#include <vector>

#include "kelifc/geo/beam.h"
#include "kelifc/geo/column.h"
#include "kelifc/import/build_members.h"
#include "kelifc/import/families.h"
#include "kelifc/import/fill_elements.h"
#include "kelifc/import/instances.h"
#include "kelifc/import/read_member.h"

namespace KelIFC {

namespace {

template <class Element, class Release, class Collection, class Product>
HRESULT ConvertMembers(Collection& collection, CoIFCServer& server,
                       const Products<Product>& products) {
  ElementMaker<Element, Collection> maker(collection, server);
  const HRESULT status = maker.Open();
  if (FAILED(status)) return status;
  MemberReader<Release> reader(server.Model(), server.GetLengthScale());
  MemberBuilder builder(maker);
  for (const Product* product : products) builder.ConvertLinearMember(reader.Read(*product));
  return S_OK;
}

}  // namespace

HRESULT FillColumns(CoGeoColumns& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    using Release = decltype(release);
    return ConvertMembers<CoGeoColumn, Release>(
        collection, server, CollectInstances<typename Release::IfcColumn>(server.Model()));
  });
}

HRESULT FillBeams(CoGeoBeams& collection, CoIFCServer& server, SHORT storeyFilter) {
  return FillElements(collection, server, storeyFilter, [&](auto release) {
    return ConvertMembers<CoGeoBeam, decltype(release)>(collection, server,
                                                        CollectBeams(server.Model(), release));
  });
}

}  // namespace KelIFC
