#ifndef KELIFC_SCHEMA_VALUE_READER_H_
#define KELIFC_SCHEMA_VALUE_READER_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/binary.h"
#include "kelifc/core/boolean.h"
#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/coordinates.h"
#include "kelifc/core/enum.h"
#include "kelifc/core/enum_text.h"
#include "kelifc/core/integer.h"
#include "kelifc/core/logical.h"
#include "kelifc/core/member.h"
#include "kelifc/core/real.h"
#include "kelifc/core/string.h"
#include "kelifc/core/text_attribute.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/schema/attribute_value.h"

// Functions that make an AttributeValue from the attributes of each class.

namespace KelIFC {

/// Makes the view of a value that an instance keeps. `holder` is the instance.
class ValueReader {
 public:
  static AttributeValue Of(const STRING& text, const IfcUnknown& holder);
  static AttributeValue Of(const TextAttribute& text, const IfcUnknown& holder);
  static AttributeValue Of(const ENUM& enumerator, const IfcUnknown& holder);
  static AttributeValue Of(const REAL& number, const IfcUnknown& holder);
  static AttributeValue Of(const INTEGER& number, const IfcUnknown& holder);
  static AttributeValue Of(const BOOLEAN& truth, const IfcUnknown& holder);
  static AttributeValue Of(const LOGICAL& truth, const IfcUnknown& holder);
  static AttributeValue Of(const BINARY<2>& bits, const IfcUnknown& holder);
  static AttributeValue Of(const COORDINATES& numbers, const IfcUnknown& holder);
  static AttributeValue Of(const MEMBER& reference, const IfcUnknown& holder);

  template <class T>
  static AttributeValue Of(const LIST<T>& list, const IfcUnknown& holder) {
    return list.GetExists() ? OfList(&list, kOperations<LIST<T>>, holder) : AttributeValue();
  }
  /// A load does not mark a set as existing, so a set that is not empty counts as set.
  template <class T>
  static AttributeValue Of(const SET<T>& set, const IfcUnknown& holder) {
    const bool isSet = set.GetExists() || !set.GetEmpty();
    return isSet ? OfList(&set, kOperations<SET<T>>, holder) : AttributeValue();
  }

  /// Returns an enumerator of an enumeration with a table. A value that is not in the table is
  /// unset.
  static AttributeValue OfEnumeration(std::int32_t value, const EnumTextRow* table,
                                      std::size_t rowCount);

  /// Returns a value of raw text. `position` counts from 1.
  static AttributeValue OfText(const StatementView& statement, std::size_t position,
                               const IfcUnknown& holder);

  static AttributeValue Derived();

 private:
  static AttributeValue OfList(const void* list,
                               const AttributeValue::ListOperations& listOperations,
                               const IfcUnknown& holder);
  static AttributeValue OfCharacters(std::string_view text, bool exists);
  static AttributeValue OfTruth(AttributeValueKind kind, LOGICAL_VALUE truth);
  /// `value` is the reference that leads to the instance.
  static AttributeValue OfInlineInstance(const IfcUnknown& instance, AttributeValue value);
  /// The caller has set the holder of `value`.
  static AttributeValue OfRaw(AttributeValueKind kind, const StatementView& statement,
                              std::size_t position, AttributeValue value);

  template <class List>
  static std::size_t SizeOf(const void* list) {
    return static_cast<const List*>(list)->GetSize();
  }
  template <class List>
  static AttributeValue ElementOf(const void* list, std::size_t index, const IfcUnknown& holder) {
    return Of(static_cast<const List*>(list)->GetItem(index + 1), holder);
  }
  template <class List>
  static constexpr AttributeValue::ListOperations kOperations = {SizeOf<List>, ElementOf<List>};
};

/// Reads a member of an instance, which must be of the class `Class`.
template <class Class, auto Member>
AttributeValue ReadMember(const IfcUnknown& instance) {
  return ValueReader::Of(static_cast<const Class&>(instance).*Member, instance);
}

/// Reads a member of `Class` that is an enumeration with a table.
template <class Class, auto Member, const auto& Table>
AttributeValue ReadEnumeration(const IfcUnknown& instance) {
  const auto value = static_cast<const Class&>(instance).*Member;
  return ValueReader::OfEnumeration(static_cast<std::int32_t>(value), Table,
                                    sizeof Table / sizeof Table[0]);
}

/// Reads a value type, which derives from the class of its value.
template <class Class, class Value>
AttributeValue ReadValueType(const IfcUnknown& instance) {
  return ValueReader::Of(static_cast<const Value&>(static_cast<const Class&>(instance)), instance);
}

/// Pointers to the attributes of a class. The attributes are protected, so `Kept` derives from the
/// class. `Kept` has no objects.
template <class Class>
struct Kept;

template <>
struct Kept<IfcCartesianPoint> : IfcCartesianPoint {
  static constexpr auto kCoordinates = &Kept::coordinates;
};

template <>
struct Kept<IfcBoundingBox> : IfcBoundingBox {
  static constexpr auto kCorner = &Kept::corner;
  static constexpr auto kXDim = &Kept::xDim;
  static constexpr auto kYDim = &Kept::yDim;
  static constexpr auto kZDim = &Kept::zDim;
};

template <>
struct Kept<IfcUnitAssignment> : IfcUnitAssignment {
  static constexpr auto kUnits = &Kept::units;
};

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_VALUE_READER_H_
