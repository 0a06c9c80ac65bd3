#ifndef KELIFC_GEOMETRY_SECTOR2_H_
#define KELIFC_GEOMETRY_SECTOR2_H_

#include <cstdint>

#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A segment in the plane, with the equation of its line: a * x + b * y + c = 0. A new one is all
/// zero.
struct KELIFC_API Sector2 {
  double a = 0.0;              ///< the factor of x
  double b = 0.0;              ///< the factor of y
  double c = 0.0;              ///< the constant
  double unused1 = 0.0;        ///< keeps the size of the structure
  double unused2 = 0.0;        ///< keeps the size of the structure
  std::int8_t state = 0;       ///< every change sets it to 0; the library does not read it
  std::int8_t unusedFlag = 0;  ///< every change sets it to 0; the library does not read it
  Point2 start;                ///< where the segment begins
  Point2 end;                  ///< where the segment ends

  Sector2() = default;

  /// The segment between two points. They may coincide; then `a`, `b` and `c` are 0.
  Sector2(const Point2& from, const Point2& to) : start(from), end(to) { Update(); }

  /// @{
  /// Moves one end of the segment and computes the equation again.
  void SetStart(const Point2& point);
  void SetEnd(const Point2& point);
  /// @}

  /// Exchanges the ends and negates the equation.
  void Reverse();

 private:
  void Update();
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_SECTOR2_H_
