#ifndef KELIFC_BUILDING_BUILD_IDEALISE_MEASURE_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_MEASURE_H_

#include <cstddef>
#include <optional>

#include "kelifc/building/build/idealise_boundary.h"

namespace KelIFC::building::idealising {

/// From which deviation on, in metres, an idealisation is approximate, and which part of the volume
/// it may be off.
constexpr double kExactDeviation = 0.005;
constexpr double kExactVolume = 0.02;

/// How well an idealised solid fits a body.
struct Fit {
  double deviation = 0.0;
  double volume = 0.0;          ///< of the idealised solid
  std::optional<double> ratio;  ///< of the volume to that of the body; none if that has none
  std::size_t cutouts = 0;
  bool isApproximate = true;
};

/// A face of the body whose points are nearer than this to the surface of the solid lies on it, in
/// metres. The chords of a curved body lie farther from the arcs of the solid than plane faces do.
constexpr double kOnPlaneSurface = 1e-3;
constexpr double kOnCurvedSurface = kExactDeviation;

/// Compares a solid with a body. All points that lie on each other count as no deviation; for the
/// others distances are computed. A part that is cut out of the solid is recognised by the faces of
/// the body inside of the solid: connected ones are one cut-out. `onSurface` is the distance within
/// which a face of the body lies on the solid.
Fit MeasureFit(Boundary& boundary, const Mesh& solid, double onSurface = kOnPlaneSurface);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_MEASURE_H_
