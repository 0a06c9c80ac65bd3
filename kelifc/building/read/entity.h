#ifndef KELIFC_BUILDING_READ_ENTITY_H_
#define KELIFC_BUILDING_READ_ENTITY_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace KelIFC::building {

/// The entities that the reading knows, in all releases. An entity that is not listed is kOther.
enum class Entity : std::uint8_t {
  kOther,

  // The project and its spatial structure.
  kProject,
  kSite,
  kBuilding,
  kBuildingStorey,
  kSpace,
  kOwnerHistory,
  kApplication,
  kGeometricRepresentationContext,
  kGeometricRepresentationSubContext,
  kUnitAssignment,
  kSiUnit,
  kConversionBasedUnit,
  kMeasureWithUnit,

  // Elements.
  kColumn,
  kBeam,
  kMember,
  kWall,
  kWallStandardCase,
  kSlab,
  kPlate,
  kFooting,
  kPile,
  kStairFlight,
  kRampFlight,
  kRoof,
  kStair,
  kRamp,
  kElementAssembly,
  kBuildingElementPart,
  kBuildingElementProxy,
  kCurtainWall,
  kDoor,
  kWindow,
  kRailing,
  kCovering,
  kFastener,
  kMechanicalFastener,
  kDiscreteAccessory,
  kVibrationIsolator,
  kReinforcingBar,
  kReinforcingMesh,
  kTendon,
  kTendonAnchor,
  kOpeningElement,
  kFurnishingElement,
  kEquipmentElement,
  kElectricalElement,
  kTransportElement,
  kPermeableCoveringElement,
  kDistributionElement,
  kDistributionControlElement,
  kDistributionFlowElement,
  kDistributionChamberElement,
  kEnergyConversionDevice,
  kFlowController,
  kFlowFitting,
  kFlowMovingDevice,
  kFlowSegment,
  kFlowStorageDevice,
  kFlowTerminal,
  kFlowTreatmentDevice,

  // Relationships.
  kRelAggregates,
  kRelVoidsElement,
  kRelFillsElement,
  kRelContainedInSpatialStructure,
  kRelAssociatesMaterial,
  kRelDefinesByType,

  // Materials.
  kMaterial,
  kMaterialList,
  kMaterialLayer,
  kMaterialLayerSet,
  kMaterialLayerSetUsage,

  // Representations and placements.
  kProductDefinitionShape,
  kProductRepresentation,
  kShapeRepresentation,
  kRepresentation,
  kMappedItem,
  kRepresentationMap,
  kLocalPlacement,
  kGridPlacement,
  kAxis1Placement,
  kAxis2Placement2D,
  kAxis2Placement3D,
  kTransformation2D,
  kTransformation2DNonUniform,
  kTransformation3D,
  kTransformation3DNonUniform,
  kCartesianPoint,
  kDirection,
  kVector,

  // Curves and surfaces.
  kPolyline,
  kCompositeCurve,
  kCompositeCurve2D,
  kCompositeCurveSegment,
  kTrimmedCurve,
  kLine,
  kCircle,
  kEllipse,
  kBezierCurve,
  kRationalBezierCurve,
  kOffsetCurve2D,
  kPlane,
  kCurveBoundedPlane,
  kRectangularTrimmedSurface,
  kSurfaceOfLinearExtrusion,

  // Profiles.
  kArbitraryClosedProfile,
  kArbitraryProfileWithVoids,
  kArbitraryOpenProfile,
  kCenterLineProfile,
  kCompositeProfile,
  kDerivedProfile,
  kRectangleProfile,
  kRoundedRectangleProfile,
  kRectangleHollowProfile,
  kTrapeziumProfile,
  kCircleProfile,
  kCircleHollowProfile,
  kEllipseProfile,
  kIShapeProfile,
  kAsymmetricIShapeProfile,
  kLShapeProfile,
  kUShapeProfile,
  kTShapeProfile,
  kCShapeProfile,
  kZShapeProfile,
  kCraneRailAProfile,
  kCraneRailFProfile,

  // Items of representations.
  kExtrudedAreaSolid,
  kExtrudedAreaSolidTapered,
  kRevolvedAreaSolid,
  kSweptDiskSolid,
  kSurfaceCurveSweptAreaSolid,
  kFacetedBrep,
  kFacetedBrepWithVoids,
  kFaceBasedSurfaceModel,
  kShellBasedSurfaceModel,
  kBooleanResult,
  kBooleanClippingResult,
  kHalfSpaceSolid,
  kPolygonalBoundedHalfSpace,
  kBoxedHalfSpace,
  kCsgSolid,
  kBlock,
  kRectangularPyramid,
  kRightCircularCylinder,
  kRightCircularCone,
  kSphere,
  kGeometricSet,
  kGeometricCurveSet,
  kBoundingBox,
  kStyledItem,
  kAnnotationFillArea,
  kTextLiteral,
  kTextLiteralWithExtent,

  // Topology.
  kConnectedFaceSet,
  kClosedShell,
  kOpenShell,
  kFace,
  kFaceSurface,
  kFaceBound,
  kFaceOuterBound,
  kPolyLoop,
  kEdgeLoop,
  kVertexPoint,
  kEdge,
  kEdgeCurve,
  kOrientedEdge,
  kSubedge,

  kCount,
};

constexpr std::size_t kEntityCount = static_cast<std::size_t>(Entity::kCount);

// What an entity is. An entity can be several of these.
constexpr unsigned kIsElement = 1;         ///< a subtype of IfcElement that can be a part
constexpr unsigned kIsStructural = 2;      ///< a product wherever it stands
constexpr unsigned kHasParts = 4;          ///< its parts at any depth are products
constexpr unsigned kIsSolidItem = 8;       ///< an item that has or can have a volume
constexpr unsigned kIsNeverBody = 16;      ///< an item that is no body: curves, boxes, texts
constexpr unsigned kIsAccessory = 32;      ///< an element that is never a product as a part
constexpr unsigned kIsSpatial = 64;        ///< a part of the spatial structure
constexpr unsigned kIsRelationship = 128;  ///< a relationship that the reading follows

struct EntityRow {
  std::string_view name;  ///< as the schema spells it
  unsigned flags = 0;
};

const EntityRow& RowOf(Entity entity);

inline bool Has(Entity entity, unsigned flag) { return (RowOf(entity).flags & flag) != 0; }

/// The entity of a name in any case. kOther if it is not listed.
Entity FindEntityByName(std::string_view name);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_ENTITY_H_
