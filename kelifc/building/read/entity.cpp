#include "kelifc/building/read/entity.h"

#include <algorithm>
#include <array>

namespace KelIFC::building {
namespace {

// In the order of Entity.
constexpr std::array<EntityRow, kEntityCount> kRows = {{
    {"", 0},
    {"IfcProject", kIsSpatial},
    {"IfcSite", kIsSpatial},
    {"IfcBuilding", kIsSpatial},
    {"IfcBuildingStorey", kIsSpatial},
    {"IfcSpace", kIsSpatial},
    {"IfcOwnerHistory", 0},
    {"IfcApplication", 0},
    {"IfcGeometricRepresentationContext", 0},
    {"IfcGeometricRepresentationSubContext", 0},
    {"IfcUnitAssignment", 0},
    {"IfcSIUnit", 0},
    {"IfcConversionBasedUnit", 0},
    {"IfcMeasureWithUnit", 0},
    {"IfcColumn", kIsElement | kIsStructural | kHasParts},
    {"IfcBeam", kIsElement | kIsStructural | kHasParts},
    {"IfcMember", kIsElement | kIsStructural | kHasParts},
    {"IfcWall", kIsElement | kIsStructural | kHasParts},
    {"IfcWallStandardCase", kIsElement | kIsStructural | kHasParts},
    {"IfcSlab", kIsElement | kIsStructural | kHasParts},
    {"IfcPlate", kIsElement | kIsStructural | kHasParts},
    {"IfcFooting", kIsElement | kIsStructural | kHasParts},
    {"IfcPile", kIsElement | kIsStructural | kHasParts},
    {"IfcStairFlight", kIsElement | kIsStructural | kHasParts},
    {"IfcRampFlight", kIsElement | kIsStructural | kHasParts},
    {"IfcRoof", kIsElement | kHasParts},
    {"IfcStair", kIsElement | kHasParts},
    {"IfcRamp", kIsElement | kHasParts},
    {"IfcElementAssembly", kIsElement | kHasParts},
    {"IfcBuildingElementPart", kIsElement},
    {"IfcBuildingElementProxy", kIsElement},
    {"IfcCurtainWall", kIsElement},
    {"IfcDoor", kIsElement},
    {"IfcWindow", kIsElement},
    {"IfcRailing", kIsElement | kIsAccessory},
    {"IfcCovering", kIsElement | kIsAccessory},
    {"IfcFastener", kIsElement | kIsAccessory},
    {"IfcMechanicalFastener", kIsElement | kIsAccessory},
    {"IfcDiscreteAccessory", kIsElement | kIsAccessory},
    {"IfcVibrationIsolator", kIsElement | kIsAccessory},
    {"IfcReinforcingBar", kIsElement | kIsAccessory},
    {"IfcReinforcingMesh", kIsElement | kIsAccessory},
    {"IfcTendon", kIsElement | kIsAccessory},
    {"IfcTendonAnchor", kIsElement | kIsAccessory},
    {"IfcOpeningElement", 0},
    {"IfcFurnishingElement", kIsElement},
    {"IfcEquipmentElement", kIsElement},
    {"IfcElectricalElement", kIsElement},
    {"IfcTransportElement", kIsElement},
    {"IfcPermeableCovering", kIsElement | kIsAccessory},
    {"IfcDistributionElement", kIsElement},
    {"IfcDistributionControlElement", kIsElement},
    {"IfcDistributionFlowElement", kIsElement},
    {"IfcDistributionChamberElement", kIsElement},
    {"IfcEnergyConversionDevice", kIsElement},
    {"IfcFlowController", kIsElement},
    {"IfcFlowFitting", kIsElement},
    {"IfcFlowMovingDevice", kIsElement},
    {"IfcFlowSegment", kIsElement},
    {"IfcFlowStorageDevice", kIsElement},
    {"IfcFlowTerminal", kIsElement},
    {"IfcFlowTreatmentDevice", kIsElement},
    {"IfcRelAggregates", kIsRelationship},
    {"IfcRelVoidsElement", kIsRelationship},
    {"IfcRelFillsElement", kIsRelationship},
    {"IfcRelContainedInSpatialStructure", kIsRelationship},
    {"IfcRelAssociatesMaterial", kIsRelationship},
    {"IfcRelDefinesByType", kIsRelationship},
    {"IfcMaterial", 0},
    {"IfcMaterialList", 0},
    {"IfcMaterialLayer", 0},
    {"IfcMaterialLayerSet", 0},
    {"IfcMaterialLayerSetUsage", 0},
    {"IfcProductDefinitionShape", 0},
    {"IfcProductRepresentation", 0},
    {"IfcShapeRepresentation", 0},
    {"IfcRepresentation", 0},
    {"IfcMappedItem", kIsSolidItem},
    {"IfcRepresentationMap", 0},
    {"IfcLocalPlacement", 0},
    {"IfcGridPlacement", 0},
    {"IfcAxis1Placement", 0},
    {"IfcAxis2Placement2D", kIsNeverBody},
    {"IfcAxis2Placement3D", kIsNeverBody},
    {"IfcCartesianTransformationOperator2D", 0},
    {"IfcCartesianTransformationOperator2DnonUniform", 0},
    {"IfcCartesianTransformationOperator3D", 0},
    {"IfcCartesianTransformationOperator3DnonUniform", 0},
    {"IfcCartesianPoint", kIsNeverBody},
    {"IfcDirection", 0},
    {"IfcVector", 0},
    {"IfcPolyline", kIsNeverBody},
    {"IfcCompositeCurve", kIsNeverBody},
    {"Ifc2DCompositeCurve", kIsNeverBody},
    {"IfcCompositeCurveSegment", 0},
    {"IfcTrimmedCurve", kIsNeverBody},
    {"IfcLine", kIsNeverBody},
    {"IfcCircle", kIsNeverBody},
    {"IfcEllipse", kIsNeverBody},
    {"IfcBezierCurve", kIsNeverBody},
    {"IfcRationalBezierCurve", kIsNeverBody},
    {"IfcOffsetCurve2D", kIsNeverBody},
    {"IfcPlane", 0},
    {"IfcCurveBoundedPlane", 0},
    {"IfcRectangularTrimmedSurface", 0},
    {"IfcSurfaceOfLinearExtrusion", 0},
    {"IfcArbitraryClosedProfileDef", 0},
    {"IfcArbitraryProfileDefWithVoids", 0},
    {"IfcArbitraryOpenProfileDef", 0},
    {"IfcCenterLineProfileDef", 0},
    {"IfcCompositeProfileDef", 0},
    {"IfcDerivedProfileDef", 0},
    {"IfcRectangleProfileDef", 0},
    {"IfcRoundedRectangleProfileDef", 0},
    {"IfcRectangleHollowProfileDef", 0},
    {"IfcTrapeziumProfileDef", 0},
    {"IfcCircleProfileDef", 0},
    {"IfcCircleHollowProfileDef", 0},
    {"IfcEllipseProfileDef", 0},
    {"IfcIShapeProfileDef", 0},
    {"IfcAsymmetricIShapeProfileDef", 0},
    {"IfcLShapeProfileDef", 0},
    {"IfcUShapeProfileDef", 0},
    {"IfcTShapeProfileDef", 0},
    {"IfcCShapeProfileDef", 0},
    {"IfcZShapeProfileDef", 0},
    {"IfcCraneRailAShapeProfileDef", 0},
    {"IfcCraneRailFShapeProfileDef", 0},
    {"IfcExtrudedAreaSolid", kIsSolidItem},
    {"IfcExtrudedAreaSolidTapered", kIsSolidItem},
    {"IfcRevolvedAreaSolid", kIsSolidItem},
    {"IfcSweptDiskSolid", kIsSolidItem},
    {"IfcSurfaceCurveSweptAreaSolid", kIsSolidItem},
    {"IfcFacetedBrep", kIsSolidItem},
    {"IfcFacetedBrepWithVoids", kIsSolidItem},
    {"IfcFaceBasedSurfaceModel", kIsSolidItem},
    {"IfcShellBasedSurfaceModel", kIsSolidItem},
    {"IfcBooleanResult", kIsSolidItem},
    {"IfcBooleanClippingResult", kIsSolidItem},
    {"IfcHalfSpaceSolid", 0},
    {"IfcPolygonalBoundedHalfSpace", 0},
    {"IfcBoxedHalfSpace", 0},
    {"IfcCsgSolid", kIsSolidItem},
    {"IfcBlock", kIsSolidItem},
    {"IfcRectangularPyramid", kIsSolidItem},
    {"IfcRightCircularCylinder", kIsSolidItem},
    {"IfcRightCircularCone", kIsSolidItem},
    {"IfcSphere", kIsSolidItem},
    {"IfcGeometricSet", kIsNeverBody},
    {"IfcGeometricCurveSet", kIsNeverBody},
    {"IfcBoundingBox", kIsNeverBody},
    {"IfcStyledItem", kIsNeverBody},
    {"IfcAnnotationFillArea", kIsNeverBody},
    {"IfcTextLiteral", kIsNeverBody},
    {"IfcTextLiteralWithExtent", kIsNeverBody},
    {"IfcConnectedFaceSet", kIsSolidItem},
    {"IfcClosedShell", kIsSolidItem},
    {"IfcOpenShell", kIsSolidItem},
    {"IfcFace", 0},
    {"IfcFaceSurface", 0},
    {"IfcFaceBound", 0},
    {"IfcFaceOuterBound", 0},
    {"IfcPolyLoop", 0},
    {"IfcEdgeLoop", 0},
    {"IfcVertexPoint", 0},
    {"IfcEdge", 0},
    {"IfcEdgeCurve", 0},
    {"IfcOrientedEdge", 0},
    {"IfcSubedge", 0},
}};

constexpr char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool IsBefore(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Lower(x) < Lower(y); });
}

using Order = std::array<Entity, kEntityCount>;

Order SortByName() {
  Order order;
  for (std::size_t i = 0; i < kEntityCount; ++i) order[i] = static_cast<Entity>(i);
  std::sort(order.begin(), order.end(),
            [](Entity a, Entity b) { return IsBefore(RowOf(a).name, RowOf(b).name); });
  return order;
}

}  // namespace

const EntityRow& RowOf(Entity entity) { return kRows[static_cast<std::size_t>(entity)]; }

Entity FindEntityByName(std::string_view name) {
  static const Order order = SortByName();
  const auto found =
      std::lower_bound(order.begin(), order.end(), name, [](Entity entity, std::string_view text) {
        return IsBefore(RowOf(entity).name, text);
      });
  return found != order.end() && !IsBefore(name, RowOf(*found).name) ? *found : Entity::kOther;
}

}  // namespace KelIFC::building
