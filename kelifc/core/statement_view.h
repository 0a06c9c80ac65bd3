#ifndef KELIFC_CORE_STATEMENT_VIEW_H_
#define KELIFC_CORE_STATEMENT_VIEW_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// What stands at a position of a statement.
enum ATTRIBUTE_KIND : std::int32_t {
  ATTRIBUTE_NONE = 0,         ///< nothing, or text that is no value
  ATTRIBUTE_UNSET = 1,        ///< `$`
  ATTRIBUTE_DERIVED = 2,      ///< `*`
  ATTRIBUTE_REFERENCE = 3,    ///< `#12`
  ATTRIBUTE_INTEGER = 4,      ///< `7`
  ATTRIBUTE_REAL = 5,         ///< `1.5`, `2.E-3`
  ATTRIBUTE_TEXT = 6,         ///< `'text'`
  ATTRIBUTE_ENUMERATION = 7,  ///< `.ELEMENT.`, `.T.`
  ATTRIBUTE_BINARY = 8,       ///< bits between double quotes
  ATTRIBUTE_LIST = 9,         ///< `(1,2)`
  ATTRIBUTE_TYPED = 10,       ///< a value with the name of its type, `IFCLABEL('text')`
};

/// The attributes of a statement by their positions, for entities that have no class. It is made in
/// one pass over the text, and holds a copy of it.
///
/// Positions count from 1. A position that is not there, and one of another kind, give what each
/// operation names. Between two commas without a value is a position of the kind ATTRIBUTE_NONE. A
/// value that follows another one without a comma is left out. Only typed values may follow each
/// other: they are the parts of an instance of several types.
class KELIFC_API StatementView {
 public:
  /// A view without attributes.
  StatementView() = default;

  /// The attributes in a text, which is what stands between the outer parentheses of a statement,
  /// in the notation that instances write.
  explicit StatementView(std::string_view attributes);

  /// Returns the number of positions.
  std::size_t GetCount() const { return count; }

  /// Returns what is at a position; ATTRIBUTE_NONE for a position out of range.
  ATTRIBUTE_KIND GetKind(std::size_t position) const;

  /// The number of a reference; 0 for any other kind.
  std::size_t GetReference(std::size_t position) const;

  /// The value of an integer or a real number; 0 for any other kind.
  double GetNumber(std::size_t position) const;

  /// The decoded text, the name of an enumerator without its dots, or the bits of a binary value as
  /// characters 0 and 1; empty for any other kind. If the model is in the dialect of ISO 10303-21,
  /// the text is UTF-8.
  std::string GetText(std::size_t position) const;

  /// The elements of a list, or what stands between the parentheses of a typed value; without
  /// elements for any other kind. Constant time.
  StatementView GetList(std::size_t position) const;

  /// The name of the type of a typed value; empty for any other kind. It is valid as long as a view
  /// of the statement is there.
  std::string_view GetTypeName(std::size_t position) const;

  /// The text of an attribute as it stands in the statement. It is valid as long as a view of the
  /// statement is there.
  std::string_view GetSource(std::size_t position) const;

 private:
  struct Attribute;
  struct Statement;
  class Reader;

  const Attribute* Find(std::size_t position) const;
  const Attribute* Find(std::size_t position, ATTRIBUTE_KIND kind) const;

  std::shared_ptr<const Statement> statement;  // null if there are no attributes
  std::size_t first = 0;                       // in the attributes of the statement
  std::size_t count = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_STATEMENT_VIEW_H_
