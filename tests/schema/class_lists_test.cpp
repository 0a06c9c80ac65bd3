#include <algorithm>
#include <concepts>
#include <memory>
#include <set>
#include <sstream>
#include <type_traits>

#include "kelifc/server/release_tables.h"

#include "tests/schema/model.h"

// The agreed classes of each release: those that a file can contain, those that it cannot contain,
// and those that a host can create. The descriptions must define exactly these classes.

namespace KelIFC {
namespace {

using Names = std::set<std::string>;

Names Split(const char* text) {
  std::istringstream in(text);
  Names names;
  for (std::string name; in >> name;) names.insert(name);
  return names;
}

template <class R>
struct Expected;

template <>
struct Expected<Release151> {
  static constexpr auto kMake = &MakeInstance151;
  static constexpr const char* kFile =
      "Ifc2DCompositeCurve IfcArbitraryProfileDef IfcAttDrivenClippedExtrudedSolid "
      "IfcAttDrivenExtrudedSegment IfcAttDrivenExtrudedSolid IfcAttDrivenRevolvedSolid "
      "IfcAxis2Placement2D IfcAxis2Placement3D IfcBeam IfcBuilding IfcBuildingStorey "
      "IfcCircle IfcCircleProfileDef IfcClosedShell IfcColumn IfcCompositeCurve "
      "IfcCompositeCurveSegment IfcCurveBoundedPlane IfcDirection IfcDoor IfcEllipse IfcFace "
      "IfcFaceBound IfcFaceOuterBound IfcFacetedBrep IfcFloor IfcHalfSpaceSolid IfcLine "
      "IfcLocalPlacement IfcMaterial IfcMaterialLayer IfcMaterialLayerSet "
      "IfcMaterialLayerSetUsage IfcOpeningElement IfcOrganization IfcOwnerHistory IfcPerson "
      "IfcPersonAndOrganization IfcPlane IfcPolyLine IfcPolyLoop IfcProductShape IfcProject "
      "IfcProjectAppRegistry IfcProjectMaterialRegistry IfcProjectTeamRegistry IfcPropertySet "
      "IfcProxy IfcRectangleProfileDef IfcRegisteredApplication IfcRelConnectsElements "
      "IfcRelConnectsPathElements IfcRelContains IfcRelFillsElement IfcRelVoidsElement "
      "IfcRepresentationContext IfcRoofSlab IfcShapeRepresentation IfcSiUnit "
      "IfcSimpleProperty IfcSite IfcSpace IfcSpaceBoundary IfcTrimmedCurve IfcVector IfcWall "
      "IfcWindow ";
  static constexpr const char* kNotFile =
      "IfcAddress IfcAttDrivenProfileDef IfcAxis2Placement IfcBoundedCurve IfcBuildingElement "
      "IfcCompoundPlaneAngleMeasure IfcConic IfcConnectedFaceSet IfcCurve IfcElement "
      "IfcElementarySurface IfcExtrudedAreaSolid IfcManifoldSolidBrep IfcModelingAid "
      "IfcNamedUnit IfcObject IfcObjectWithPlacementSelect IfcPlacement IfcProduct "
      "IfcProperty IfcRelationship IfcRoot IfcShell IfcSpatialElement IfcSweptAreaSolid "
      "IfcTopologicalRepresentationItem ";
  static constexpr const char* kMade = "IfcFace IfcFaceOuterBound IfcPolyLoop ";
};

template <>
struct Expected<Release20> {
  static constexpr auto kMake = &MakeInstance20;
  static constexpr const char* kFile =
      "Ifc2DCompositeCurve IfcApplication IfcArbitraryProfileDef "
      "IfcAttDrivenClippedExtrudedSolid IfcAttDrivenExtrudedSegment IfcAttDrivenExtrudedSolid "
      "IfcAttDrivenRevolvedSolid IfcAxis2Placement2D IfcAxis2Placement3D IfcBeam IfcBuilding "
      "IfcBuildingStorey IfcCircle IfcCircleProfileDef IfcClosedShell IfcColumn "
      "IfcCompositeCurve IfcCompositeCurveSegment IfcConnectedFaceSet IfcCurveBoundedPlane "
      "IfcDirection IfcDoor IfcEllipse IfcFace IfcFaceBound IfcFaceOuterBound IfcFacetedBrep "
      "IfcHalfSpaceSolid IfcLine IfcLocalPlacement IfcMaterial IfcMaterialLayer "
      "IfcMaterialLayerSet IfcMaterialLayerSetUsage IfcOpeningElement IfcOrganization "
      "IfcOwnerHistory IfcPerson IfcPersonAndOrganization IfcPlane IfcPolyLine IfcPolyLoop "
      "IfcProductDefinitionShape IfcProject IfcProxy IfcRectangleProfileDef "
      "IfcRelConnectsElements IfcRelConnectsPathElements IfcRelContains IfcRelControls "
      "IfcRelFillsElement IfcRelJoinsElements IfcRelVoidsElement IfcRepresentationContext "
      "IfcShapeRepresentation IfcSiUnit IfcSite IfcSlab IfcSpace IfcSpaceBoundary "
      "IfcTrimmedCurve IfcVector IfcWall IfcWindow ";
  static constexpr const char* kNotFile =
      "IfcAddress IfcAttDrivenProfileDef IfcAxis2Placement IfcBoundedCurve IfcBuildingElement "
      "IfcCompoundPlaneAngleMeasure IfcConic IfcConnectionGeometry IfcControl IfcCurve "
      "IfcElement IfcElementarySurface IfcExtrudedAreaSolid IfcGeometricRepresentationContext "
      "IfcLineConnectionGeometry IfcManifoldSolidBrep IfcModelingAid IfcNamedUnit IfcObject "
      "IfcObjectWithPlacementSelect IfcPlacement IfcProduct IfcProductDefinitionTopology "
      "IfcProductRepresentation IfcRelationship IfcRepresentation IfcRoot IfcShell "
      "IfcSpatialElement IfcSweptAreaSolid IfcTopologicalRepresentationItem ";
  static constexpr const char* kMade = "IfcFace IfcFaceOuterBound IfcLocalPlacement IfcPolyLoop ";
};

template <>
struct Expected<Release2x> {
  static constexpr auto kMake = &MakeInstance2x;
  static constexpr const char* kFile =
      "Ifc2DCompositeCurve IfcApplication IfcArbitraryClosedProfileDef "
      "IfcArbitraryProfileDefWithVoids IfcAxis2Placement2D IfcAxis2Placement3D IfcBeam "
      "IfcBooleanClippingResult IfcBooleanResult IfcBuilding IfcBuildingElementProxy "
      "IfcBuildingStorey IfcCartesianTransformationOperator2D IfcCircle IfcCircleProfileDef "
      "IfcClosedShell IfcColumn IfcCompositeCurve IfcCompositeCurveSegment IfcConnectedFaceSet "
      "IfcConversionBasedUnit IfcDerivedProfileDef IfcDirection IfcDoor IfcEllipse "
      "IfcEquipmentElement IfcExtrudedAreaSolid IfcFace IfcFaceBound IfcFaceOuterBound "
      "IfcFaceSurface IfcFacetedBrep IfcFurnishingElement IfcGeometricRepresentationContext "
      "IfcGeometricSet IfcHalfSpaceSolid IfcLine IfcLocalPlacement IfcMappedItem IfcMaterial "
      "IfcMaterialLayer IfcMaterialLayerSet IfcMaterialLayerSetUsage IfcMeasureWithUnit "
      "IfcOpenShell IfcOpeningElement IfcOrganization IfcOwnerHistory IfcPerson "
      "IfcPersonAndOrganization IfcPlane IfcPolyLine IfcPolyLoop IfcPolygonalBoundedHalfSpace "
      "IfcProductDefinitionShape IfcProductRepresentation IfcProject IfcRailing "
      "IfcRectangleProfileDef IfcRelAggregates IfcRelAssociates IfcRelAssociatesMaterial "
      "IfcRelConnectsElements IfcRelConnectsPathElements IfcRelContainedInSpatialStructure "
      "IfcRelFillsElement IfcRelVoidsElement IfcRepresentation IfcRepresentationContext "
      "IfcRepresentationMap IfcShapeRepresentation IfcShellBasedSurfaceModel IfcSiUnit IfcSite "
      "IfcSlab IfcSpace IfcStair IfcTrimmedCurve IfcVector IfcWall IfcWallStandardCase "
      "IfcWindow ";
  static constexpr const char* kNotFile =
      "IfcAxis2Placement IfcBoundedCurve IfcBuildingElement IfcCartesianTransformationOperator "
      "IfcConic IfcCurve IfcElement IfcElementarySurface IfcManifoldSolidBrep IfcNamedUnit "
      "IfcObject IfcObjectPlacement IfcPlacement IfcProduct IfcProfileDef IfcRelConnects "
      "IfcRelDecomposes IfcRelDefines IfcRelationship IfcRoot IfcShell "
      "IfcSpatialStructureElement IfcSweptAreaSolid IfcTopologicalRepresentationItem ";
  static constexpr const char* kMade =
      "Ifc2DCompositeCurve IfcArbitraryClosedProfileDef IfcArbitraryProfileDefWithVoids "
      "IfcAxis2Placement2D IfcAxis2Placement3D IfcBooleanClippingResult IfcBooleanResult "
      "IfcBuilding IfcBuildingElementProxy IfcCartesianTransformationOperator "
      "IfcCartesianTransformationOperator2D IfcCircle IfcCircleProfileDef IfcColumn "
      "IfcDerivedProfileDef IfcDirection IfcDoor IfcEquipmentElement IfcExtrudedAreaSolid "
      "IfcFace IfcFaceOuterBound IfcFaceSurface IfcFurnishingElement IfcGeometricSet "
      "IfcHalfSpaceSolid IfcLocalPlacement IfcMappedItem IfcOpeningElement IfcPolyLine "
      "IfcPolyLoop IfcPolygonalBoundedHalfSpace IfcProductDefinitionShape "
      "IfcProductRepresentation IfcProfileDef IfcRailing IfcRectangleProfileDef "
      "IfcRelAssociates IfcRelAssociatesMaterial IfcRelConnectsElements "
      "IfcRelConnectsPathElements IfcRelDefines IfcRelFillsElement IfcRelVoidsElement "
      "IfcRepresentation IfcRepresentationMap IfcShapeRepresentation IfcShellBasedSurfaceModel "
      "IfcSlab IfcStair IfcSweptAreaSolid IfcWindow ";
};

template <>
struct Expected<Release2x2> {
  static constexpr auto kMake = &MakeInstance2x2;
  static constexpr const char* kFile =
      "Ifc2DCompositeCurve IfcApplication IfcArbitraryClosedProfileDef "
      "IfcArbitraryProfileDefWithVoids IfcAxis2Placement2D IfcAxis2Placement3D IfcBeam "
      "IfcBoolean IfcBooleanClippingResult IfcBooleanResult IfcBuilding IfcBuildingElementProxy "
      "IfcBuildingStorey IfcCShapeProfileDef IfcCartesianTransformationOperator2D "
      "IfcCartesianTransformationOperator3D IfcCartesianTransformationOperator3DnonUniform "
      "IfcCircle IfcCircleHollowProfileDef IfcCircleProfileDef IfcClosedShell IfcColumn "
      "IfcCompositeCurve IfcCompositeCurveSegment IfcCompositeProfileDef IfcConnectedFaceSet "
      "IfcConversionBasedUnit IfcDerivedProfileDef IfcDescriptiveMeasure IfcDirection IfcDoor "
      "IfcDoorLiningProperties IfcDoorPanelProperties IfcDoorStyle IfcEdge IfcEdgeCurve "
      "IfcElementAssembly IfcEllipse IfcEllipseProfileDef IfcEquipmentElement "
      "IfcExtrudedAreaSolid IfcFace IfcFaceBasedSurfaceModel IfcFaceBound IfcFaceOuterBound "
      "IfcFaceSurface IfcFacetedBrep IfcFooting IfcFurnishingElement "
      "IfcGeometricRepresentationContext IfcGeometricSet IfcHalfSpaceSolid IfcIShapeProfileDef "
      "IfcIdentifier IfcInteger IfcLShapeProfileDef IfcLabel IfcLine IfcLocalPlacement "
      "IfcMappedItem IfcMaterial IfcMaterialLayer IfcMaterialLayerSet IfcMaterialLayerSetUsage "
      "IfcMeasureWithUnit IfcMember IfcNumericMeasure IfcOpenShell IfcOpeningElement "
      "IfcOrganization IfcOwnerHistory IfcPerson IfcPersonAndOrganization IfcPile IfcPlane "
      "IfcPlate IfcPolyLine IfcPolyLoop IfcPolygonalBoundedHalfSpace IfcProductDefinitionShape "
      "IfcProductRepresentation IfcProject IfcPropertySet IfcPropertySingleValue IfcRailing "
      "IfcRectangleHollowProfileDef IfcRectangleProfileDef IfcRelAggregates "
      "IfcRelAssignsToProduct IfcRelAssociates IfcRelAssociatesMaterial IfcRelConnectsElements "
      "IfcRelConnectsPathElements IfcRelConnectsStructuralActivity "
      "IfcRelContainedInSpatialStructure IfcRelDefinesByProperties IfcRelDefinesByType "
      "IfcRelFillsElement IfcRelVoidsElement IfcRepresentation IfcRepresentationContext "
      "IfcRepresentationMap IfcRoof IfcShapeRepresentation IfcShellBasedSurfaceModel IfcSiUnit "
      "IfcSite IfcSlab IfcSpace IfcStair IfcStairFlight IfcStructuralLinearAction "
      "IfcStructuralLoadLinearForce IfcStructuralLoadPlanarForce IfcStructuralLoadSingleForce "
      "IfcStructuralPlanarAction IfcStructuralPointAction IfcTShapeProfileDef "
      "IfcTopologyRepresentation IfcTrimmedCurve IfcTypeObject IfcTypeProduct "
      "IfcUShapeProfileDef IfcVector IfcVertexPoint IfcWall IfcWallStandardCase IfcWindow "
      "IfcWindowLiningProperties IfcWindowPanelProperties IfcWindowStyle IfcZShapeProfileDef ";
  static constexpr const char* kNotFile =
      "IfcAxis2Placement IfcBoundedCurve IfcBuildingElement IfcBuildingElementComponent "
      "IfcCartesianTransformationOperator IfcConic IfcCurve IfcElement IfcElementarySurface "
      "IfcManifoldSolidBrep IfcNamedUnit IfcObject IfcObjectPlacement "
      "IfcParameterizedProfileDef IfcPlacement IfcProduct IfcProfileDef IfcProperty "
      "IfcPropertyDefinition IfcPropertySetDefinition IfcRelAssigns IfcRelConnects "
      "IfcRelDecomposes IfcRelDefines IfcRelationship IfcRoot IfcShell IfcSimpleProperty "
      "IfcSimpleValue IfcSpatialStructureElement IfcStructuralAction IfcStructuralActivity "
      "IfcStructuralActivityAssignmentSelect IfcStructuralLoad IfcStructuralLoadStatic "
      "IfcSweptAreaSolid IfcTopologicalRepresentationItem IfcVertex ";
  static constexpr const char* kMade =
      "Ifc2DCompositeCurve IfcArbitraryClosedProfileDef IfcArbitraryProfileDefWithVoids "
      "IfcAxis2Placement2D IfcAxis2Placement3D IfcBeam IfcBooleanClippingResult "
      "IfcBooleanResult IfcBuilding IfcBuildingElementComponent IfcBuildingElementProxy "
      "IfcCShapeProfileDef IfcCartesianTransformationOperator "
      "IfcCartesianTransformationOperator2D IfcCartesianTransformationOperator3D "
      "IfcCartesianTransformationOperator3DnonUniform IfcCircle IfcCircleHollowProfileDef "
      "IfcCircleProfileDef IfcColumn IfcCompositeCurve IfcCompositeCurveSegment "
      "IfcCompositeProfileDef IfcDerivedProfileDef IfcDirection IfcDoor IfcDoorLiningProperties "
      "IfcDoorPanelProperties IfcDoorStyle IfcEdge IfcEdgeCurve IfcElementAssembly "
      "IfcEllipseProfileDef IfcEquipmentElement IfcExtrudedAreaSolid IfcFace "
      "IfcFaceBasedSurfaceModel IfcFaceOuterBound IfcFaceSurface IfcFooting "
      "IfcFurnishingElement IfcGeometricSet IfcHalfSpaceSolid IfcIShapeProfileDef "
      "IfcLShapeProfileDef IfcLocalPlacement IfcMappedItem IfcMember IfcOpeningElement "
      "IfcParameterizedProfileDef IfcPile IfcPlane IfcPlate IfcPolyLine IfcPolyLoop "
      "IfcPolygonalBoundedHalfSpace IfcProductDefinitionShape IfcProductRepresentation "
      "IfcProfileDef IfcProperty IfcPropertyDefinition IfcPropertySet IfcPropertySetDefinition "
      "IfcPropertySingleValue IfcRailing IfcRectangleHollowProfileDef IfcRectangleProfileDef "
      "IfcRelAggregates IfcRelAssigns IfcRelAssignsToProduct IfcRelAssociates "
      "IfcRelAssociatesMaterial IfcRelConnectsElements IfcRelConnectsPathElements "
      "IfcRelConnectsStructuralActivity IfcRelDecomposes IfcRelDefines "
      "IfcRelDefinesByProperties IfcRelDefinesByType IfcRelFillsElement IfcRelVoidsElement "
      "IfcRepresentation IfcRepresentationMap IfcRoof IfcShapeRepresentation "
      "IfcShellBasedSurfaceModel IfcSimpleProperty IfcSlab IfcStair IfcStairFlight "
      "IfcStructuralAction IfcStructuralActivity IfcStructuralLinearAction IfcStructuralLoad "
      "IfcStructuralLoadLinearForce IfcStructuralLoadPlanarForce IfcStructuralLoadSingleForce "
      "IfcStructuralLoadStatic IfcStructuralPlanarAction IfcStructuralPointAction "
      "IfcSweptAreaSolid IfcTShapeProfileDef IfcTrimmedCurve IfcTypeObject IfcTypeProduct "
      "IfcUShapeProfileDef IfcVertexPoint IfcWindow IfcWindowLiningProperties "
      "IfcWindowPanelProperties IfcWindowStyle IfcZShapeProfileDef ";
};

template <>
struct Expected<Release2x3> {
  static constexpr auto kMake = &MakeInstance2x3;
  static constexpr const char* kFile =
      "Ifc2DCompositeCurve IfcApplication IfcArbitraryClosedProfileDef "
      "IfcArbitraryProfileDefWithVoids IfcAxis2Placement2D IfcAxis2Placement3D IfcBeam "
      "IfcBoolean IfcBooleanClippingResult IfcBooleanResult IfcBuilding IfcBuildingElementProxy "
      "IfcBuildingStorey IfcCShapeProfileDef IfcCartesianTransformationOperator2D "
      "IfcCartesianTransformationOperator3D IfcCartesianTransformationOperator3DnonUniform "
      "IfcCircle IfcCircleHollowProfileDef IfcCircleProfileDef IfcClosedShell IfcColumn "
      "IfcCompositeCurve IfcCompositeCurveSegment IfcCompositeProfileDef IfcConnectedFaceSet "
      "IfcConversionBasedUnit IfcCurtainWall IfcDerivedProfileDef IfcDescriptiveMeasure "
      "IfcDirection IfcDistributionElement IfcDistributionFlowElement IfcDoor "
      "IfcDoorLiningProperties IfcDoorPanelProperties IfcDoorStyle IfcEdge IfcEdgeCurve "
      "IfcElementAssembly IfcEllipse IfcEllipseProfileDef IfcEquipmentElement "
      "IfcExtrudedAreaSolid IfcFace IfcFaceBasedSurfaceModel IfcFaceBound IfcFaceOuterBound "
      "IfcFaceSurface IfcFacetedBrep IfcFlowFitting IfcFlowSegment IfcFooting "
      "IfcFurnishingElement IfcGeometricRepresentationContext IfcGeometricSet IfcHalfSpaceSolid "
      "IfcIShapeProfileDef IfcIdentifier IfcInteger IfcLShapeProfileDef IfcLabel IfcLine "
      "IfcLocalPlacement IfcMappedItem IfcMaterial IfcMaterialLayer IfcMaterialLayerSet "
      "IfcMaterialLayerSetUsage IfcMeasureWithUnit IfcMember IfcNumericMeasure IfcOpenShell "
      "IfcOpeningElement IfcOrganization IfcOwnerHistory IfcPerson IfcPersonAndOrganization "
      "IfcPile IfcPlane IfcPlate IfcPolyLine IfcPolyLoop IfcPolygonalBoundedHalfSpace "
      "IfcProductDefinitionShape IfcProductRepresentation IfcProject IfcPropertySet "
      "IfcPropertySingleValue IfcRailing IfcRamp IfcRampFlight IfcReal "
      "IfcRectangleHollowProfileDef IfcRectangleProfileDef IfcReinforcingBar IfcRelAggregates "
      "IfcRelAssignsToProduct IfcRelAssociates IfcRelAssociatesMaterial IfcRelConnectsElements "
      "IfcRelConnectsPathElements IfcRelConnectsStructuralActivity "
      "IfcRelContainedInSpatialStructure IfcRelDefinesByProperties IfcRelDefinesByType "
      "IfcRelFillsElement IfcRelVoidsElement IfcRepresentation IfcRepresentationContext "
      "IfcRepresentationMap IfcRoof IfcShapeRepresentation IfcShellBasedSurfaceModel IfcSiUnit "
      "IfcSite IfcSlab IfcSpace IfcStair IfcStairFlight IfcStructuralLinearAction "
      "IfcStructuralLoadLinearForce IfcStructuralLoadPlanarForce IfcStructuralLoadSingleForce "
      "IfcStructuralPlanarAction IfcStructuralPointAction IfcSweptDiskSolid IfcTShapeProfileDef "
      "IfcTopologyRepresentation IfcTrimmedCurve IfcTypeObject IfcTypeProduct "
      "IfcUShapeProfileDef IfcVector IfcVertexPoint IfcWall IfcWallStandardCase IfcWindow "
      "IfcWindowLiningProperties IfcWindowPanelProperties IfcWindowStyle IfcZShapeProfileDef ";
  static constexpr const char* kNotFile =
      "IfcAxis2Placement IfcBoundedCurve IfcBuildingElement IfcBuildingElementComponent "
      "IfcCartesianTransformationOperator IfcConic IfcCurve IfcElement IfcElementarySurface "
      "IfcManifoldSolidBrep IfcNamedUnit IfcObject IfcObjectPlacement "
      "IfcParameterizedProfileDef IfcPlacement IfcProduct IfcProfileDef IfcProperty "
      "IfcPropertyDefinition IfcPropertySetDefinition IfcReinforcingElement IfcRelAssigns "
      "IfcRelConnects IfcRelDecomposes IfcRelDefines IfcRelationship IfcRoot IfcShell "
      "IfcSimpleProperty IfcSimpleValue IfcSpatialStructureElement IfcStructuralAction "
      "IfcStructuralActivity IfcStructuralActivityAssignmentSelect IfcStructuralLoad "
      "IfcStructuralLoadStatic IfcSweptAreaSolid IfcTopologicalRepresentationItem IfcVertex ";
  static constexpr const char* kMade =
      "Ifc2DCompositeCurve IfcArbitraryClosedProfileDef IfcArbitraryProfileDefWithVoids "
      "IfcAxis2Placement2D IfcAxis2Placement3D IfcBeam IfcBooleanClippingResult "
      "IfcBooleanResult IfcBuilding IfcBuildingElementComponent IfcBuildingElementProxy "
      "IfcCShapeProfileDef IfcCartesianTransformationOperator "
      "IfcCartesianTransformationOperator2D IfcCartesianTransformationOperator3D "
      "IfcCartesianTransformationOperator3DnonUniform IfcCircle IfcCircleHollowProfileDef "
      "IfcCircleProfileDef IfcColumn IfcCompositeCurve IfcCompositeCurveSegment "
      "IfcCompositeProfileDef IfcCurtainWall IfcDerivedProfileDef IfcDirection "
      "IfcDistributionElement IfcDistributionFlowElement IfcDoor IfcDoorLiningProperties "
      "IfcDoorPanelProperties IfcDoorStyle IfcEdge IfcEdgeCurve IfcElementAssembly "
      "IfcEllipseProfileDef IfcEquipmentElement IfcExtrudedAreaSolid IfcFace "
      "IfcFaceBasedSurfaceModel IfcFaceOuterBound IfcFaceSurface IfcFlowFitting IfcFlowSegment "
      "IfcFooting IfcFurnishingElement IfcGeometricSet IfcHalfSpaceSolid IfcIShapeProfileDef "
      "IfcLShapeProfileDef IfcLocalPlacement IfcMappedItem IfcMember IfcOpeningElement "
      "IfcParameterizedProfileDef IfcPile IfcPlane IfcPlate IfcPolyLine IfcPolyLoop "
      "IfcPolygonalBoundedHalfSpace IfcProductDefinitionShape IfcProductRepresentation "
      "IfcProfileDef IfcProperty IfcPropertyDefinition IfcPropertySet IfcPropertySetDefinition "
      "IfcPropertySingleValue IfcRailing IfcRamp IfcRampFlight IfcRectangleHollowProfileDef "
      "IfcRectangleProfileDef IfcReinforcingBar IfcReinforcingElement IfcRelAggregates "
      "IfcRelAssigns IfcRelAssignsToProduct IfcRelAssociates IfcRelAssociatesMaterial "
      "IfcRelConnectsElements IfcRelConnectsPathElements IfcRelConnectsStructuralActivity "
      "IfcRelDecomposes IfcRelDefines IfcRelDefinesByProperties IfcRelDefinesByType "
      "IfcRelFillsElement IfcRelVoidsElement IfcRepresentation IfcRepresentationMap IfcRoof "
      "IfcShapeRepresentation IfcShellBasedSurfaceModel IfcSimpleProperty IfcSlab IfcStair "
      "IfcStairFlight IfcStructuralAction IfcStructuralActivity IfcStructuralLinearAction "
      "IfcStructuralLoad IfcStructuralLoadLinearForce IfcStructuralLoadPlanarForce "
      "IfcStructuralLoadSingleForce IfcStructuralLoadStatic IfcStructuralPlanarAction "
      "IfcStructuralPointAction IfcSweptAreaSolid IfcSweptDiskSolid IfcTShapeProfileDef "
      "IfcTrimmedCurve IfcTypeObject IfcTypeProduct IfcUShapeProfileDef IfcVertexPoint "
      "IfcWindow IfcWindowLiningProperties IfcWindowPanelProperties IfcWindowStyle "
      "IfcZShapeProfileDef ";
};

template <class Type>
concept Makable = requires {
  { Type::NewItem(static_cast<IfcServer*>(nullptr)) } -> std::same_as<Type*>;
};

template <class Type>
concept Named = requires {
  Type::GetItemName();
};

template <class R>
class ClassLists : public testing::Test {};
using Releases = testing::Types<Release151, Release20, Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(ClassLists, Releases);

TYPED_TEST(ClassLists, NamesInAFileCreateTheirClass) {
  for (const auto& name : Split(Expected<TypeParam>::kFile)) {
    const std::unique_ptr<IfcUnknown> instance(Expected<TypeParam>::kMake(name.c_str()));
    ASSERT_NE(instance, nullptr) << name;
    EXPECT_EQ(instance->GetStepName(), name);
  }
}

TYPED_TEST(ClassLists, OtherNamesCreateNothing) {
  for (const auto& name : Split(Expected<TypeParam>::kNotFile)) {
    EXPECT_EQ(Expected<TypeParam>::kMake(name.c_str()), nullptr) << name;
  }
}

TYPED_TEST(ClassLists, ContainExactlyTheClassesOfTheRelease) {
  Names expected = Split(Expected<TypeParam>::kFile);
  const Names others = Split(Expected<TypeParam>::kNotFile);
  expected.insert(others.begin(), others.end());
  Names described;
  std::size_t selects = 0;
  TypeParam::ForEachClass([&]<class Type>() {
    if constexpr (Named<Type>) {
      described.insert(Type::GetItemName());
    } else {
      ++selects;
    }
  });
  EXPECT_EQ(described.size() + selects, expected.size());
  EXPECT_TRUE(std::includes(expected.begin(), expected.end(), described.begin(), described.end()));
}

TYPED_TEST(ClassLists, HostsCanCreateTheseClasses) {
  Names made;
  TypeParam::ForEachClass([&]<class Type>() {
    if constexpr (Makable<Type>) {
      const std::unique_ptr<Type> item(Type::NewItem(nullptr));
      made.insert(item->GetStepName());
    }
  });
  EXPECT_EQ(made, Split(Expected<TypeParam>::kMade));
}

}  // namespace
}  // namespace KelIFC
