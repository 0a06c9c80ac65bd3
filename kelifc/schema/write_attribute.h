#ifndef KELIFC_SCHEMA_WRITE_ATTRIBUTE_H_
#define KELIFC_SCHEMA_WRITE_ATTRIBUTE_H_

#include <cstddef>
#include <string_view>

#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcUnknown;

/// Sets the value at a position of a statement, counted from 0, for programs that do not know the
/// classes when they are compiled. `text` is what a statement has at this position, in the notation
/// of the classic dialect: `'text'`, `1.5`, `.ELEMENT.`, `#12`, `(1.,2.)`, `IFCLABEL('text')`, or
/// `$` for no value. In a model in the dialect of ISO 10303-21, strings in it are UTF-8.
///
/// Returns true if the instance has the value. Returns false and changes nothing if
///  - the position is out of range, or the class does not keep the value;
///  - the text is not one complete value, or not of the kind of the attribute;
///  - an enumeration does not have the enumerator, or the release does not have the type of a typed
///    value.
/// A number can be written with an integer. References may lead to instances that do not exist.
/// Attributes of other instances that a load derives from this value do not change. Linear in the
/// length of the text, and of raw text (IfcOther) in the length of the statement.
KELIFC_API bool WriteAttribute(IfcUnknown& instance, std::size_t position, std::string_view text);

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_WRITE_ATTRIBUTE_H_
