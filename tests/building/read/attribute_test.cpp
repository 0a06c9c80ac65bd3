#include "kelifc/building/read/attribute.h"

#include <gtest/gtest.h>

#include <string_view>

#include "kelifc/schema/attribute_table.h"

namespace KelIFC::building {
namespace {

constexpr IFC_RELEASE kReleases[] = {IFC_RELEASE_2X, IFC_RELEASE_2X2, IFC_RELEASE_2X3};

TEST(Attribute, HasAPositionThatItsClassHas) {
  for (const IFC_RELEASE release : kReleases) {
    for (std::size_t i = 0; i < kEntityCount; ++i) {
      const auto entity = static_cast<Entity>(i);
      const EntityDescription* description = FindEntity(release, RowOf(entity).name);
      if (description == nullptr || !description->isInFile) continue;
      for (std::size_t k = 0; k < kAttributeCount; ++k) {
        const auto position = PositionOf(release, entity, static_cast<Attribute>(k));
        if (!position) continue;
        EXPECT_LT(*position, description->positionCount) << RowOf(entity).name << ' ' << k;
      }
    }
  }
}

struct NamedAttribute {
  Entity entity;
  Attribute attribute;
  std::string_view name;
};

// Classes keep the names of the schema, so the positions of the table can be checked with them.
constexpr NamedAttribute kNamed[] = {
    {Entity::kColumn, Attribute::kRepresentation, "Representation"},
    {Entity::kColumn, Attribute::kTag, "Tag"},
    {Entity::kBuildingStorey, Attribute::kElevation, "Elevation"},
    {Entity::kSlab, Attribute::kPredefinedType, "PredefinedType"},
    {Entity::kRelAggregates, Attribute::kRelated, "RelatedObjects"},
    {Entity::kRelVoidsElement, Attribute::kRelated, "RelatedOpeningElement"},
    {Entity::kRelFillsElement, Attribute::kRelated, "RelatedBuildingElement"},
    {Entity::kRelContainedInSpatialStructure, Attribute::kRelating, "RelatingStructure"},
    {Entity::kMaterialLayerSetUsage, Attribute::kOffset, "OffsetFromReferenceLine"},
    {Entity::kLocalPlacement, Attribute::kRelativePlacement, "RelativePlacement"},
    {Entity::kAxis2Placement3D, Attribute::kRefDirection, "RefDirection"},
    {Entity::kExtrudedAreaSolid, Attribute::kDepth, "Depth"},
    {Entity::kBooleanResult, Attribute::kSecondOperand, "SecondOperand"},
    {Entity::kPolygonalBoundedHalfSpace, Attribute::kBoundary, "PolygonalBoundary"},
    {Entity::kTrimmedCurve, Attribute::kSameSense, "SenseAgreement"},
    {Entity::kCompositeCurveSegment, Attribute::kCurve, "ParentCurve"},
    {Entity::kRectangleProfile, Attribute::kYDim, "YDim"},
    {Entity::kMappedItem, Attribute::kMappingTarget, "MappingTarget"},
    {Entity::kRepresentationMap, Attribute::kMappedRepresentation, "MappedRepresentation"},
    {Entity::kFaceBound, Attribute::kOrientation, "Orientation"},
};

TEST(Attribute, IsWhereTheSchemaHasIt) {
  for (const IFC_RELEASE release : kReleases) {
    for (const NamedAttribute& row : kNamed) {
      const EntityDescription* entity = FindEntity(release, RowOf(row.entity).name);
      if (entity == nullptr) continue;
      const auto position = PositionOf(release, row.entity, row.attribute);
      ASSERT_TRUE(position) << row.name;
      EXPECT_EQ(entity->AttributeAt(*position)->name, row.name) << entity->name;
    }
  }
}

TEST(Attribute, HasNoPositionInOtherEntitiesAndReleases) {
  EXPECT_FALSE(PositionOf(IFC_RELEASE_2X3, Entity::kColumn, Attribute::kDepth));
  EXPECT_FALSE(PositionOf(IFC_RELEASE_2X3, Entity::kProject, Attribute::kRepresentation));
  EXPECT_FALSE(PositionOf(IFC_RELEASE_20, Entity::kColumn, Attribute::kTag));
  EXPECT_FALSE(PositionOf(IFC_RELEASE_NONE, Entity::kColumn, Attribute::kTag));
}

}  // namespace
}  // namespace KelIFC::building
