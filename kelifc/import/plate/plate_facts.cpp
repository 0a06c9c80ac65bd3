#include "kelifc/import/plate/plate_facts.h"

#include <cmath>

#include "kelifc/geometry/constants.h"

namespace KelIFC {

std::optional<PlateShape> ExtractPlateShape(const ExtrusionFacts& solid) {
  PlateShape plate;
  plate.contour = ContourOf(solid.profile);
  if (plate.contour.size() <= 2) return std::nullopt;
  const Vector3 extrusion = ExtrusionOf(solid);
  const Vector3 half = extrusion * 0.5;
  for (Point3& point : plate.contour) point = solid.position.Apply(point + half);
  plate.thickness = solid.scale * solid.depth * std::abs(std::cos(Angle(extrusion, AxisZ)));
  return plate;
}

}  // namespace KelIFC
