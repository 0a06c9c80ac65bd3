#ifndef KELIFC_SCHEMA_ATTRIBUTE_TABLE_H_
#define KELIFC_SCHEMA_ATTRIBUTE_TABLE_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kelifc/platform/export.h"
#include "kelifc/server/release.h"

namespace KelIFC {

class AttributeValue;
class IfcUnknown;

// The attributes of the entities as constant data: what each position of a statement holds, and
// which operations of the classes reach it. With it a program can check the text of a statement, or
// find an attribute by its name.
//
//   const EntityDescription* wall = FindEntity(IFC_RELEASE_2X3, "IfcWall");
//   for (std::size_t i = 0; i < wall->positionCount; ++i) {
//     std::cout << i << ' ' << wall->AttributeAt(i)->name << '\n';
//   }

/// How a file writes the value of an attribute.
enum class AttributeKind : std::uint8_t {
  kUnknown,        ///< the description does not say it
  kText,           ///< `'text'`
  kReal,           ///< `1.5`
  kInteger,        ///< `15`
  kBoolean,        ///< `.T.` or `.F.`
  kLogical,        ///< `.T.`, `.F.` or `.U.`
  kEnumeration,    ///< `.TEXT.`
  kBinary,         ///< `"0A"`
  kReference,      ///< `#15`, or an inline typed value where the target is a select
  kTypedValue,     ///< `IFCLABEL('text')`
  kTextList,       ///< `('one','two')`
  kRealList,       ///< `(1.,2.5)`
  kIntegerList,    ///< `(1,2)`
  kReferenceSet,   ///< `(#15,#16)`, in any order; inline typed values as for kReference
  kReferenceList,  ///< `(#15,#16)`, in a defined order; inline typed values as for kReference
};

/// Returns the kind of the elements of a list, or kUnknown for a kind that is no list.
constexpr AttributeKind KindOfElements(AttributeKind list) {
  switch (list) {
    case AttributeKind::kTextList:
      return AttributeKind::kText;
    case AttributeKind::kRealList:
      return AttributeKind::kReal;
    case AttributeKind::kIntegerList:
      return AttributeKind::kInteger;
    case AttributeKind::kReferenceSet:
    case AttributeKind::kReferenceList:
      return AttributeKind::kReference;
    default:
      return AttributeKind::kUnknown;
  }
}

/// What the library does with an attribute.
enum class AttributeUse : std::uint8_t {
  kKept,     ///< A load reads the value of the statement, and the instance keeps it.
  kDropped,  ///< The instance does not keep the value of the statement.
  kDerived,  ///< The entity derives the value; a statement has `*` in its place.
  kInverse,  ///< The attribute is not in a statement: other instances fill it during a load.
};

/// Reads a value from an instance of the class that the description belongs to. ReadAttribute in
/// attribute_value.h calls it; it does not check the class.
using AttributeReader = AttributeValue (*)(const IfcUnknown& instance);

/// Sets a value of an instance of the class that the description belongs to. WriteAttribute in
/// write_attribute.h calls it; it checks neither the class nor the form of the text.
using AttributeWriter = bool (*)(IfcUnknown& instance, const char* text);

/// One attribute of an entity. The texts live as long as the library is loaded.
struct AttributeDescription {
  /// The position of an attribute that is not in a statement.
  static constexpr std::int16_t kNoPosition = -1;

