#ifndef KELIFC_GEO_OPENINGS_H_
#define KELIFC_GEO_OPENINGS_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/collections.h"
#include "kelifc/geo/creation.h"
#include "kelifc/geo/polyline_element.h"

namespace KelIFC {

/// A window: two opposite corners, in the middle of the depth of the opening.
class CoGeoWindow : public OpenElement<CoGeoWindowBase> {
 protected:
  ~CoGeoWindow() override = default;
};

/// A door: two opposite corners, as for a window.
class CoGeoDoor : public OpenElement<CoGeoDoorBase> {
 protected:
  ~CoGeoDoor() override = default;
};

/// A hole: its outline, in the middle of the depth of the opening.
class CoGeoHole : public OpenElement<CoGeoHoleBase> {
 protected:
  ~CoGeoHole() override = default;
};

/// Stores the collection of openings that `child` caches. It is created empty at the first call;
/// the conversion of the wall or plate adds the items.
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
