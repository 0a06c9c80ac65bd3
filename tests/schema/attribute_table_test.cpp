#include "kelifc/schema/attribute_table.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <type_traits>

#include "tests/schema/model.h"
#include "tests/schema/records.h"

namespace KelIFC {
namespace {

constexpr IFC_RELEASE kReleases[] = {IFC_RELEASE_151, IFC_RELEASE_20, IFC_RELEASE_2X,
                                     IFC_RELEASE_2X2, IFC_RELEASE_2X3};

const EntityDescription& Entity(IFC_RELEASE release, std::string_view name) {
  const EntityDescription* entity = FindEntity(release, name);
  if (entity == nullptr) throw std::invalid_argument(std::string(name));
  return *entity;
}

const AttributeDescription& Attribute(IFC_RELEASE release, std::string_view entity,
                                      std::string_view name) {
  const AttributeDescription* attribute = Entity(release, entity).FindAttribute(name);
  if (attribute == nullptr) throw std::invalid_argument(std::string(name));
  return *attribute;
}

/// The names of the attributes of a statement, with blanks between them.
std::string Statement(IFC_RELEASE release, std::string_view name) {
  const EntityDescription& entity = Entity(release, name);
  std::string names;
  for (std::size_t i = 0; i < entity.positionCount; ++i) {
    names += (i == 0 ? "" : " ") + std::string(entity.AttributeAt(i)->name);
  }
  return names;
}

TEST(FindEntity, IgnoresTheCaseOfLetters) {
  const EntityDescription* wall = FindEntity(IFC_RELEASE_2X3, "IfcWall");
  ASSERT_NE(wall, nullptr);
  EXPECT_EQ(wall->name, "IfcWall");
  EXPECT_EQ(FindEntity(IFC_RELEASE_2X3, "IFCWALL"), wall);
  EXPECT_EQ(FindEntity(IFC_RELEASE_2X3, "ifcwall"), wall);
  EXPECT_NE(FindEntity(IFC_RELEASE_2X2, "IfcWall"), wall);
}

TEST(FindEntity, ReturnsNullForANameThatTheReleaseDoesNotHave) {
  EXPECT_EQ(FindEntity(IFC_RELEASE_2X3, "IfcRoofSlab"), nullptr);
  EXPECT_NE(FindEntity(IFC_RELEASE_151, "IfcRoofSlab"), nullptr);
  for (const char* name : {"", "IfcWal", "IfcWallX", "IfcUnknown", "zzz", "\xff"}) {
    EXPECT_EQ(FindEntity(IFC_RELEASE_2X3, name), nullptr) << name;
  }
  EXPECT_EQ(FindEntity(IFC_RELEASE_NONE, "IfcWall"), nullptr);
}

TEST(AllEntities, AreInAlphabeticalOrderAndFoundByName) {
  for (const IFC_RELEASE release : kReleases) {
    const EntityRange all = AllEntities(release);
    EXPECT_GT(all.size(), 100u);
    for (const EntityDescription* entity : all) {
      EXPECT_EQ(FindEntity(release, entity->name), entity) << entity->name;
    }
  }
  EXPECT_EQ(AllEntities(IFC_RELEASE_NONE).size(), 0u);
}

TEST(AttributeAt, CountsThePositionsOfAStatementFromTheRoot) {
  EXPECT_EQ(Statement(IFC_RELEASE_2X3, "IfcDoor"),
            "GlobalId OwnerHistory Name Description ObjectType ObjectPlacement Representation Tag "
            "OverallHeight OverallWidth");
  EXPECT_EQ(Statement(IFC_RELEASE_2X3, "IfcCartesianPoint"), "Coordinates");
  EXPECT_EQ(Statement(IFC_RELEASE_20, "IfcAttDrivenRevolvedSolid"), "");
  const EntityDescription& point = Entity(IFC_RELEASE_2X3, "IfcCartesianPoint");
  EXPECT_EQ(point.AttributeAt(1), nullptr);
  EXPECT_EQ(point.AttributeAt(static_cast<std::size_t>(-1)), nullptr);
}

TEST(AttributeAt, IncludesWhatTheClassDoesNotKeep) {
  EXPECT_EQ(Statement(IFC_RELEASE_2X3, "IfcOwnerHistory"),
            "OwningUser OwningApplication State ChangeAction LastModifiedDate LastModifyingUser "
            "LastModifyingApplication CreationDate");
  const AttributeDescription& action = *Entity(IFC_RELEASE_2X3, "IfcOwnerHistory").AttributeAt(3);
  EXPECT_EQ(action.use, AttributeUse::kDropped);
  EXPECT_EQ(action.kind, AttributeKind::kEnumeration);
  EXPECT_TRUE(action.isRequired);
  EXPECT_FALSE(action.isWritten);
  EXPECT_EQ(action.getter, "");
}

TEST(AttributeAt, IncludesWhatTheClassNeitherReadsNorWrites) {
  const EntityDescription& path = Entity(IFC_RELEASE_2X3, "IfcRelConnectsPathElements");
  EXPECT_EQ(path.positionCount, 11u);
  EXPECT_EQ(path.AttributeAt(10)->name, "RelatingConnectionType");
  EXPECT_EQ(path.AttributeAt(8)->kind, AttributeKind::kIntegerList);
  const EntityDescription& railing = Entity(IFC_RELEASE_2X, "IfcRailing");
  EXPECT_EQ(railing.AttributeAt(railing.positionCount - 1)->name, "PredefinedType");
}

TEST(AttributeAt, SaysWhichPositionASubtypeDerives) {
  EXPECT_EQ(Statement(IFC_RELEASE_2X3, "IfcSiUnit"), "Dimensions UnitType Prefix Name");
  const EntityDescription& unit = Entity(IFC_RELEASE_2X3, "IfcSIUnit");
  EXPECT_EQ(unit.AttributeAt(0)->use, AttributeUse::kDerived);
  EXPECT_EQ(unit.AttributeAt(1)->use, AttributeUse::kKept);
  EXPECT_EQ(unit.AttributeAt(1)->getter, "GetUnitType");
  EXPECT_EQ(unit.AttributeAt(1)->type, "IfcUnitEnum");
}

TEST(AttributeAt, ContinuesWithTheAttributesOfTheRecord) {
  const EntityDescription& wall = Entity(IFC_RELEASE_151, "IfcWall");
  EXPECT_EQ(wall.bases[0]->name, "IfcBuildingElement");
  EXPECT_EQ(wall.record->name, "IfcElement");
  const std::size_t first = wall.record->positionCount;
  EXPECT_EQ(wall.AttributeAt(first)->name, "HasMaterial");
  EXPECT_EQ(wall.AttributeAt(first)->use, AttributeUse::kDerived);
  EXPECT_EQ(wall.AttributeAt(first + 1)->name, "GenericType");
}

TEST(AttributeDescription, NamesTheOperationsOfTheClass) {
  const AttributeDescription& name = Attribute(IFC_RELEASE_2X3, "IfcRoot", "name");
  EXPECT_EQ(name.getter, "GetName");
  EXPECT_EQ(name.setter, "SetName");
  EXPECT_EQ(Attribute(IFC_RELEASE_2X3, "IfcPolyLine", "Points").setter, "AddPoint");
  EXPECT_EQ(Attribute(IFC_RELEASE_2X3, "IfcBuilding", "BuildingAddress").getter, "");
  EXPECT_EQ(Attribute(IFC_RELEASE_20, "IfcBeam", "BeamArea").getter, "calcBeamArea");
}

TEST(AttributeDescription, HasTheNameOfTheSchemaIfTheClassUsesAnotherName) {
  const AttributeDescription& load =
      Attribute(IFC_RELEASE_2X3, "IfcStructuralPointAction", "DestabilizingLoad");
  EXPECT_EQ(load.getter, "GetDestablizingLoad");
  EXPECT_EQ(Attribute(IFC_RELEASE_2X3, "IfcProductRepresentation", "Description").getter,
            "GetText");
}

TEST(AttributeDescription, SaysWhatAnInstanceKeeps) {
  // A load reads the first two texts of a person as the names.
  EXPECT_EQ(Attribute(IFC_RELEASE_2X3, "IfcPerson", "FamilyName").use, AttributeUse::kDropped);
  EXPECT_EQ(Attribute(IFC_RELEASE_151, "IfcPerson", "FamilyName").use, AttributeUse::kKept);
  EXPECT_EQ(Attribute(IFC_RELEASE_2X3, "IfcProfileDef", "ProfileType").use, AttributeUse::kDropped);
  EXPECT_EQ(Attribute(IFC_RELEASE_20, "IfcSpace", "BoundedBy").use, AttributeUse::kDropped);
  // Only the setter changes this member.
  const AttributeDescription& axes =
      Attribute(IFC_RELEASE_2X3, "IfcStructuralActivity", "GlobalOrLocal");
  EXPECT_EQ(axes.use, AttributeUse::kDropped);
  EXPECT_EQ(axes.getter, "GetGlobalOrLocal");
  EXPECT_EQ(axes.position, 8);
}

TEST(AttributeDescription, SaysWhatASaveWrites) {
  EXPECT_TRUE(Attribute(IFC_RELEASE_2X3, "IfcStairFlight", "RiserHeight").isWritten);
  EXPECT_FALSE(Attribute(IFC_RELEASE_2X3, "IfcStair", "ShapeType").isWritten);
  EXPECT_EQ(Attribute(IFC_RELEASE_2X3, "IfcStair", "ShapeType").use, AttributeUse::kKept);
  EXPECT_FALSE(Attribute(IFC_RELEASE_2X3, "IfcEllipse", "SemiAxis1").isWritten);
}

TEST(FindAttribute, FindsInverseAttributesToo) {
  const AttributeDescription& openings =
      Attribute(IFC_RELEASE_2X3, "IfcWallStandardCase", "HasOpenings");
  EXPECT_EQ(openings.use, AttributeUse::kInverse);
  EXPECT_EQ(openings.position, AttributeDescription::kNoPosition);
  EXPECT_EQ(openings.type, "IfcRelVoidsElement");
  EXPECT_EQ(openings.getter, "GetHasOpenings");
}

TEST(FindAttribute, PrefersTheAttributeThatTheInstanceKeeps) {
  const AttributeDescription& position =
      Attribute(IFC_RELEASE_20, "IfcAttDrivenExtrudedSegment", "Position");
  EXPECT_EQ(position.position, 3);
  EXPECT_EQ(position.use, AttributeUse::kKept);
}

TEST(FindAttribute, ReturnsNullForAnUnknownNameAndForAnEmptyName) {
  const EntityDescription& history = Entity(IFC_RELEASE_20, "IfcProject");
  EXPECT_EQ(history.FindAttribute("Height"), nullptr);
  EXPECT_EQ(history.FindAttribute(""), nullptr);
}

TEST(FindInverse, FindsAnInheritedAttributeInAnyCase) {
  const EntityDescription& wall = Entity(IFC_RELEASE_2X3, "IfcWallStandardCase");
  const InverseAttribute* const openings = wall.FindInverse("hasopenings");
  ASSERT_NE(openings, nullptr);
  EXPECT_EQ(openings->name, "HasOpenings");
  EXPECT_EQ(openings->entity, "IfcRelVoidsElement");
  EXPECT_EQ(openings->attribute, "RelatingBuildingElement");
  EXPECT_EQ(wall.FindInverse("Name"), nullptr);
  EXPECT_EQ(wall.FindInverse(""), nullptr);
}

// The classes fill the set with this name the other way round.
TEST(FindInverse, FindsTheDirectionOfTheSchema) {
  const EntityDescription& wall = Entity(IFC_RELEASE_2X3, "IfcWall");
  EXPECT_EQ(wall.FindInverse("Decomposes")->attribute, "RelatedObjects");
  EXPECT_EQ(wall.FindInverse("IsDecomposedBy")->attribute, "RelatingObject");
}

TEST(KindOfElements, IsTheKindOfTheValuesInAList) {
  EXPECT_EQ(KindOfElements(AttributeKind::kTextList), AttributeKind::kText);
  EXPECT_EQ(KindOfElements(AttributeKind::kRealList), AttributeKind::kReal);
  EXPECT_EQ(KindOfElements(AttributeKind::kIntegerList), AttributeKind::kInteger);
  EXPECT_EQ(KindOfElements(AttributeKind::kReferenceSet), AttributeKind::kReference);
  EXPECT_EQ(KindOfElements(AttributeKind::kReferenceList), AttributeKind::kReference);
  EXPECT_EQ(KindOfElements(AttributeKind::kReference), AttributeKind::kUnknown);
}

TEST(IsKindOf, FollowsSupertypesAndSelects) {
  const EntityDescription& point = Entity(IFC_RELEASE_2X3, "IfcCartesianPoint");
  for (const char* base : {"IfcCartesianPoint", "IfcPoint", "IfcGeometricSetSelect",
                           "IfcTrimmingSelect", "IfcRepresentationItem"}) {
    EXPECT_TRUE(point.IsKindOf(Entity(IFC_RELEASE_2X3, base))) << base;
  }
  EXPECT_FALSE(point.IsKindOf(Entity(IFC_RELEASE_2X3, "IfcCurve")));
  EXPECT_FALSE(point.IsKindOf(Entity(IFC_RELEASE_2X2, "IfcPoint")));
  EXPECT_TRUE(Entity(IFC_RELEASE_2X3, "IfcLabel").IsKindOf(Entity(IFC_RELEASE_2X3, "IfcValue")));
}

TEST(EntityDescription, SaysWhatTheClassIs) {
  EXPECT_EQ(Entity(IFC_RELEASE_2X3, "IfcWall").form, EntityForm::kEntity);
  EXPECT_EQ(Entity(IFC_RELEASE_2X3, "IfcProduct").form, EntityForm::kAbstract);
  EXPECT_EQ(Entity(IFC_RELEASE_2X3, "IfcShell").form, EntityForm::kSelect);
  EXPECT_EQ(Entity(IFC_RELEASE_2X3, "IfcInteger").form, EntityForm::kValueType);
  EXPECT_EQ(Entity(IFC_RELEASE_2X3, "IfcInteger").valueKind, AttributeKind::kInteger);
  EXPECT_TRUE(Entity(IFC_RELEASE_2X3, "IfcWall").isInFile);
  EXPECT_FALSE(Entity(IFC_RELEASE_2X3, "IfcProfileDef").isInFile);
}

// Tests that apply to every attribute of every class.

TEST(AttributeTable, HasDensePositionsAfterThoseOfTheRecord) {
  for (const IFC_RELEASE release : kReleases) {
    for (const EntityDescription* entity : AllEntities(release)) {
      std::size_t position = entity->record == nullptr ? 0 : entity->record->positionCount;
      bool isInStatement = true;
      for (std::size_t i = 0; i < entity->attributeCount; ++i) {
        const AttributeDescription& attribute = entity->attributes[i];
        isInStatement = isInStatement && attribute.use != AttributeUse::kInverse;
        EXPECT_EQ(attribute.position,
                  isInStatement ? static_cast<int>(position++) : AttributeDescription::kNoPosition)
            << entity->name << " " << attribute.name;
      }
      EXPECT_EQ(position, entity->positionCount) << entity->name;
    }
  }
}

TEST(AttributeTable, NamesClassesThatTheReleaseHas) {
  for (const IFC_RELEASE release : kReleases) {
    for (const EntityDescription* entity : AllEntities(release)) {
      for (std::size_t i = 0; i < entity->attributeCount; ++i) {
        const AttributeDescription& attribute = entity->attributes[i];
        const bool isReference = attribute.kind == AttributeKind::kReference ||
                                 attribute.kind == AttributeKind::kReferenceSet ||
                                 attribute.kind == AttributeKind::kReferenceList;
        if (!isReference || attribute.type.empty() || attribute.type == "IfcUnknown") continue;
        EXPECT_NE(FindEntity(release, attribute.type), nullptr)
            << entity->name << " " << attribute.type;
      }
    }
  }
}

TEST(AttributeTable, NamesTheAttributesThatHoldTheReferencesOfInverses) {
  for (const IFC_RELEASE release : kReleases) {
    for (const EntityDescription* entity : AllEntities(release)) {
      for (std::size_t i = 0; i < entity->inverseCount; ++i) {
        const InverseAttribute& inverse = entity->inverses[i];
        const AttributeDescription& holder = Attribute(release, inverse.entity, inverse.attribute);
        EXPECT_EQ(holder.name, inverse.attribute);
        EXPECT_EQ(holder.use, AttributeUse::kKept) << inverse.name;
        const auto* const stated = entity->FindAttribute(inverse.name);
        const bool isInStatement =
            stated != nullptr && stated->position != AttributeDescription::kNoPosition;
        EXPECT_FALSE(isInStatement) << entity->name << " " << inverse.name;
      }
    }
  }
}

TEST(AttributeTable, NamesEveryPositionOfTheNewerReleases) {
  for (const IFC_RELEASE release : {IFC_RELEASE_2X, IFC_RELEASE_2X2, IFC_RELEASE_2X3}) {
    for (const EntityDescription* entity : AllEntities(release)) {
      for (std::size_t i = 0; i < entity->positionCount; ++i) {
        EXPECT_FALSE(entity->AttributeAt(i)->name.empty()) << entity->name << " " << i;
        EXPECT_NE(entity->AttributeAt(i)->kind, AttributeKind::kUnknown) << entity->name << i;
      }
    }
  }
}

/// The positions of a record, which are split at the commas outside parentheses and texts.
std::vector<std::string> Positions(const std::string& record) {
  std::vector<std::string> positions(record.empty() ? 0 : 1);
  int depth = 0;
  bool isText = false;
  for (const char c : record) {
    if (c == '\'') isText = !isText;
    if (!isText) depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    if (c == ',' && depth == 0 && !isText) {
      positions.emplace_back();
    } else {
      positions.back() += c;
    }
  }
  return positions;
}

/// The first characters that a value of a kind can have.
std::string Beginnings(AttributeKind kind) {
  static const std::map<AttributeKind, std::string> beginnings = {
      {AttributeKind::kText, "'"},
      {AttributeKind::kReal, "0123456789-"},
      {AttributeKind::kInteger, "0123456789-"},
      {AttributeKind::kBoolean, "."},
      {AttributeKind::kLogical, "."},
      {AttributeKind::kEnumeration, "."},
      {AttributeKind::kBinary, "\""},
      {AttributeKind::kReference, "#"},
      {AttributeKind::kTypedValue, "I"},
      {AttributeKind::kTextList, "("},
      {AttributeKind::kRealList, "("},
      {AttributeKind::kIntegerList, "("},
      {AttributeKind::kReferenceSet, "("},
      {AttributeKind::kReferenceList, "("}};
  const auto found = beginnings.find(kind);
  return found == beginnings.end() ? std::string() : found->second;
}

template <class R>
const std::vector<SampleRecord>& Samples();
template <>
const std::vector<SampleRecord>& Samples<Release151>() {
  return SampleRecords151();
}
template <>
const std::vector<SampleRecord>& Samples<Release20>() {
  return SampleRecords20();
}
template <>
const std::vector<SampleRecord>& Samples<Release2x>() {
  return SampleRecords2x();
}
template <>
const std::vector<SampleRecord>& Samples<Release2x2>() {
  return SampleRecords2x2();
}
template <>
const std::vector<SampleRecord>& Samples<Release2x3>() {
  return SampleRecords2x3();
}

template <class R>
class AttributeTableOf : public testing::Test {};
using Releases = testing::Types<Release151, Release20, Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(AttributeTableOf, Releases);

// The sample records are those that the classes read and write in another test.
TYPED_TEST(AttributeTableOf, MatchesTheRecordsThatTheClassesRead) {
  for (const SampleRecord& record : Samples<TypeParam>()) {
    const EntityDescription& entity = Entity(TypeParam::kRelease, record.name);
    const std::vector<std::string> positions = Positions(record.read);
    ASSERT_LE(positions.size(), entity.positionCount) << record.name;
    for (std::size_t i = 0; i < positions.size(); ++i) {
      const AttributeDescription& attribute = *entity.AttributeAt(i);
      if (attribute.kind == AttributeKind::kUnknown) continue;
      const std::string wanted =
          attribute.use == AttributeUse::kDerived ? "*" : Beginnings(attribute.kind);
      EXPECT_NE(wanted.find(positions[i].front()), std::string::npos)
          << record.name << " " << attribute.name << " " << positions[i];
    }
  }
}

TYPED_TEST(AttributeTableOf, HasEveryClassOfTheRelease) {
  TypeParam::ForEachClass([]<class Type>() {
    if constexpr (std::is_base_of_v<IfcUnknown, Type>) {
      EXPECT_NE(FindEntity(TypeParam::kRelease, Type::GetItemName()), nullptr);
    }
  });
}

}  // namespace
}  // namespace KelIFC