  std::string_view name = {};    ///< in the schema; empty if the description does not know it
  std::string_view getter = {};  ///< the operation of the class that returns it; empty for none
  std::string_view setter = {};  ///< the operation that sets it or adds to it; empty for none
  std::string_view type =
      {};  ///< the class that references lead to, or the enumeration; may be empty
  std::int16_t position = kNoPosition;           ///< in the statement, counted from 0
  AttributeKind kind = AttributeKind::kUnknown;  ///< how a file writes the value
  AttributeUse use = AttributeUse::kKept;        ///< whether and how an instance gets the value
  bool isRequired = false;  ///< the schema does not allow `$`; false if that is not known
  bool isWritten =
      false;  ///< a save writes the kept value; false: it writes a fixed text or nothing
  AttributeReader read = nullptr;   ///< null for a value that the instance does not keep
  AttributeWriter write = nullptr;  ///< null for a value that the instance does not keep
};

/// An inverse attribute of an entity: the instances that refer to an instance of the entity. No
/// statement has it. It follows from the attributes of other instances, so it is right also after
/// the model has changed.
struct InverseAttribute {
  std::string_view name = {};       ///< in the schema, such as "HasOpenings"
  std::string_view entity = {};     ///< of the instances that refer, such as "IfcRelVoidsElement"
  std::string_view attribute = {};  ///< of that entity, which holds the references
};

/// What an entity or another class of the schema is.
enum class EntityForm : std::uint8_t {
  kEntity,     ///< can have instances
  kAbstract,   ///< only the entities that derive from it have instances
  kSelect,     ///< groups the entities and values that a reference can lead to
  kValueType,  ///< a value that a file writes with the name of its type
};

/// A class of one release. Its data is constant and lives as long as the library is loaded.
struct KELIFC_API EntityDescription {
  std::string_view name =
      {};  ///< as the C++ class spells it, which may differ from the schema in case
  EntityForm form = EntityForm::kEntity;              ///< whether the class has instances
  bool isInFile = false;                              ///< a load makes instances of it
  AttributeKind valueKind = AttributeKind::kUnknown;  ///< of a value type
  AttributeReader readValue = nullptr;                ///< of a value type that can have instances
  const EntityDescription* bases[2] = {nullptr, nullptr};  ///< its supertypes and selects, or null
  /// The class whose attributes come first in a statement; null if there is none. It is not always
  /// the base: an entity that redeclares an attribute of its base continues with a class above the
  /// base.
  const EntityDescription* record = nullptr;
  /// The attributes that the class adds: those in a statement in their order, then the others.
  const AttributeDescription* attributes = nullptr;
  std::size_t attributeCount = 0;  ///< of `attributes`
  std::size_t positionCount =
      0;  ///< how many attributes a statement has, those of `record` included
  /// The inverse attributes that the entity adds, as far as the release has a class for the
  /// instances that refer.
  const InverseAttribute* inverses = nullptr;
  std::size_t inverseCount = 0;  ///< of `inverses`

  /// Returns the attribute at a position of a statement, counted from 0. Returns null for a
  /// position that the description does not know.
  const AttributeDescription* AttributeAt(std::size_t position) const;

  /// Returns the attribute with a name, which can be an inherited one, or null if there is none.
  /// Names are compared without regard to case. If a class has two attributes with the name, the
  /// derived one is not returned.
  const AttributeDescription* FindAttribute(std::string_view attributeName) const;

  /// Returns the inverse attribute with a name, which can be an inherited one, or null if there is
  /// none. Names are compared without regard to case.
  const InverseAttribute* FindInverse(std::string_view inverseName) const;

  /// Returns true if this is `other` or derives from it. Classes of two releases are never related.
  bool IsKindOf(const EntityDescription& other) const;
};

/// Returns the class of a release with a name, which is compared without regard to case. Returns
/// null for a name that the release does not have and for IFC_RELEASE_NONE.
KELIFC_API const EntityDescription* FindEntity(IFC_RELEASE release, std::string_view name);

/// Returns the class of an instance in constant time. Returns null for raw text (IfcOther), and for
/// a class that the library does not define, such as a class that a host derives. For a class that
/// all releases share, returns the description for the release of the model of the instance, or for
/// 2x3 if there is no model.
KELIFC_API const EntityDescription* DescribeInstance(const IfcUnknown& instance);

/// A range of classes, for range-based for loops: `for (const EntityDescription* entity : range)`.
struct EntityRange {
  const EntityDescription* const* first = nullptr;  ///< null in an empty range
  std::size_t count = 0;                            ///< of classes

  /// Returns the place of the first class.
  const EntityDescription* const* begin() const { return first; }
  /// Returns the place after the last class.
  const EntityDescription* const* end() const { return first + count; }
  /// Returns the number of classes.
  std::size_t size() const { return count; }
};

/// Returns all classes of a release in alphabetical order, or an empty range for IFC_RELEASE_NONE.
KELIFC_API EntityRange AllEntities(IFC_RELEASE release);

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_ATTRIBUTE_TABLE_H_
