#ifndef KELIFC_GEO_WALL_H_
#define KELIFC_GEO_WALL_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/openings.h"
#include "kelifc/geo/polyline_element.h"

namespace KelIFC {

/// A wall: the foot of one end of its axis and the head of the other, a thick section, windows and
/// doors.
class CoGeoWall : public PolylineElement<CoGeoWallBase> {
 public:
  HRESULT get_Windows(IGeoWindows** out) override {
    return GiveOpenings<CoGeoWindows>(windows, out, server);
  }
  HRESULT get_Doors(IGeoDoors** out) override {
    return GiveOpenings<CoGeoDoors>(doors, out, server);
  }

  /// No wall is open, so every wall is closed.
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
