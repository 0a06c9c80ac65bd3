#ifndef KELIFC_GEO_COLUMN_H_
#define KELIFC_GEO_COLUMN_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/polyline_element.h"
#include "kelifc/geometry/brep.h"

namespace KelIFC {

/// A column: an axis of two points and a section.
class CoGeoColumn : public PolylineElement<CoGeoColumnBase> {
 public:
  BRep boundary;  ///< of a faceted solid; no operation returns it

 protected:
  ~CoGeoColumn() override = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_COLUMN_H_
