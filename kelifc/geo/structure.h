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

/// The root of the converted model.
///
/// The operations that return a collection share these rules. The collection is created at the
/// first call and cached; each call stores the same object, counted for the caller. Storeys and
/// elements are converted from the model at the first call. If that fails, the failure is returned
/// once, and later calls return the collection with the items that it has. Without a server object,
/// or after that was released, a collection that would have to be converted is not created, and the
/// status is E_POINTER. On failure `out` is null; a null `out` returns E_POINTER.
///
/// The first of these calls fixes the reading of the server object. The complete reading fills the
/// storeys and the elements from the building model.
class CoGeoStructure : public CoGeoStructureBase {
 public:
  /// The storeys, in ascending order of their levels.
  HRESULT get_Storeys(IGeoStoreys** out) override;

  /// Elements of one kind, in the order in which their instances were registered. The conversion
  /// adds their sections to the structure.
  HRESULT get_Beams(IGeoBeams** out) override;
  HRESULT get_Columns(IGeoColumns** out) override;
  HRESULT get_Walls(IGeoWalls** out) override;
  HRESULT get_Plates(IGeoPlates** out) override;
  HRESULT get_Foots(IGeoFoots** out) override;

  /// The sections of the elements that have been converted so far.
  HRESULT get_Sections(IGeoSections** out) override;

  /// Always empty collections, which need no server object.
  HRESULT get_Materials(IGeoMaterials** out) override;
  HRESULT get_Objects(IGeoObjects** out) override;

  /// Stores the version of the library, such as "25.0.3857".
  HRESULT get_Version(BSTR* out) override;

  /// Stores whether the library is at least as new as `version`; see ParseVersionText for its form.
  /// Returns E_POINTER if `out` is null.
  HRESULT IsCompatible(BSTR version, VARIANT_BOOL* out) override;

  /// Sets the server object whose model is converted.
  void SetServer(ServerLink link) { server = std::move(link); }

  // Operations for the conversion. Each gives the element a section: the first one of the same kind
  // whose sizes all differ by less than 0.001 from the given ones, or a new one. Sizes are in
  // metres. The sections are created if they do not exist yet. On failure the section of the
  // element is unchanged.

  /// A rectangle with the width `a` and the height `b`.
  HRESULT EnsureSectionR(CoGeoObject& element, double a, double b);

  /// A circle.
  HRESULT EnsureSectionC(CoGeoObject& element, double diameter);

  /// A T with the web width `a`, the height `b`, the flange width `c` and the flange thickness `d`.
  HRESULT EnsureSectionT(CoGeoObject& element, double a, double b, double c, double d);

  /// A thickness, for walls and plates.
  HRESULT EnsureSectionThick(CoGeoObject& element, double thickness);

  /// Always adds a new polygon section. Its name contains the number of points and the size of the
  /// polygon; the points are not kept.
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
