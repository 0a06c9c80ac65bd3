#ifndef KELIFC_GEO_STRUCTURE_H_
#define KELIFC_GEO_STRUCTURE_H_

#include <utility>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/server_link.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

/// The root of the converted model. Each collection is made when it is first asked for, filled from
/// the model where it can be, and kept. A collection that would have to be filled while there is no
/// server object, or no longer one, gives E_POINTER.
class CoGeoStructure : public CoGeoStructureBase {
 public:
  HRESULT get_Storeys(IGeoStoreys** out) override;
  HRESULT get_Beams(IGeoBeams** out) override;
  HRESULT get_Columns(IGeoColumns** out) override;
  HRESULT get_Walls(IGeoWalls** out) override;
  HRESULT get_Plates(IGeoPlates** out) override;
  HRESULT get_Foots(IGeoFoots** out) override;
  HRESULT get_Sections(IGeoSections** out) override;
  HRESULT get_Materials(IGeoMaterials** out) override;
  HRESULT get_Objects(IGeoObjects** out) override;

  HRESULT get_Version(BSTR* out) override;
  HRESULT IsCompatible(BSTR version, VARIANT_BOOL* out) override;

  void SetServer(ServerLink link) { server = std::move(link); }

 protected:
  ~CoGeoStructure() = default;

 private:
  ServerLink server;
  ComPtr<IGeoStoreys> storeys;
  ComPtr<IGeoObjects> objects;
  ComPtr<IGeoSections> sections;
  ComPtr<IGeoMaterials> materials;
  ComPtr<IGeoColumns> columns;
  ComPtr<IGeoBeams> beams;
  ComPtr<IGeoPlates> plates;
  ComPtr<IGeoWalls> walls;
  ComPtr<IGeoFoots> foots;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_STRUCTURE_H_
