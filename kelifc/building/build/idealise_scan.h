#ifndef KELIFC_BUILDING_BUILD_IDEALISE_SCAN_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_SCAN_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "kelifc/building/build/idealise_boundary.h"
#include "kelifc/building/solid/slice.h"

namespace KelIFC::building::idealising {

/// A section that a boundary has over a part of its length.
struct Section {
  FlatRegion region;            ///< the largest one, in the coordinates of the plane
  std::size_t regionCount = 0;  ///< of those that are not tiny against the largest
  double area = 0.0;            ///< of the largest
  double length = 0.0;          ///< over which the section holds
  double at = 0.0;              ///< where it was taken, as a coordinate along the normal
};

/// The different sections of a boundary between two coordinates along the normal of a plane, that
/// of the greatest length first. The planes lie between the points of the boundary, at most
/// kMostStations of them; it stops when a section holds over more than half of the length.
std::vector<Section> ScanSections(Boundary& boundary, const PlaneFrame& plane, const Span& span);

constexpr std::size_t kMostStations = 24;

/// The section at a coordinate along the normal of a plane; none if the cut has no area.
std::optional<Section> SectionAt(Boundary& boundary, const PlaneFrame& plane, double at);

/// The intervals along a normal between two coordinates in which a boundary has no points, in
/// order.
std::vector<Span> IntervalsWithoutPoints(const Boundary& boundary, const Vector3& normal,
                                         const Span& span);

/// All regions of the section at a coordinate along the normal of a plane, the largest first.
std::vector<FlatRegion> RegionsAt(Boundary& boundary, const PlaneFrame& plane, double at);

/// The region of a section that lies around the origin of the plane: its box contains the origin.
/// None if there is no such region, or more than one.
std::optional<FlatRegion> RegionAround(Boundary& boundary, const PlaneFrame& plane);

/// The longest interval between two coordinates along a normal that no point of the boundary lies
/// in.
Span LongestGap(const Boundary& boundary, const Vector3& normal, const Span& span);

/// The area of a region without its holes.
double AreaOf(const FlatRegion& region);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_SCAN_H_
