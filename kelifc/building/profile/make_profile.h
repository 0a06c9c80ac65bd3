#ifndef KELIFC_BUILDING_PROFILE_MAKE_PROFILE_H_
#define KELIFC_BUILDING_PROFILE_MAKE_PROFILE_H_

#include <optional>
#include <string>
#include <vector>

#include "kelifc/building/facts/profile_facts.h"
#include "kelifc/building/profile.h"
#include "kelifc/building/solid/slice.h"

namespace KelIFC::building {

/// The regions of a profile in the coordinates of the file's profile, `position` applied, arcs kept
/// as arcs. Empty if the sizes make no shape, as a negative width or a wall thicker than half the
/// width does.
std::vector<Region> RegionsOf(const ProfileFacts& facts);

/// A contour with its arcs cut into chords of the error kChordError, a full circle into 38 chords
/// or more. Repeated points and points in the middle of a straight edge are left out. Empty if a
/// coordinate is not finite or beyond 1e9 m, or if less than three points are left.
Outline Flatten(const Contour& contour);

/// A region with its arcs cut into chords; the outer loop counter-clockwise, holes clockwise. Holes
/// without an area are left out. None if the outer loop has no area, if a loop crosses itself or
/// another one, or if a hole is not inside of the outer loop. Loops may touch.
std::optional<FlatRegion> Flatten(const Region& region);

/// A profile and the place of the file's profile origin in its coordinates.
struct PlacedProfile {
  BuildingProfile profile;
  Vector2 offset;
};

/// The profile of an extrusion: profile X becomes y, profile Y becomes z, the origin moves to the
/// centroid. Its sizes are those of the file where the file has a shape, otherwise those that
/// RecogniseShape finds. A position that turns by a multiple of 90 degrees or by any angle turns
/// the outline. A rectangle, an ellipse or an L that is turned by 90 degrees has h and b exchanged,
/// so that h lies along z. None if the facts make no region or more than one.
std::optional<PlacedProfile> MakeProfile(const ProfileFacts& facts);

/// The profile of a region that was found by slicing: the axes are turned to the principal axes
/// with iy >= iz (the outline stays as it is if that is within 0.01 degrees), the origin moves to
/// the centroid. `rotation` and `centroid` say how: profile coordinates (y, z) come from region
/// coordinates by subtracting the centroid and turning by -rotation, which is more than -90 and at
/// most 90 degrees. A region without distinct principal axes, as a square, is turned to its longest
/// edge by at most 45 degrees. The shape is recognised in any rotation: an L has principal axes
/// beside its legs. Area and moments are those of the polygon.
struct SlicedProfile {
  BuildingProfile profile;
  Point2 centroid;
  double rotation = 0.0;  ///< in radians
};
SlicedProfile MakeProfile(const FlatRegion& region, const std::string& name);

/// Area, centroid and second moments of a region about its centroid.
struct RegionProperties {
  double area = 0.0;
  Point2 centroid;
  double iy = 0.0;
  double iz = 0.0;
  double iyz = 0.0;
};
RegionProperties PropertiesOf(const FlatRegion& region);

/// Recognises the shape of an outline whose origin is its centroid, within 0.5 mm, in any of the
/// eight positions (turned by 90 degrees, mirrored), and sets shape and parameters of the profile.
/// Fillets made of chords count as fillets, circles made of chords as circles. A shape that is
/// turned by 90 degrees against its standard position stays kArbitrary unless its parameters can
/// describe it (a rectangle can). Returns false, and leaves kArbitrary, if there is none.
bool RecogniseShape(BuildingProfile& profile);

/// Sets the designation from the sizes, within the tolerances of the dimension tables, and
/// `nameContradicts` from the name. A shape that is turned, which stays kArbitrary, has its
/// designation, too. An outline without a shape has the designation of its name if the extents and
/// the area agree with it.
void Designate(BuildingProfile& profile);

/// True if two profiles are one: shape and parameters, rounded to 0.01 mm, are equal, and the
/// outlines are turned and mirrored alike; of kArbitrary all points. Names do not count.
bool AreSameProfile(const BuildingProfile& a, const BuildingProfile& b);

/// A text that is equal for profiles that are one.
std::string ProfileKey(const BuildingProfile& profile);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_MAKE_PROFILE_H_
