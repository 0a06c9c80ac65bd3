#ifndef KELIFC_IMPORT_LINEAR_CONVERT_ITEM_H_
#define KELIFC_IMPORT_LINEAR_CONVERT_ITEM_H_

#include "kelifc/geo/geo_object.h"
#include "kelifc/geo/structure.h"
#include "kelifc/import/linear/linear_facts.h"

namespace KelIFC {

/// The shape of a column or a beam, in metres and world coordinates.
struct LinearShape {
  /// The two ends of the axis: in the plane of the profile, and at the end of the extrusion. A
  /// faceted solid has both ends at the origin of the world. A circle profile without a position
  /// and a faceted solid without a shell have no points.
  Mvector<Point3> points;

  /// Of a faceted solid. It has no shape for an extrusion, without a shell, and if it was not read.
  PlacedBoundary boundary;
};

/// Computes the shape of an item and sets the section of the element. Returns false if the profile
/// of the item is not supported, or if the section cannot be created.
///
/// `outer` is the transform of the representation map that the item comes from. It is applied to
/// the axis of an extrusion before the position of the solid is. `isShared` says whether there is
/// such a map.
bool ConvertItem(const LinearItemFacts& item, bool isShared, const Isometry3& outer,
                 const PlacementChain& chain, CoGeoStructure& structure, CoGeoObject& element,
                 LinearShape& shape);

/// Returns the width and the height of the section of a rectangle, in metres: its x and y
/// dimensions, which are swapped if its reference direction points down.
Vector2 SectionSize(const ProfileFacts& rectangle);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_LINEAR_CONVERT_ITEM_H_
