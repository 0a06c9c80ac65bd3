#ifndef KELIFC_CORE_BOUNDING_BOX_H_
#define KELIFC_CORE_BOUNDING_BOX_H_

#include <iosfwd>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/member.h"
#include "kelifc/core/representation_item.h"

namespace KelIFC {

/// A box with edges parallel to the axes. It has a corner with the lowest coordinates and an extent
/// along each axis, in the model's unit of length.
class KELIFC_API IfcBoundingBox : public IfcGeometricRepresentationItem {
 public:
  IfcBoundingBox();
  IfcBoundingBox(const IfcBoundingBox&) = default;
  IfcBoundingBox& operator=(const IfcBoundingBox&) = default;
  ~IfcBoundingBox() override;

  static const char* GetItemName();
  const char* GetStepName() const override;
  const char* Parse(const char* text) override;
  std::ostream& Write(std::ostream& out) const override;

  /// Returns the corner, which belongs to the model. Throws IfcException with
  /// CAUSE_MISSING_REFERENCE if the reference does not resolve to a point.
  virtual const IfcCartesianPoint* GetCorner() const;
  /// @{
  /// Returns the extent along an axis, which is unset if the file has none.
  virtual IfcLengthMeasure GetXDim() const;
  virtual IfcLengthMeasure GetYDim() const;
  virtual IfcLengthMeasure GetZDim() const;
  /// @}
  /// Returns the dimension of the corner. Throws as GetCorner does.
  virtual INTEGER GetDim() const;

  /// Sets the reference to a point of the model. A point that the model does not hold changes
  /// nothing.
  virtual void SetCorner(IfcCartesianPoint* point);
  /// @{
  /// Sets the extent along an axis. A negative extent is kept as it is.
  virtual void SetXDim(IfcLengthMeasure measure);
  virtual void SetYDim(IfcLengthMeasure measure);
  virtual void SetZDim(IfcLengthMeasure measure);
  /// @}

 protected:
  MEMBER corner{this};
  IfcLengthMeasure xDim;
  IfcLengthMeasure yDim;
  IfcLengthMeasure zDim;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_BOUNDING_BOX_H_
