#ifndef KELIFC_GEO_OPENINGS_H_
#define KELIFC_GEO_OPENINGS_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/collections.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/polyline_element.h"

namespace KelIFC {

/// A window: opposite corners at the middle of the opening's depth.
class CoGeoWindow : public OpenElement<CoGeoWindowBase> {
 protected:
  ~CoGeoWindow() override = default;
};

/// A door, told as a window is.
class CoGeoDoor : public OpenElement<CoGeoDoorBase> {
 protected:
  ~CoGeoDoor() override = default;
};

/// A hole: its contour at the middle of the opening's depth.
class CoGeoHole : public OpenElement<CoGeoHoleBase> {
 protected:
  ~CoGeoHole() override = default;
};

/// Gives the collection of openings that `child` caches. It is made empty; the conversion of its
/// owner adds the items.
template <class Collection>
HRESULT GiveOpenings(ComPtr<OwnInterface<Collection>>& child, OwnInterface<Collection>** out,
                     const ServerLink& server) {
  return GiveChild<Collection>(child, out, [&](Collection& made) {
    made.SetServer(server);
    return S_OK;
  });
}

}  // namespace KelIFC

#endif  // KELIFC_GEO_OPENINGS_H_
