#include "kelifc/building/read/attribute.h"

#include <array>
#include <span>

#include "kelifc/building/read/position_row.h"
#include "kelifc/building/read/profile_positions.h"

namespace KelIFC::building {
namespace {

constexpr std::size_t kReleases = 3;

using E = Entity;
using A = Attribute;

// The attributes that all entities of a group have at the same position.
struct GroupRow {
  unsigned flags;
  Attribute attribute;
  std::int8_t position;
};

constexpr GroupRow kGroups[] = {
    {kIsElement | kIsSpatial, A::kGlobalId, 0},
    {kIsElement | kIsSpatial, A::kName, 2},
    {kIsElement | kIsSpatial, A::kObjectPlacement, 5},
    {kIsElement | kIsSpatial, A::kRepresentation, 6},
    {kIsElement, A::kTag, 7},
};

constexpr PositionRow kProducts[] = {
    {E::kProject, A::kGlobalId, 0},
    {E::kProject, A::kOwnerHistory, 1},
    {E::kProject, A::kObjectPlacement, -1},
    {E::kProject, A::kRepresentation, -1},
    {E::kProject, A::kRepresentationContexts, 7},
    {E::kProject, A::kUnitsInContext, 8},
    {E::kBuildingStorey, A::kElevation, 9},
    {E::kOpeningElement, A::kGlobalId, 0},
    {E::kOpeningElement, A::kName, 2},
    {E::kOpeningElement, A::kObjectPlacement, 5},
    {E::kOpeningElement, A::kRepresentation, 6},
    {E::kSlab, A::kPredefinedType, 8},
    {E::kFooting, A::kPredefinedType, 8},
    {E::kPile, A::kPredefinedType, 8},
    {E::kRoof, A::kPredefinedType, 8},
    {E::kStair, A::kPredefinedType, 8},
    {E::kRamp, A::kPredefinedType, 8},
    {E::kElementAssembly, A::kPredefinedType, 9},
    {E::kOwnerHistory, A::kOwningApplication, 1},
    {E::kApplication, A::kApplicationFullName, 2},
    {E::kGeometricRepresentationContext, A::kTrueNorth, 5},
    {E::kUnitAssignment, A::kUnits, 0},
    {E::kSiUnit, A::kUnitType, 1},
    {E::kSiUnit, A::kPrefix, 2},
    {E::kSiUnit, A::kName, 3},
    {E::kConversionBasedUnit, A::kUnitType, 1},
    {E::kConversionBasedUnit, A::kName, 2},
    {E::kConversionBasedUnit, A::kConversionFactor, 3},
    {E::kMeasureWithUnit, A::kValue, 0},
    {E::kMeasureWithUnit, A::kUnit, 1},
};

constexpr PositionRow kRelations[] = {
    {E::kRelAggregates, A::kRelating, 4},
    {E::kRelAggregates, A::kRelated, 5},
    {E::kRelVoidsElement, A::kRelating, 4},
    {E::kRelVoidsElement, A::kRelated, 5},
    {E::kRelFillsElement, A::kRelating, 4},
    {E::kRelFillsElement, A::kRelated, 5},
    {E::kRelContainedInSpatialStructure, A::kRelated, 4},
    {E::kRelContainedInSpatialStructure, A::kRelating, 5},
    {E::kRelAssociatesMaterial, A::kRelated, 4},
    {E::kRelAssociatesMaterial, A::kRelating, 5},
    {E::kRelDefinesByType, A::kRelated, 4},
    {E::kRelDefinesByType, A::kRelating, 5},
    {E::kMaterial, A::kName, 0},
    {E::kMaterialList, A::kMaterials, 0},
    {E::kMaterialLayer, A::kMaterial, 0},
    {E::kMaterialLayer, A::kThickness, 1},
    {E::kMaterialLayerSet, A::kLayers, 0},
    {E::kMaterialLayerSetUsage, A::kLayerSet, 0},
    {E::kMaterialLayerSetUsage, A::kLayerDirection, 1},
    {E::kMaterialLayerSetUsage, A::kDirectionSense, 2},
    {E::kMaterialLayerSetUsage, A::kOffset, 3},
};

constexpr PositionRow kPlacements[] = {
    {E::kProductDefinitionShape, A::kRepresentations, 2},
    {E::kProductRepresentation, A::kRepresentations, 2},
    {E::kRepresentation, A::kIdentifier, 1},
    {E::kRepresentation, A::kItems, 3},
    {E::kShapeRepresentation, A::kIdentifier, 1},
    {E::kShapeRepresentation, A::kItems, 3},
    {E::kMappedItem, A::kMappingSource, 0},
    {E::kMappedItem, A::kMappingTarget, 1},
    {E::kRepresentationMap, A::kMappingOrigin, 0},
    {E::kRepresentationMap, A::kMappedRepresentation, 1},
    {E::kLocalPlacement, A::kPlacementRelTo, 0},
    {E::kLocalPlacement, A::kRelativePlacement, 1},
    {E::kAxis1Placement, A::kLocation, 0},
    {E::kAxis1Placement, A::kAxis, 1},
    {E::kAxis2Placement2D, A::kLocation, 0},
    {E::kAxis2Placement2D, A::kRefDirection, 1},
    {E::kAxis2Placement3D, A::kLocation, 0},
    {E::kAxis2Placement3D, A::kAxis, 1},
    {E::kAxis2Placement3D, A::kRefDirection, 2},
    {E::kTransformation2D, A::kAxis1, 0},
    {E::kTransformation2D, A::kAxis2, 1},
    {E::kTransformation2D, A::kLocalOrigin, 2},
    {E::kTransformation2D, A::kScale, 3},
    {E::kTransformation2DNonUniform, A::kAxis1, 0},
    {E::kTransformation2DNonUniform, A::kAxis2, 1},
    {E::kTransformation2DNonUniform, A::kLocalOrigin, 2},
    {E::kTransformation2DNonUniform, A::kScale, 3},
    {E::kTransformation2DNonUniform, A::kScale2, 4},
    {E::kTransformation3D, A::kAxis1, 0},
    {E::kTransformation3D, A::kAxis2, 1},
    {E::kTransformation3D, A::kLocalOrigin, 2},
    {E::kTransformation3D, A::kScale, 3},
    {E::kTransformation3D, A::kAxis3, 4},
    {E::kTransformation3DNonUniform, A::kAxis1, 0},
    {E::kTransformation3DNonUniform, A::kAxis2, 1},
    {E::kTransformation3DNonUniform, A::kLocalOrigin, 2},
    {E::kTransformation3DNonUniform, A::kScale, 3},
    {E::kTransformation3DNonUniform, A::kAxis3, 4},
    {E::kTransformation3DNonUniform, A::kScale2, 5},
    {E::kTransformation3DNonUniform, A::kScale3, 6},
    {E::kCartesianPoint, A::kCoordinates, 0},
    {E::kDirection, A::kCoordinates, 0},
    {E::kVector, A::kOrientation, 0},
    {E::kVector, A::kMagnitude, 1},
};

constexpr PositionRow kCurves[] = {
    {E::kPolyline, A::kPoints, 0},
    {E::kCompositeCurve, A::kSegments, 0},
    {E::kCompositeCurve2D, A::kSegments, 0},
    {E::kCompositeCurveSegment, A::kSameSense, 1},
    {E::kCompositeCurveSegment, A::kCurve, 2},
    {E::kTrimmedCurve, A::kCurve, 0},
    {E::kTrimmedCurve, A::kTrim1, 1},
    {E::kTrimmedCurve, A::kTrim2, 2},
    {E::kTrimmedCurve, A::kSameSense, 3},
    {E::kTrimmedCurve, A::kMasterRepresentation, 4},
    {E::kLine, A::kLocation, 0},
    {E::kLine, A::kDirection, 1},
    {E::kCircle, A::kPosition, 0},
    {E::kCircle, A::kRadius, 1},
    {E::kEllipse, A::kPosition, 0},
    {E::kEllipse, A::kSemiAxis1, 1},
    {E::kEllipse, A::kSemiAxis2, 2},
    {E::kBezierCurve, A::kDegree, 0},
    {E::kBezierCurve, A::kPoints, 1},
    {E::kRationalBezierCurve, A::kDegree, 0},
    {E::kRationalBezierCurve, A::kPoints, 1},
    {E::kRationalBezierCurve, A::kWeights, 5},
    {E::kOffsetCurve2D, A::kCurve, 0},
    {E::kOffsetCurve2D, A::kDistance, 1},
    {E::kPlane, A::kPosition, 0},
    {E::kCurveBoundedPlane, A::kBasisSurface, 0},
    {E::kRectangularTrimmedSurface, A::kBasisSurface, 0},
    {E::kSurfaceOfLinearExtrusion, A::kPosition, 1},
    {E::kSurfaceOfLinearExtrusion, A::kDirection, 2},
};

// The profiles with sizes have a name at 1 and a position at 2; BuildTable adds both.

constexpr PositionRow kSolids[] = {
    {E::kExtrudedAreaSolid, A::kSweptArea, 0},
    {E::kExtrudedAreaSolid, A::kPosition, 1},
    {E::kExtrudedAreaSolid, A::kDirection, 2},
    {E::kExtrudedAreaSolid, A::kDepth, 3},
    {E::kExtrudedAreaSolidTapered, A::kSweptArea, 0},
    {E::kExtrudedAreaSolidTapered, A::kPosition, 1},
    {E::kExtrudedAreaSolidTapered, A::kDirection, 2},
    {E::kExtrudedAreaSolidTapered, A::kDepth, 3},
    {E::kExtrudedAreaSolidTapered, A::kEndSweptArea, 4},
    {E::kRevolvedAreaSolid, A::kSweptArea, 0},
    {E::kRevolvedAreaSolid, A::kPosition, 1},
    {E::kRevolvedAreaSolid, A::kAxis, 2},
    {E::kRevolvedAreaSolid, A::kAngle, 3},
    {E::kSweptDiskSolid, A::kDirectrix, 0},
    {E::kSweptDiskSolid, A::kRadius, 1},
    {E::kSweptDiskSolid, A::kInnerRadius, 2},
    {E::kSweptDiskSolid, A::kStartParam, 3},
    {E::kSweptDiskSolid, A::kEndParam, 4},
    {E::kSurfaceCurveSweptAreaSolid, A::kSweptArea, 0},
    {E::kSurfaceCurveSweptAreaSolid, A::kPosition, 1},
    {E::kSurfaceCurveSweptAreaSolid, A::kDirectrix, 2},
    {E::kSurfaceCurveSweptAreaSolid, A::kStartParam, 3},
    {E::kSurfaceCurveSweptAreaSolid, A::kEndParam, 4},
    {E::kSurfaceCurveSweptAreaSolid, A::kReferenceSurface, 5},
    {E::kFacetedBrep, A::kOuter, 0},
    {E::kFacetedBrepWithVoids, A::kOuter, 0},
    {E::kFacetedBrepWithVoids, A::kVoids, 1},
    {E::kFaceBasedSurfaceModel, A::kShells, 0},
    {E::kShellBasedSurfaceModel, A::kShells, 0},
    {E::kBooleanResult, A::kOperator, 0},
    {E::kBooleanResult, A::kFirstOperand, 1},
    {E::kBooleanResult, A::kSecondOperand, 2},
    {E::kBooleanClippingResult, A::kOperator, 0},
    {E::kBooleanClippingResult, A::kFirstOperand, 1},
    {E::kBooleanClippingResult, A::kSecondOperand, 2},
    {E::kHalfSpaceSolid, A::kBaseSurface, 0},
    {E::kHalfSpaceSolid, A::kAgreementFlag, 1},
    {E::kPolygonalBoundedHalfSpace, A::kBaseSurface, 0},
    {E::kPolygonalBoundedHalfSpace, A::kAgreementFlag, 1},
    {E::kPolygonalBoundedHalfSpace, A::kPosition, 2},
    {E::kPolygonalBoundedHalfSpace, A::kBoundary, 3},
    {E::kBoxedHalfSpace, A::kBaseSurface, 0},
    {E::kBoxedHalfSpace, A::kAgreementFlag, 1},
    {E::kCsgSolid, A::kTreeRoot, 0},
    {E::kBlock, A::kPosition, 0},
    {E::kBlock, A::kXLength, 1},
    {E::kBlock, A::kYLength, 2},
    {E::kBlock, A::kZLength, 3},
    {E::kRectangularPyramid, A::kPosition, 0},
    {E::kRectangularPyramid, A::kXLength, 1},
    {E::kRectangularPyramid, A::kYLength, 2},
    {E::kRectangularPyramid, A::kZLength, 3},
    {E::kRightCircularCylinder, A::kPosition, 0},
    {E::kRightCircularCylinder, A::kZLength, 1},
    {E::kRightCircularCylinder, A::kRadius, 2},
    {E::kRightCircularCone, A::kPosition, 0},
    {E::kRightCircularCone, A::kZLength, 1},
    {E::kRightCircularCone, A::kRadius, 2},
    {E::kSphere, A::kPosition, 0},
    {E::kSphere, A::kRadius, 1},
    {E::kConnectedFaceSet, A::kFaces, 0},
    {E::kClosedShell, A::kFaces, 0},
    {E::kOpenShell, A::kFaces, 0},
    {E::kFace, A::kBounds, 0},
    {E::kFaceSurface, A::kBounds, 0},
    {E::kFaceSurface, A::kBasisSurface, 1},
    {E::kFaceBound, A::kBound, 0},
    {E::kFaceBound, A::kOrientation, 1},
    {E::kFaceOuterBound, A::kBound, 0},
    {E::kFaceOuterBound, A::kOrientation, 1},
    {E::kPolyLoop, A::kPoints, 0},
    {E::kEdgeLoop, A::kEdges, 0},
    {E::kVertexPoint, A::kVertexGeometry, 0},
    {E::kEdge, A::kEdgeStart, 0},
    {E::kEdge, A::kEdgeEnd, 1},
    {E::kEdgeCurve, A::kEdgeStart, 0},
    {E::kEdgeCurve, A::kEdgeEnd, 1},
    {E::kEdgeCurve, A::kEdgeGeometry, 2},
    {E::kEdgeCurve, A::kSameSense, 3},
    {E::kOrientedEdge, A::kEdgeElement, 2},
    {E::kOrientedEdge, A::kOrientation, 3},
    {E::kSubedge, A::kEdgeStart, 0},
    {E::kSubedge, A::kEdgeEnd, 1},
};

using Positions = std::array<std::int8_t, kReleases * kEntityCount * kAttributeCount>;

constexpr std::size_t IndexOf(std::size_t release, Entity entity, Attribute attribute) {
  return (release * kEntityCount + static_cast<std::size_t>(entity)) * kAttributeCount +
         static_cast<std::size_t>(attribute);
}

void Set(Positions& positions, const PositionRow& row) {
  for (std::size_t i = 0; i < kReleases; ++i) {
    if ((row.releases >> i & 1U) == 0) continue;
    positions[IndexOf(i, row.entity, row.attribute)] = row.position;
  }
}

void Set(Positions& positions, std::span<const PositionRow> rows) {
  for (const PositionRow& row : rows) Set(positions, row);
}

Positions BuildTable() {
  Positions positions;
  positions.fill(-1);
  for (std::size_t i = 0; i < kEntityCount; ++i) {
    const auto entity = static_cast<Entity>(i);
    for (const GroupRow& row : kGroups) {
      if (Has(entity, row.flags)) Set(positions, {entity, row.attribute, row.position});
    }
    if (entity >= E::kArbitraryClosedProfile && entity <= E::kCraneRailFProfile) {
      Set(positions, {entity, A::kProfileName, 1});
    }
    if (entity >= E::kRectangleProfile && entity <= E::kCraneRailFProfile) {
      Set(positions, {entity, A::kPosition, 2});
    }
  }
  Set(positions, kProducts);
  Set(positions, kRelations);
  Set(positions, kPlacements);
  Set(positions, kCurves);
  Set(positions, ProfilePositions());
  Set(positions, kSolids);
  return positions;
}

}  // namespace

std::optional<std::size_t> PositionOf(IFC_RELEASE release, Entity entity, Attribute attribute) {
  static const Positions positions = BuildTable();
  std::size_t index = 0;
  switch (release) {
    case IFC_RELEASE_2X:
      break;
    case IFC_RELEASE_2X2:
      index = 1;
      break;
    case IFC_RELEASE_2X3:
      index = 2;
      break;
    default:
      return std::nullopt;
  }
  const std::int8_t position = positions[IndexOf(index, entity, attribute)];
  return position < 0 ? std::nullopt : std::optional<std::size_t>(position);
}

}  // namespace KelIFC::building
