#ifndef KELIFC_CORE_SELECTS_H_
#define KELIFC_CORE_SELECTS_H_

#include "kelifc/core/unknown.h"

// A select of the schema is a base of the classes that it may hold. Two of them are instances; the
// others only mark a class, and a dynamic_cast leads from them to the instance.

namespace KelIFC {

/// What a material can be given by: a material, a layer set, its usage or a list.
class KELIFC_API IfcMaterialSelect : public IfcUnknown {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  IfcMaterialSelect(const IfcMaterialSelect&) = default;
  IfcMaterialSelect& operator=(const IfcMaterialSelect&) = default;

 protected:
  IfcMaterialSelect() = default;
  ~IfcMaterialSelect() override;
};

/// Who can act: a person, an organization, or a person in an organization.
class KELIFC_API IfcActorSelect : public IfcUnknown {
 public:
  static const char* GetItemName();
  const char* GetStepName() const override;

  IfcActorSelect(const IfcActorSelect&) = default;
  IfcActorSelect& operator=(const IfcActorSelect&) = default;

 protected:
  IfcActorSelect() = default;
  ~IfcActorSelect() override;
};

/// What a curve can be trimmed by: a point or a parameter.
class KELIFC_API IfcTrimmingSelect {
 public:
  IfcTrimmingSelect(const IfcTrimmingSelect&) = default;
  IfcTrimmingSelect& operator=(const IfcTrimmingSelect&) = default;

 protected:
  IfcTrimmingSelect() = default;
  virtual ~IfcTrimmingSelect();
};

/// What a boolean operation works on: a solid, a half space or a result.
class KELIFC_API IfcBooleanOperand {
 public:
  IfcBooleanOperand(const IfcBooleanOperand&) = default;
  IfcBooleanOperand& operator=(const IfcBooleanOperand&) = default;

 protected:
  IfcBooleanOperand() = default;
  virtual ~IfcBooleanOperand();
};

/// What a geometric set holds: points, curves and surfaces.
class KELIFC_API IfcGeometricSetSelect {
 public:
  IfcGeometricSetSelect(const IfcGeometricSetSelect&) = default;
  IfcGeometricSetSelect& operator=(const IfcGeometricSetSelect&) = default;

 protected:
  IfcGeometricSetSelect() = default;
  virtual ~IfcGeometricSetSelect();
};

/// What can be a unit in an assignment.
class KELIFC_API IfcUnit {
 public:
  IfcUnit(const IfcUnit&) = default;
  IfcUnit& operator=(const IfcUnit&) = default;

 protected:
  IfcUnit() = default;
  virtual ~IfcUnit();
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_SELECTS_H_
