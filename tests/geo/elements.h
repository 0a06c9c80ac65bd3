#ifndef KELIFC_TESTS_GEO_ELEMENTS_H_
#define KELIFC_TESTS_GEO_ELEMENTS_H_

#include <gtest/gtest.h>

#include "kelifc/geo/beam.h"
#include "kelifc/geo/column.h"
#include "kelifc/geo/foot.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/openings.h"
#include "kelifc/geo/plate.h"
#include "kelifc/geo/wall.h"

#include "tests/geo/host.h"

namespace KelIFC {

/// All classes of elements.
using ElementClasses = testing::Types<CoGeoColumn, CoGeoBeam, CoGeoPlate, CoGeoWall, CoGeoWindow,
                                      CoGeoDoor, CoGeoHole, CoGeoFoot>;

/// Those with points.
using PolylineClasses = testing::Types<CoGeoColumn, CoGeoBeam, CoGeoPlate, CoGeoWall, CoGeoWindow,
                                       CoGeoDoor, CoGeoHole>;

/// What stands behind an interface, known to be of the class.
template <class Class, class Interface>
Class& Behind(const ComPtr<Interface>& object) {
  return static_cast<Class&>(*object);
}

/// An element that belongs to a server object, as the conversion makes it.
template <class Class>
ComPtr<typename Class::Interfaces::First> CreateElement(const ComPtr<IIFCServer>& server) {
  auto element = CreateOwn<Class>();
  Behind<Class>(element).server = Behind<CoIFCServer>(server).Link();
  return element;
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_GEO_ELEMENTS_H_
