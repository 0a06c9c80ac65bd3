#ifndef KELIFC_CORE_SELECTS_H_
#define KELIFC_CORE_SELECTS_H_

#include "kelifc/core/unknown.h"

// A select of the schema is a base class of the classes that it can hold. IfcMaterialSelect and
// IfcActorSelect derive from IfcUnknown. The other selects only mark a class; use dynamic_cast to
// reach the instance.

namespace KelIFC {

/// The kinds of a material: a material, a layer set, the usage of a layer set or a list.
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

/// The kinds of an actor: a person, an organization, or a person in an organization.
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

/// The kinds of a trim of a curve: a point or a parameter.
class KELIFC_API IfcTrimmingSelect {
 public:
  IfcTrimmingSelect(const IfcTrimmingSelect&) = default;
  IfcTrimmingSelect& operator=(const IfcTrimmingSelect&) = default;

 protected:
  IfcTrimmingSelect() = default;
  virtual ~IfcTrimmingSelect();
};

/// The operands of a boolean operation: a solid, a half space or a result of an operation.
class KELIFC_API IfcBooleanOperand {
 public:
  IfcBooleanOperand(const IfcBooleanOperand&) = default;
  IfcBooleanOperand& operator=(const IfcBooleanOperand&) = default;

 protected:
  IfcBooleanOperand() = default;
  virtual ~IfcBooleanOperand();
};

/// The items of a geometric set: points, curves and surfaces.
class KELIFC_API IfcGeometricSetSelect {
 public:
  IfcGeometricSetSelect(const IfcGeometricSetSelect&) = default;
  IfcGeometricSetSelect& operator=(const IfcGeometricSetSelect&) = default;

 protected:
  IfcGeometricSetSelect() = default;
  virtual ~IfcGeometricSetSelect();
};

/// The kinds of a unit in a unit assignment.
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
