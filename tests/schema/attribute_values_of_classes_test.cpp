// Tests that apply to the values of every class of every release.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <memory>
#include <string>

#include "kelifc/core/statement_view.h"
#include "kelifc/schema/attribute_value.h"

#include "tests/schema/model.h"
#include "tests/schema/records.h"

namespace KelIFC {
namespace {

using Kind = AttributeValueKind;

struct ReleaseRecords {
  IFC_RELEASE release;
  const std::vector<SampleRecord>& (*records)();
};

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return upper;
}

/// The kinds that a value can have if the statement has another kind.
bool IsKind(const AttributeValue& value, ATTRIBUTE_KIND kind) {
  switch (kind) {
    case ATTRIBUTE_NONE:
    case ATTRIBUTE_UNSET:
      return value.GetKind() == Kind::kUnset;
    case ATTRIBUTE_DERIVED:
      return value.GetKind() == Kind::kDerived;
    case ATTRIBUTE_REFERENCE:
      return value.GetKind() == Kind::kReference;
    case ATTRIBUTE_INTEGER:
      return value.GetKind() == Kind::kInteger;
    case ATTRIBUTE_REAL:
      return value.GetKind() == Kind::kReal;
    case ATTRIBUTE_TEXT:
      return value.GetKind() == Kind::kText;
    case ATTRIBUTE_ENUMERATION:
      return value.GetKind() == Kind::kEnumeration || value.GetKind() == Kind::kBoolean ||
             value.GetKind() == Kind::kLogical;
    case ATTRIBUTE_BINARY:
      return value.GetKind() == Kind::kBinary;
    case ATTRIBUTE_LIST:
      return value.GetKind() == Kind::kList;
    case ATTRIBUTE_TYPED:
      return value.GetKind() == Kind::kTyped;
  }
  return false;
}

/// Compares a value with a position of a statement, which counts from 1.
bool IsSame(const AttributeValue& value, const StatementView& statement, std::size_t position) {
  const ATTRIBUTE_KIND kind = statement.GetKind(position);
  if (!IsKind(value, kind)) return false;
  const bool isText = kind == ATTRIBUTE_TEXT || kind == ATTRIBUTE_BINARY;
  if (isText && value.AsText() != statement.GetText(position)) return false;
  if (kind == ATTRIBUTE_ENUMERATION && value.AsEnumerator() != statement.GetText(position)) {
    return false;
  }
  const StatementView parts = statement.GetList(position);
  if (kind == ATTRIBUTE_TYPED) {
    return UpperCase(value.TypeName()) == statement.GetTypeName(position) &&
           IsSame(value.TypedValue(), parts, 1);
  }
  if (kind == ATTRIBUTE_LIST && value.Size() != parts.GetCount()) return false;
  for (std::size_t i = 0; i < value.Size(); ++i) {
    if (!IsSame(value.At(i), parts, i + 1)) return false;
  }
  return value.AsNumber() == statement.GetNumber(position) &&
         value.AsReferenceNumber() == statement.GetReference(position);
}

class ValuesOfClasses : public testing::TestWithParam<ReleaseRecords> {
 protected:
  ValuesOfClasses() {
    server.SetRelease(GetParam().release);
    enumerators["IfcTrimmingPreference"] = ".CARTESIAN.";
    for (const SampleRecord& record : GetParam().records()) AddEnumerators(record);
  }

  /// Reads a text of each enumeration from the sample records.
  void AddEnumerators(const SampleRecord& record) {
    const EntityDescription* const entity = FindEntity(GetParam().release, record.name);
    const StatementView positions(record.read);
    for (std::size_t i = 0; i < positions.GetCount(); ++i) {
      if (positions.GetKind(i + 1) != ATTRIBUTE_ENUMERATION) continue;
      const AttributeDescription* const attribute = entity->AttributeAt(i);
      const bool isEnumeration = attribute->kind == AttributeKind::kEnumeration;
      if (isEnumeration) enumerators[attribute->type] = positions.GetSource(i + 1);
    }
  }

  /// Returns a text for an attribute. The texts of other positions differ from it.
  std::string TextOf(const AttributeDescription& attribute) {
    std::string n = std::to_string(attribute.position + 11);
    switch (attribute.kind) {
      case AttributeKind::kUnknown:
        return "$";
      case AttributeKind::kText:
        return attribute.name == "GlobalId" ? "'0123456789ABCDEFGHIJ_$'" : "'text " + n + "'";
      case AttributeKind::kReal:
        return n + ".";  // two digits, which also a number with an exponent keeps
      case AttributeKind::kInteger:
        return n;
      case AttributeKind::kBoolean:
        return ".T.";
      case AttributeKind::kLogical:
        return ".F.";
      case AttributeKind::kEnumeration:
        return enumerators.count(attribute.type) != 0 ? enumerators[attribute.type] : ".SAMPLE.";
      case AttributeKind::kBinary:
        return "\"10\"";
      case AttributeKind::kReference:
        return "#" + n;
      case AttributeKind::kTypedValue:
        return "IFCLENGTHMEASURE(" + n + ".5)";
      case AttributeKind::kTextList:
        return "('a" + n + "','b,)')";
      case AttributeKind::kRealList:
        return "(" + n + ".,0.125)";
      case AttributeKind::kIntegerList:
        return "(" + n + ",-7,0)";
      case AttributeKind::kReferenceSet:
      case AttributeKind::kReferenceList:
        return "(#9" + n + ",#8" + n + ",#9" + n + ")";
    }
    return {};
  }

