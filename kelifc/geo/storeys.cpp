#include "kelifc/geo/storeys.h"

namespace KelIFC {

const CoGeoStorey* CoGeoStoreys::Find(const _GUID& guid) {
  for (; indexed < Items().size(); ++indexed) {
    const auto& storey = static_cast<const CoGeoStorey&>(*Items()[indexed]);
    byGuid.emplace(storey.guid, &storey);
  }
  const auto found = byGuid.find(guid);
  return found == byGuid.end() ? nullptr : found->second;
}

}  // namespace KelIFC
