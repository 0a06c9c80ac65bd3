#ifndef KELIFC_GEO_WALL_H_
#define KELIFC_GEO_WALL_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/openings.h"
#include "kelifc/geo/polyline_element.h"

namespace KelIFC {

/// A wall: the start of its axis at the bottom and the end of its axis at the top, a section with
/// the thickness, windows and doors.
class CoGeoWall : public PolylineElement<CoGeoWallBase> {
 public:
  HRESULT get_Windows(IGeoWindows** out) override {
    return GiveOpenings<CoGeoWindows>(windows, out, server);
  }
  HRESULT get_Doors(IGeoDoors** out) override {
    return GiveOpenings<CoGeoDoors>(doors, out, server);
  }

  /// Every wall is closed, so none is open.
  HRESULT get_IsOpen(VARIANT_BOOL* out) override { return GetField(VARIANT_FALSE, out); }
  HRESULT get_Closed(VARIANT_BOOL* out) override { return GetField(VARIANT_TRUE, out); }

 protected:
  ~CoGeoWall() override = default;

 private:
  ComPtr<IGeoDoors> doors;
  ComPtr<IGeoWindows> windows;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_WALL_H_
