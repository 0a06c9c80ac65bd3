#ifndef KELIFC_CORE_REPRESENTATION_ITEM_H_
#define KELIFC_CORE_REPRESENTATION_ITEM_H_

#include "kelifc/core/integer.h"
#include "kelifc/core/selects.h"
#include "kelifc/core/unknown.h"

// The abstract base classes of the items of a representation. They have no attributes.

namespace KelIFC {

/// An item of a representation.
class KELIFC_API IfcRepresentationItem : public IfcUnknown {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  IfcRepresentationItem(const IfcRepresentationItem&) = default;
  IfcRepresentationItem& operator=(const IfcRepresentationItem&) = default;

 protected:
  IfcRepresentationItem() = default;
  ~IfcRepresentationItem() override;
};

/// An item with a position in space or in the plane.
class KELIFC_API IfcGeometricRepresentationItem : public IfcRepresentationItem {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  IfcGeometricRepresentationItem(const IfcGeometricRepresentationItem&) = default;
  IfcGeometricRepresentationItem& operator=(const IfcGeometricRepresentationItem&) = default;

 protected:
  IfcGeometricRepresentationItem() = default;
  ~IfcGeometricRepresentationItem() override;
};

/// A surface.
class KELIFC_API IfcSurface : public IfcGeometricRepresentationItem {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  IfcSurface(const IfcSurface&) = default;
  IfcSurface& operator=(const IfcSurface&) = default;

 protected:
  IfcSurface() = default;
  ~IfcSurface() override;
};

/// A solid.
class KELIFC_API IfcSolidModel : public IfcGeometricRepresentationItem, public IfcBooleanOperand {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  /// Returns 3.
  virtual INTEGER GetDim() const;

  IfcSolidModel(const IfcSolidModel&) = default;
  IfcSolidModel& operator=(const IfcSolidModel&) = default;

 protected:
  IfcSolidModel() = default;
  ~IfcSolidModel() override;
};

/// A point.
class KELIFC_API IfcPoint : public IfcGeometricRepresentationItem, public IfcGeometricSetSelect {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  IfcPoint(const IfcPoint&) = default;
  IfcPoint& operator=(const IfcPoint&) = default;

 protected:
  IfcPoint() = default;
  ~IfcPoint() override;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_REPRESENTATION_ITEM_H_
