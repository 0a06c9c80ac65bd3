#ifndef KELIFC_CORE_CARTESIAN_POINT_H_
#define KELIFC_CORE_CARTESIAN_POINT_H_

#include <cstddef>
#include <iosfwd>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/coordinates.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/representation_item.h"

namespace KelIFC {

/// A point with coordinates in the model's unit of length.
class KELIFC_API IfcCartesianPoint : public IfcPoint, public IfcTrimmingSelect {
 public:
  IfcCartesianPoint() = default;
  /// A point of that dimension with unset coordinates. A negative dimension counts as 0.
  explicit IfcCartesianPoint(INTEGER dimension);
  /// A point in the plane.
  IfcCartesianPoint(REAL x, REAL y);
  /// A point in space.
  IfcCartesianPoint(REAL x, REAL y, REAL z);
  IfcCartesianPoint(const IfcCartesianPoint&) = default;
  IfcCartesianPoint& operator=(const IfcCartesianPoint&) = default;
  ~IfcCartesianPoint() override;

  static const char* GetItemName();
  const char* GetStepName() const override;
  const char* Parse(const char* text) override;
  std::ostream& Write(std::ostream& out) const override;

  /// Returns a copy of the coordinates in their order.
  virtual LIST<IfcLengthMeasure> GetCoordinates() const;

 protected:
  virtual INTEGER _GetDim() const;

 public:
  /// Returns the number of coordinates.
  virtual INTEGER GetDim() const;
  /// Sets one coordinate; `index` counts from 1. An index out of range changes nothing.
  virtual void SetCoordinates(std::size_t index, REAL value);

  /// Returns the coordinates without a copy, for loops over many points.
  const COORDINATES& Coordinates() const { return coordinates; }

 protected:
  COORDINATES coordinates;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_CARTESIAN_POINT_H_
