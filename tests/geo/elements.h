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

/// All element classes.
using ElementClasses = testing::Types<CoGeoColumn, CoGeoBeam, CoGeoPlate, CoGeoWall, CoGeoWindow,
                                      CoGeoDoor, CoGeoHole, CoGeoFoot>;

/// The element classes with several points.
using PolylineClasses = testing::Types<CoGeoColumn, CoGeoBeam, CoGeoPlate, CoGeoWall, CoGeoWindow,
                                       CoGeoDoor, CoGeoHole>;

/// Casts an interface to the class of its object.
template <class Class, class Interface>
Class& ObjectOf(const ComPtr<Interface>& object) {
  return static_cast<Class&>(*object);
}

/// Creates an element with a link to a server object, as the conversion does.
template <class Class>
ComPtr<typename Class::Interfaces::First> CreateElement(const ComPtr<IIFCServer>& server) {
  auto element = CreateOwn<Class>();
  ObjectOf<Class>(element).server = ObjectOf<CoIFCServer>(server).Link();
  return element;
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_GEO_ELEMENTS_H_
