#ifndef KELIFC_GEO_STRUCTURE_H_
#define KELIFC_GEO_STRUCTURE_H_

#include <utility>

#include "kelifc/core/mvector.h"
#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/server_link.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

class CoGeoObject;

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

  // What the conversion asks for. Each gives the element a section: the first one whose sizes all
  // differ by less than a thousandth from those given, a new one if there is none. Sizes are in
  // metres. On failure the element's section stays as it was.

  HRESULT EnsureSectionR(CoGeoObject& element, double a, double b);
  HRESULT EnsureSectionC(CoGeoObject& element, double diameter);
  HRESULT EnsureSectionT(CoGeoObject& element, double a, double b, double c, double d);
  HRESULT EnsureSectionThick(CoGeoObject& element, double thickness);

  /// Gives the element a polygon section of its own. Only its name tells of the polygon.
  HRESULT AddSectionProfile(CoGeoObject& element, const Mvector<Point2>& polygon);

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
