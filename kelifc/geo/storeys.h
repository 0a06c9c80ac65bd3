#ifndef KELIFC_GEO_STOREYS_H_
#define KELIFC_GEO_STOREYS_H_

#include <cstddef>
#include <cstring>
#include <functional>
#include <string_view>
#include <unordered_map>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/collection.h"
#include "kelifc/geo/storey.h"

namespace KelIFC {

/// The storeys of a structure, in ascending order of their levels. After the collection is filled,
/// neither its items nor their identifiers change.
class CoGeoStoreys : public ModelCollection<CoGeoStoreysBase, IGeoStorey> {
 public:
  /// Returns the first storey with an identifier, or null.
  const CoGeoStorey* Find(const _GUID& guid);

 protected:
  ~CoGeoStoreys() = default;

 private:
  struct Hash {
    std::size_t operator()(const _GUID& guid) const {
      return std::hash<std::string_view>()({reinterpret_cast<const char*>(&guid), sizeof guid});
    }
  };

  std::unordered_map<_GUID, const CoGeoStorey*, Hash> byGuid;
  std::size_t indexed = 0;  // number of storeys in `byGuid`
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_STOREYS_H_
