#ifndef KELIFC_BUILDING_BUILD_IDEALISE_BOX_H_
#define KELIFC_BUILDING_BUILD_IDEALISE_BOX_H_

#include <array>
#include <optional>

#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

/// A box in space: unit axes and sizes along them.
struct SpaceBox {
  Point3 centre;
  std::array<Vector3, 3> axes;
  std::array<double, 3> sizes = {};
};

/// True if the outline is a rectangle without holes, in any direction.
bool IsRectangle(const BuildingProfile& profile);

/// The box of a rectangle that is swept square to its plane. The first two axes are those of the
/// rectangle, the third is that of the extrusion.
SpaceBox MakeBox(const Outline& rectangle, const PlaneFrame& frame, const Vector3& along,
                 double depth);

/// The best of the six ways to see a box: a member along one of its axes, or a surface square to
/// one. None if the member along the third axis, whose suitability is `alongThird`, is the best:
/// the file's own profile describes it better.
std::optional<Reading> ReadBox(Subject& subject, const SpaceBox& box, double alongThird);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_IDEALISE_BOX_H_
