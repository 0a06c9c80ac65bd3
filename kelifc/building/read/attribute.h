#ifndef KELIFC_BUILDING_READ_ATTRIBUTE_H_
#define KELIFC_BUILDING_READ_ATTRIBUTE_H_

#include <cstddef>
#include <cstdint>
#include <optional>

#include "kelifc/building/read/entity.h"
#include "kelifc/server/release.h"

namespace KelIFC::building {

/// The attributes that the reading uses. Attributes of different entities that have the same
/// meaning share an enumerator.
enum class Attribute : std::uint8_t {
  kGlobalId,
  kOwnerHistory,
  kName,
  kTag,
  kPredefinedType,
  kElevation,
  kObjectPlacement,
  kRepresentation,
  kUnitsInContext,
  kRepresentationContexts,
  kTrueNorth,
  kOwningApplication,
  kApplicationFullName,

  kUnits,
  kUnitType,
  kPrefix,
  kConversionFactor,
  kValue,
  kUnit,

  kRelating,  ///< the whole, the opened element, the structure, the material or the type
  kRelated,   ///< the parts, the opening, the contained elements or the objects

  kMaterials,
  kMaterial,
  kThickness,
  kLayers,
  kLayerSet,
  kLayerDirection,
  kDirectionSense,
  kOffset,

  kRepresentations,
  kIdentifier,
  kItems,
  kMappingSource,
  kMappingTarget,
  kMappingOrigin,
  kMappedRepresentation,

  kPlacementRelTo,
  kRelativePlacement,
  kLocation,
  kAxis,
  kRefDirection,
  kAxis1,
  kAxis2,
  kAxis3,
  kLocalOrigin,
  kScale,
  kScale2,
  kScale3,
  kCoordinates,  ///< of a point; the ratios of a direction
  kOrientation,  ///< of a vector; of a bound or an edge
  kMagnitude,

  kPoints,  ///< of a polyline, a loop or the control points of a spline
  kSegments,
  kSameSense,
  kCurve,  ///< the parent of a segment, the basis of a trimmed or offset curve, of a profile
  kTrim1,
  kTrim2,
  kMasterRepresentation,
  kPosition,
  kRadius,
  kSemiAxis1,
  kSemiAxis2,
  kDegree,
  kWeights,
  kDistance,
  kBasisSurface,

  kProfileName,
  kInnerCurves,
  kProfiles,
  kParentProfile,
  kOperator,
  kXDim,
  kYDim,
  kTopXDim,
  kTopXOffset,
  kWallThickness,
  kInnerFilletRadius,
  kOuterFilletRadius,
  kWebThickness,
  kFlangeThickness,
  kFilletRadius,
  kEdgeRadius,
  kSlope,
  kTopFlangeWidth,
  kTopFlangeThickness,
  kTopFlangeFilletRadius,
  kGirth,
  kWebEdgeRadius,
  kWebSlope,
  kHeadWidth,
  kHeadDepth2,
  kHeadDepth3,
  kBaseWidth2,
  kBaseWidth4,
  kBaseDepth1,
  kBaseDepth2,
  kBaseDepth3,

  kSweptArea,
  kEndSweptArea,
  kDirection,
  kDepth,
  kAngle,
  kDirectrix,
  kInnerRadius,
  kStartParam,
  kEndParam,
  kReferenceSurface,
  kFirstOperand,
  kSecondOperand,
  kBaseSurface,
  kAgreementFlag,
  kBoundary,
  kTreeRoot,
  kXLength,
  kYLength,
  kZLength,

  kOuter,
  kVoids,
  kShells,
  kFaces,
  kBounds,
  kBound,
  kEdges,
  kEdgeStart,
  kEdgeEnd,
  kEdgeElement,
  kVertexGeometry,
  kEdgeGeometry,

  kCount,
};

constexpr std::size_t kAttributeCount = static_cast<std::size_t>(Attribute::kCount);

/// Where an attribute is in a statement of an entity, counted from 0. None if the entity does not
/// have it in that release.
std::optional<std::size_t> PositionOf(IFC_RELEASE release, Entity entity, Attribute attribute);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_ATTRIBUTE_H_
