#include "kelifc/core/representation_item.h"

namespace KelIFC {

IfcRepresentationItem::~IfcRepresentationItem() = default;
const char* IfcRepresentationItem::GetItemName() { return "IfcRepresentationItem"; }
const char* IfcRepresentationItem::GetStepName() const { return GetItemName(); }

IfcGeometricRepresentationItem::~IfcGeometricRepresentationItem() = default;
const char* IfcGeometricRepresentationItem::GetItemName() {
  return "IfcGeometricRepresentationItem";
}
const char* IfcGeometricRepresentationItem::GetStepName() const { return GetItemName(); }

IfcSurface::~IfcSurface() = default;
const char* IfcSurface::GetItemName() { return "IfcSurface"; }
const char* IfcSurface::GetStepName() const { return GetItemName(); }

IfcSolidModel::~IfcSolidModel() = default;
const char* IfcSolidModel::GetItemName() { return "IfcSolidModel"; }
const char* IfcSolidModel::GetStepName() const { return GetItemName(); }

IfcPoint::~IfcPoint() = default;
const char* IfcPoint::GetItemName() { return "IfcPoint"; }
const char* IfcPoint::GetStepName() const { return GetItemName(); }

INTEGER IfcSolidModel::GetDim() const { return INTEGER(3); }

}  // namespace KelIFC
