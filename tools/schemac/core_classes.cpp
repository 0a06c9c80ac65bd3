#include "tools/schemac/core_classes.h"

namespace schemac {

namespace {

constexpr std::string_view kSelects = "kelifc/core/selects.h";
constexpr std::string_view kItems = "kelifc/core/representation_item.h";
constexpr std::string_view kGeometricItem = "IfcGeometricRepresentationItem";

constexpr std::array kCoreClasses = {
    CoreClass{kRoot, "kelifc/core/unknown.h", true, true, CoreForm::kOther},
    CoreClass{"IfcTrimmingPreference", "kelifc/core/trimming_preference.h", false, false,
              CoreForm::kOther},
    CoreClass{"IfcValue", "kelifc/core/value.h", true, false, CoreForm::kSelect},
    CoreClass{"IfcMaterialSelect", kSelects, true, false, CoreForm::kSelect},
    CoreClass{"IfcActorSelect", kSelects, true, false, CoreForm::kSelect},
    CoreClass{"IfcTrimmingSelect", kSelects, false, false, CoreForm::kSelect},
    CoreClass{"IfcBooleanOperand", kSelects, false, false, CoreForm::kSelect},
    CoreClass{"IfcGeometricSetSelect", kSelects, false, false, CoreForm::kSelect},
    CoreClass{"IfcUnit", kSelects, false, false, CoreForm::kSelect},
    CoreClass{"IfcRepresentationItem", kItems, true, false, CoreForm::kAbstract},
    CoreClass{kGeometricItem, kItems, true, false, CoreForm::kAbstract, {"IfcRepresentationItem"}},
    CoreClass{"IfcSurface", kItems, true, false, CoreForm::kAbstract, {kGeometricItem}},
    CoreClass{"IfcSolidModel",
              kItems,
              true,
              false,
              CoreForm::kAbstract,
              {kGeometricItem, "IfcBooleanOperand"}},
    CoreClass{"IfcPoint",
              kItems,
              true,
              false,
              CoreForm::kAbstract,
              {kGeometricItem, "IfcGeometricSetSelect"}},
    CoreClass{"IfcCartesianPoint",
              "kelifc/core/cartesian_point.h",
              true,
              true,
              CoreForm::kEntity,
              {"IfcPoint", "IfcTrimmingSelect"}},
    CoreClass{"IfcBoundingBox",
              "kelifc/core/bounding_box.h",
              true,
              true,
              CoreForm::kEntity,
              {kGeometricItem}},
    CoreClass{"IfcUnitAssignment", "kelifc/core/unit_assignment.h", true, true, CoreForm::kEntity},
    CoreClass{"IfcLengthMeasure",
              "kelifc/core/length_measure.h",
              true,
              true,
              CoreForm::kValue,
              {"IfcValue"}},
    // A load reads these two value types as an IfcLengthMeasure.
    CoreClass{"IfcPositiveLengthMeasure",
              "kelifc/core/length_measure.h",
              true,
              false,
              CoreForm::kValue,
              {"IfcLengthMeasure"}},
    CoreClass{"IfcRatioMeasure",
              "kelifc/core/length_measure.h",
              true,
              false,
              CoreForm::kValue,
              {"IfcValue"}},
    CoreClass{"IfcParameterValue",
              "kelifc/core/parameter_value.h",
              true,
              true,
              CoreForm::kValue,
              {"IfcTrimmingSelect"}},
};

constexpr std::array kCoreAttributes = {
    CoreAttribute{"IfcCartesianPoint", "Coordinates", Kind::kCoordinates, "", "GetCoordinates",
                  "SetCoordinates"},
    CoreAttribute{"IfcBoundingBox", "Corner", Kind::kReference, "IfcCartesianPoint", "GetCorner",
                  "SetCorner"},
    CoreAttribute{"IfcBoundingBox", "XDim", Kind::kMeasure, "", "GetXDim", "SetXDim"},
    CoreAttribute{"IfcBoundingBox", "YDim", Kind::kMeasure, "", "GetYDim", "SetYDim"},
    CoreAttribute{"IfcBoundingBox", "ZDim", Kind::kMeasure, "", "GetZDim", "SetZDim"},
    CoreAttribute{"IfcUnitAssignment", "Units", Kind::kSet, "IfcUnit", "GetUnits", "AddUnit"},
};

}  // namespace

const CoreClass* FindCoreClass(std::string_view name) {
  for (const auto& row : kCoreClasses) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

std::vector<const CoreClass*> CoreClasses() {
  std::vector<const CoreClass*> classes;
  classes.reserve(kCoreClasses.size());
  for (const auto& row : kCoreClasses) classes.push_back(&row);
  return classes;
}

std::vector<const CoreAttribute*> AttributesOf(const CoreClass& type) {
  std::vector<const CoreAttribute*> attributes;
  for (const auto& row : kCoreAttributes) {
    if (row.owner == type.name) attributes.push_back(&row);
  }
  return attributes;
}

std::set<std::string> CoreHeaders() {
  std::set<std::string> headers;
  for (const auto& row : kCoreClasses) headers.emplace(row.header);
  return headers;
}

}  // namespace schemac