  /// Returns the positions of a statement between its parentheses.
  std::string RecordOf(const EntityDescription& entity) {
    std::string record;
    for (std::size_t i = 0; i < entity.positionCount; ++i) {
      const AttributeDescription& attribute = *entity.AttributeAt(i);
      const bool isDerived = attribute.use == AttributeUse::kDerived;
      record += (i == 0 ? "" : ",") + (isDerived ? std::string("*") : TextOf(attribute));
    }
    return record;
  }

  std::unique_ptr<IfcUnknown> Make(const EntityDescription& entity, const std::string& record) {
    const std::string text = UpperCase(entity.name) + "(" + record + ")";
    std::unique_ptr<IfcUnknown> instance(server.ParseClass(text.c_str(), nullptr));
    instance->SetServer(&server);
    instance->Parse(text.c_str());
    return instance;
  }

  /// Returns the entities that a file can contain.
  std::vector<const EntityDescription*> Entities() const {
    std::vector<const EntityDescription*> entities;
    for (const EntityDescription* entity : AllEntities(GetParam().release)) {
      if (entity->isInFile && entity->form == EntityForm::kEntity) entities.push_back(entity);
    }
    return entities;
  }

  IfcServer server;
  std::map<std::string_view, std::string> enumerators;
};

TEST_P(ValuesOfClasses, MatchTheStatementThatWasParsed) {
  std::size_t compared = 0;
  for (const EntityDescription* entity : Entities()) {
    const std::string record = RecordOf(*entity);
    const StatementView statement(record);
    const auto instance = Make(*entity, record);
    const InstanceView view(*instance);
    ASSERT_EQ(view.Size(), statement.GetCount()) << entity->name;
    for (std::size_t i = 0; i < view.Size(); ++i) {
      const AttributeDescription& attribute = *entity->AttributeAt(i);
      if (attribute.use == AttributeUse::kDropped) {
        EXPECT_EQ(view[i].GetKind(), Kind::kUnset) << entity->name << " " << attribute.name;
        continue;
      }
      EXPECT_TRUE(IsSame(view[i], statement, i + 1))
          << entity->name << " " << attribute.name << " " << statement.GetSource(i + 1) << " "
          << static_cast<int>(view[i].GetKind());
      ++compared;
    }
  }
  EXPECT_GT(compared, 2 * Entities().size());
}

TEST_P(ValuesOfClasses, MatchTheStatementThatASaveWrites) {
  std::size_t compared = 0;
  for (const EntityDescription* entity : Entities()) {
    const auto instance = Make(*entity, RecordOf(*entity));
    const std::string text = Text(*instance);
    const std::size_t first = text.find('(') + 1;
    const StatementView written(std::string_view(text).substr(first, text.size() - first - 1));
    if (written.GetCount() != entity->positionCount) continue;  // some classes write fewer
    for (std::size_t i = 0; i < entity->positionCount; ++i) {
      const AttributeDescription& attribute = *entity->AttributeAt(i);
      if (attribute.use != AttributeUse::kKept || !attribute.isWritten) continue;
      EXPECT_TRUE(IsSame(ReadAttribute(*instance, i), written, i + 1))
          << entity->name << " " << attribute.name << " " << written.GetSource(i + 1);
      ++compared;
    }
  }
  EXPECT_GT(compared, Entities().size());
}

TEST_P(ValuesOfClasses, AreUnsetIfTheStatementHasNoValues) {
  for (const EntityDescription* entity : Entities()) {
    std::string record;
    for (std::size_t i = 0; i < entity->positionCount; ++i) record += i == 0 ? "$" : ",$";
    const auto instance = Make(*entity, record);
    for (std::size_t i = 0; i < entity->positionCount; ++i) {
      const AttributeDescription& attribute = *entity->AttributeAt(i);
      // An unset enumeration can read as a row of its table, and an identifier is made.
      const bool isReplaced =
          attribute.kind == AttributeKind::kEnumeration || attribute.name == "GlobalId";
      if (attribute.use != AttributeUse::kKept || isReplaced) continue;
      EXPECT_EQ(ReadAttribute(*instance, i).GetKind(), Kind::kUnset)
          << entity->name << " " << attribute.name;
    }
  }
}

TEST_P(ValuesOfClasses, AreReadForEachKeptPosition) {
  for (const EntityDescription* entity : AllEntities(GetParam().release)) {
    for (std::size_t i = 0; i < entity->attributeCount; ++i) {
      const AttributeDescription& attribute = entity->attributes[i];
      EXPECT_EQ(attribute.read != nullptr, attribute.use == AttributeUse::kKept)
          << entity->name << " " << attribute.name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(OfRelease, ValuesOfClasses,
                         testing::Values(ReleaseRecords{IFC_RELEASE_151, &SampleRecords151},
                                         ReleaseRecords{IFC_RELEASE_20, &SampleRecords20},
                                         ReleaseRecords{IFC_RELEASE_2X, &SampleRecords2x},
                                         ReleaseRecords{IFC_RELEASE_2X2, &SampleRecords2x2},
                                         ReleaseRecords{IFC_RELEASE_2X3, &SampleRecords2x3}),
                         [](const auto& info) {
                           return "Of" + std::to_string(static_cast<int>(info.param.release));
                         });

}  // namespace
}  // namespace KelIFC
