#ifndef KELIFC_TESTS_GEO_ELEMENTS_H_
#define KELIFC_TESTS_GEO_ELEMENTS_H_

#include <gtest/gtest.h>

#include "kelifc/geo/beam.h"
#include "kelifc/geo/column.h"
#include "kelifc/geo/foot.h"
#include "kelifc/geo/openings.h"
#include "kelifc/geo/plate.h"
#include "kelifc/geo/wall.h"

namespace KelIFC {

using ElementClasses = testing::Types<CoGeoColumn, CoGeoBeam, CoGeoPlate, CoGeoWall, CoGeoWindow,
                                      CoGeoDoor, CoGeoHole, CoGeoFoot>;
using PolylineClasses = testing::Types<CoGeoColumn, CoGeoBeam, CoGeoPlate, CoGeoWall, CoGeoWindow,
                                       CoGeoDoor, CoGeoHole>;

/// The element behind its interface.
template <class Class, class Interface>
Class& OwnOf(const ComPtr<Interface>& element) {
  return static_cast<Class&>(*element);
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_GEO_ELEMENTS_H_
