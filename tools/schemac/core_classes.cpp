#include "tools/schemac/core_classes.h"

#include <array>

namespace schemac {

namespace {

constexpr std::array kCoreClasses = {
    CoreClass{"IfcUnknown", "kelifc/core/unknown.h", true, true},
    CoreClass{"IfcValue", "kelifc/core/value.h", true, false},
    CoreClass{"IfcMaterialSelect", "kelifc/core/selects.h", true, false},
    CoreClass{"IfcActorSelect", "kelifc/core/selects.h", true, false},
    CoreClass{"IfcTrimmingSelect", "kelifc/core/selects.h", false, false},
    CoreClass{"IfcBooleanOperand", "kelifc/core/selects.h", false, false},
    CoreClass{"IfcGeometricSetSelect", "kelifc/core/selects.h", false, false},
    CoreClass{"IfcUnit", "kelifc/core/selects.h", false, false},
    CoreClass{"IfcRepresentationItem", "kelifc/core/representation_item.h", true, false},
    CoreClass{"IfcGeometricRepresentationItem", "kelifc/core/representation_item.h", true, false},
    CoreClass{"IfcSurface", "kelifc/core/representation_item.h", true, false},
    CoreClass{"IfcSolidModel", "kelifc/core/representation_item.h", true, false},
    CoreClass{"IfcPoint", "kelifc/core/representation_item.h", true, false},
    CoreClass{"IfcCartesianPoint", "kelifc/core/cartesian_point.h", true, true},
    CoreClass{"IfcBoundingBox", "kelifc/core/bounding_box.h", true, true},
    CoreClass{"IfcUnitAssignment", "kelifc/core/unit_assignment.h", true, true},
    CoreClass{"IfcTrimmingPreference", "kelifc/core/trimming_preference.h", false, false},
    CoreClass{"IfcLengthMeasure", "kelifc/core/length_measure.h", true, true},
    CoreClass{"IfcParameterValue", "kelifc/core/parameter_value.h", true, true},
};

}  // namespace

const CoreClass* FindCoreClass(std::string_view name) {
  for (const auto& row : kCoreClasses) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

std::set<std::string> CoreHeaders() {
  std::set<std::string> headers;
  for (const auto& row : kCoreClasses) headers.emplace(row.header);
  return headers;
}

}  // namespace schemac
