#ifndef KELIFC_BUILDING_BUILD_IDEALISE_DIRECT_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_DIRECT_H_

#include <optional>
#include <vector>

#include "kelifc/building/build/idealise_reading.h"
#include "kelifc/building/facts/product_facts.h"

namespace KelIFC::building::idealising {

/// The solid that a product is made of, if there is one: below maps, and as the first operand of
/// boolean results.
struct SingleSolid {
  const Solid* solid = nullptr;  ///< null if there are several, or none
  Transform3 transform;          ///< of the coordinates of the solid to the world
  bool hasBoolean = false;       ///< parts of it may be cut off
  bool isSeveral = false;        ///< the product has several items, or a map of several
};
SingleSolid FindSingleSolid(const ProductFacts& product);

/// What the body of a product was made from; by the body alone if there is no product.
BodySource SourceOf(const ProductFacts* product, const SingleSolid& single,
                    const EvaluatedBody& body);

/// Reads a subject from the facts of its solid. None if they do not describe a member or a surface,
/// or if the coordinates of the solid are scaled differently along their axes.
std::optional<Reading> ReadDirect(Subject& subject, const SingleSolid& single);

/// An extrusion whose direction is square to its profile, in local coordinates of a boundary.
struct StraightExtrusion {
  PlaneFrame frame;  ///< of the profile in local coordinates; unit vectors
  Vector3 along;     ///< unit vector of the extrusion, square to the frame
  double depth = 0.0;
  double scale = 1.0;       ///< of lengths in the solid
  bool isMirrored = false;  ///< x and y of the frame and `along` are left-handed
};
std::optional<StraightExtrusion> MakeStraight(const Extrusion& extrusion,
                                              const Transform3& toLocal);

/// The directions in which the solid was swept, as unit vectors in the world.
std::vector<Vector3> DirectionsOf(const SingleSolid& single);

/// A point in world coordinates of the plane of the profile of an extrusion whose direction is
/// parallel to a normal.
std::optional<Point3> ProfilePlaneOf(const SingleSolid& single, const Vector3& normal);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_DIRECT_H_
