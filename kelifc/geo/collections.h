#ifndef KELIFC_GEO_COLLECTIONS_H_
#define KELIFC_GEO_COLLECTIONS_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/collection.h"

namespace KelIFC {

// The collections of the object model. The collections of storeys and sections are defined in
// storeys.h and sections.h.

using CoGeoColumns = ModelCollection<CoGeoColumnsBase, IGeoColumn>;
using CoGeoBeams = ModelCollection<CoGeoBeamsBase, IGeoBeam>;
using CoGeoWalls = ModelCollection<CoGeoWallsBase, IGeoWall>;
using CoGeoPlates = ModelCollection<CoGeoPlatesBase, IGeoPlate>;
using CoGeoFoots = ModelCollection<CoGeoFootsBase, IGeoFoot>;
using CoGeoWindows = ModelCollection<CoGeoWindowsBase, IGeoWindow>;
using CoGeoDoors = ModelCollection<CoGeoDoorsBase, IGeoDoor>;
using CoGeoHoles = ModelCollection<CoGeoHolesBase, IGeoHole>;

using CoGeoObjects = Collection<CoGeoObjectsBase, IGeoObject>;
using CoGeoPoints = Collection<CoGeoPointsBase, IGeoPoint>;
using CoGeoFaces = Collection<CoGeoFacesBase, IGeoFace>;
using CoGeoNumbers = Collection<CoGeoNumbersBase, LONG>;

/// The collection of materials. It is always empty: no material is converted. Its interface has no
/// Item, so an item is found by ItemByIndex.
class CoGeoMaterials : public ItemList<CoGeoMaterialsBase, IGeoMaterial> {
 public:
  HRESULT ItemByIndex(LONG index, IGeoMaterial** out) override { return GiveItem(index, out); }

 protected:
  ~CoGeoMaterials() = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_COLLECTIONS_H_
