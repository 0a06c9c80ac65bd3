#ifndef KELIFC_BUILDING_BUILD_IDEALISE_BEVEL_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_BEVEL_H_

#include <optional>

#include "kelifc/building/build/idealise_boundary.h"
#include "kelifc/building/build/idealise_scan.h"

namespace KelIFC::building::idealising {

/// Turns the points of a loop so that their places correspond to those of another one. False if
/// their numbers differ or are large.
bool Align(const Outline& model, Outline& loop);

/// The same for all loops of a region. False if the numbers of holes differ, too.
bool Align(const FlatRegion& model, FlatRegion& region);

/// The outline of a plate whose rim is not square to it, as at the mitre of a wall or at the eaves
/// of a roof: around the sections at both faces. `section` is the one in the middle. `beside` is
/// how far beside the faces the sections are taken, as a part of the thickness. None if the
/// sections do not correspond, or if no edge is bevelled.
std::optional<Outline> OutlineAroundBevels(Boundary& boundary, const PlaneFrame& plane,
                                           const Section& section, const Span& span, double beside);

/// Values of `beside`. A section must not run through points: the second value is for faces whose
/// points are rounded to 0.1 mm.
constexpr double kBesideFace = 1e-4;
constexpr double kBesideRoundedFace = 2e-3;

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_BEVEL_H_
