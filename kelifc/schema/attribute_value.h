#ifndef KELIFC_SCHEMA_ATTRIBUTE_VALUE_H_
#define KELIFC_SCHEMA_ATTRIBUTE_VALUE_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "kelifc/core/logical.h"
#include "kelifc/core/statement_view.h"
#include "kelifc/platform/export.h"
#include "kelifc/schema/attribute_table.h"

namespace KelIFC {

class IfcUnknown;

// The values of an instance by their positions in the statement, for programs that do not know the
// classes when they are compiled.
//
//   const InstanceView view(*instance);
//   for (std::size_t i = 0; i < view.Size(); ++i) {
//     const AttributeValue value = view[i];
//     if (value.GetKind() == AttributeValueKind::kText) std::cout << value.AsText() << '\n';
//   }

/// What a value is.
enum class AttributeValueKind : std::uint8_t {
  kUnset,        ///< no value, or a position that the class does not keep
  kDerived,      ///< the entity derives the value; a statement has `*`
  kReference,    ///< an instance
  kInteger,      ///< a whole number
  kReal,         ///< a floating-point number
  kText,         ///< a text
  kEnumeration,  ///< an enumerator; in raw text also `.T.`, `.F.` and `.U.`
  kBoolean,      ///< true or false
  kLogical,      ///< true, false or unknown
  kBinary,       ///< bits
  kList,         ///< a list or a set
  kTyped,        ///< a value with the name of its type, such as `IFCLABEL('text')`
};

/// One value of an instance, as the instance keeps it. Numbers are not rounded. If a save writes a
/// fixed text instead of the value, this is still the kept value. It is a view, which is valid
/// until the instance changes or is destroyed. An operation for another kind of value returns what
/// it documents.
class KELIFC_API AttributeValue {
 public:
  /// An unset value.
  AttributeValue() noexcept : integer(0) {}

  /// Returns what the value is. It decides which of the operations below apply.
  AttributeValueKind GetKind() const { return kind; }

  /// Returns the instance that a reference leads to: one of the model, which owns it, or the inline
  /// instance of the attribute. Returns null for a number that the model does not hold, and for
  /// another kind.
  IfcUnknown* AsReference() const;
  /// Returns the number of a reference. Returns 0 for an inline instance and for another kind.
  std::size_t AsReferenceNumber() const;

  /// Returns an integer or a real number, or 0 for another kind.
  double AsNumber() const;
  /// Returns an integer, or 0 for another kind. In raw text, a number out of range becomes the
  /// nearest bound.
  std::int64_t AsInteger() const;

  /// Returns true for a true boolean or logical value and for the enumerator `T`, otherwise false.
  bool AsBoolean() const;
  /// Returns a boolean or logical value, or the enumerators `T` and `F` as such. Returns unknown
  /// for everything else.
  LOGICAL_VALUE AsLogical() const;

  /// Returns a text, or binary bits as characters 0 and 1. Empty for another kind. In the dialect
  /// of ISO 10303-21 the text is UTF-8; otherwise each byte is one character.
  std::string_view AsText() const;
  /// Returns the name of an enumerator as a file writes it, without its dots: `T`, `F` or `U` for a
  /// boolean or logical value. Empty for another kind.
  std::string_view AsEnumerator() const;

  /// Returns the number of elements of a list, or 0 for another kind. Some classes do not record
  /// whether a list is set; such a list is unset while it is empty.
  std::size_t Size() const;
  /// Returns an element of a list in constant time, counted from 0. The order is that of the file;
  /// equal elements of a set are kept too. Returns an unset value for an index out of range and for
  /// another kind.
  AttributeValue At(std::size_t index) const;

  /// Returns the type of a typed value: as the C++ class spells it, or in raw text as the file
  /// does. Compare it without regard to case. Empty for another kind.
  std::string_view TypeName() const;
  /// Returns the value without its type. Returns an unset value for another kind.
  AttributeValue TypedValue() const;

 private:
  friend class ValueReader;

  /// The operations of a list of one C++ type.
  struct ListOperations {
    std::size_t (*size)(const void* list);
    AttributeValue (*at)(const void* list, std::size_t index, const IfcUnknown& holder);
  };
  /// The data that a value of raw text owns.
  struct Raw {
    StatementView parts;  // elements of a list, or what a typed value holds
    std::string text;
  };

  AttributeValueKind kind = AttributeValueKind::kUnset;
  union {
    std::int64_t integer;  // also the LOGICAL_VALUE of a boolean or logical value
    double real;
    std::size_t number;  // of a reference
  };
  std::string_view text = {};
  const void* object = nullptr;  // the MEMBER, the list, or the IfcUnknown of a typed value
  const ListOperations* operations = nullptr;
  const IfcUnknown* holder = nullptr;  // the instance, whose model resolves references
  std::shared_ptr<const Raw> raw;
};

/// The values of one instance. It is valid until the instance changes or is destroyed.
///
/// An instance of raw text (IfcOther) is parsed once, when the view is made. A class that the
/// library does not define, such as one that a host derives, has no values.
class KELIFC_API InstanceView {
 public:
  /// The values of `instance`, which must outlive the view. Linear in the length of raw text,
  /// otherwise constant time.
  explicit InstanceView(const IfcUnknown& instance);

  /// Returns the name of the entity: as the C++ class spells it, or for raw text as the file does.
  std::string_view EntityName() const;
  /// Returns what DescribeInstance does.
  const EntityDescription* Description() const { return description; }
  /// Returns the number of positions of the statement. A typed value has one position.
  std::size_t Size() const;
  /// Returns the value of a position, counted from 0, inherited ones included. It is unset for a
  /// position out of range and for one that the class does not keep. Constant time.
  AttributeValue operator[](std::size_t position) const;

 private:
  const IfcUnknown* instance;
  const EntityDescription* description;
  StatementView statement;  // of raw text
};

/// Returns one value of an instance, as InstanceView does. Raw text is parsed at each call.
KELIFC_API AttributeValue ReadAttribute(const IfcUnknown& instance, std::size_t position);

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_ATTRIBUTE_VALUE_H_
