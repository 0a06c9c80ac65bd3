#ifndef KELIFC_IMPORT_CONVERT_ITEM_H_
#define KELIFC_IMPORT_CONVERT_ITEM_H_

#include "kelifc/geo/geo_object.h"
#include "kelifc/geo/structure.h"
#include "kelifc/import/member_facts.h"

namespace KelIFC {

/// What an item gives a column or a beam, in world coordinates.
struct MemberShape {
  /// The axis, from the profile's plane to the end of the extrusion. Both ends of a faceted solid
  /// are at the origin of the world. A circle without a position and a faceted solid without a
  /// shell have no axis.
  Mvector<Point3> points;
  BRep boundary;
};

/// Works out the shape of an item and gives the element its section. `outer` is the frame of the
/// map that brings the item: it acts inside the solid's own position. An item that no other product
/// shares gives its boundary away. Gives false if the item is not understood, or its section cannot
/// be made.
bool ConvertItem(MemberItemFacts& item, bool isShared, const Isometry3& outer,
                 const PlacementChain& chain, CoGeoStructure& structure, CoGeoObject& element,
                 MemberShape& shape);

/// The width and height that a rectangular section gets: the profile's x and y dimensions, changed
/// over if its reference direction points down.
Vector2 SectionSize(const ProfileFacts& rectangle);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_CONVERT_ITEM_H_
