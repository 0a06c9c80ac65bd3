#ifndef KELIFC_GEO_COLUMN_H_
#define KELIFC_GEO_COLUMN_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/polyline_element.h"

namespace KelIFC {

/// A column: an axis of two points and a section. No operation shows the boundary of a faceted
/// column, so it has none.
class CoGeoColumn : public PolylineElement<CoGeoColumnBase> {
 protected:
  ~CoGeoColumn() override = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_COLUMN_H_
