#ifndef KELIFC_SCHEMA_RECORD_H_
#define KELIFC_SCHEMA_RECORD_H_

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/enum.h"
#include "kelifc/core/enum_text.h"
#include "kelifc/core/lists/value_lists.h"
#include "kelifc/core/member.h"
#include "kelifc/core/real.h"
#include "kelifc/core/string.h"
#include "kelifc/core/text_attribute.h"
#include "kelifc/core/unknown.h"
#include "kelifc/core/value_member.h"

// The record of an entity is read and written as a sequence of parts. A part is an attribute, or
// one of the classes below if the position is not simply an attribute.

namespace KelIFC {

/// Reads the parts in order and returns the cursor after the last part.
template <class... Parts>
const char* ParseRecord(const char* cursor, Parts&&... parts) {
  ((cursor = parts.Parse(cursor)), ...);
  return cursor;
}

/// Writes a comma and the part for each part. This is for a class whose base writes attributes
/// before it.
template <class... Parts>
std::ostream& WriteNext(std::ostream& out, const Parts&... parts) {
  ((detail::PutChar(out, ','), parts.Write(out)), ...);
  return out;
}

/// Writes the parts with commas between them. This is for the first attributes of a record.
template <class... Parts>
std::ostream& WriteFirst(std::ostream& out) {
  return out;
}
template <class First, class... Parts>
std::ostream& WriteFirst(std::ostream& out, const First& first, const Parts&... parts) {
  first.Write(out);
  return WriteNext(out, parts...);
}

/// A position that is read as a `Value` and not kept.
template <class Value>
struct Dropped {
  const char* Parse(const char* cursor) const { return Value().Parse(cursor); }
};

/// A position that is written as a fixed text.
struct Literal {
  explicit constexpr Literal(std::string_view text) : text(text) {}
  void Write(std::ostream& out) const { detail::PutText(out, text); }
  std::string_view text;
};

/// The position of an attribute that a subtype redeclares as derived. A `*` is skipped. Any other
/// text is left for the next part.
struct Redeclared {
  explicit Redeclared(IfcUnknown& owner) : owner(owner) {}
  const char* Parse(const char* cursor) const { return owner.ParseDef(cursor); }
  IfcUnknown& owner;
};

/// An enumeration with its table. A text that is not in the table reads as `missing`.
template <class Enum, std::size_t N>
struct EnumeratedPart {
  const char* Parse(const char* cursor) const {
    return ParseEnumValue(value, cursor, missing, table);
  }
  void Write(std::ostream& out) const { WriteEnumValue(out, value, table); }
  Enum& value;
  const EnumTextRow (&table)[N];
  Enum missing;
};
template <class Enum, std::size_t N>
EnumeratedPart<Enum, N> Enumerated(Enum& value, const EnumTextRow (&table)[N],
                                   Enum missing = Enum()) {
  return {value, table, missing};
}
template <class Enum, std::size_t N>
EnumeratedPart<const Enum, N> Enumerated(const Enum& value, const EnumTextRow (&table)[N],
                                         Enum missing = Enum()) {
  return {value, table, missing};
}

/// An enumeration that is kept as its text. It is written as `$` if it is unset.
struct EnumeratedText {
  explicit EnumeratedText(const ENUM& value) : value(value) {}
  void Write(std::ostream& out) const;
  const ENUM& value;
};

/// A list of texts.
struct TextsReader {
  const char* Parse(const char* cursor) const { return ParseTexts(texts, cursor); }
  LIST<STRING>& texts;
};
inline TextsReader Texts(LIST<STRING>& texts) { return {texts}; }

/// An inline value. It is written with the name of its type, or as `$` if it is unset.
struct ValueInPlaceReader {
  const char* Parse(const char* cursor) const {
    return ParseValueMember(owner.GetServer(), cursor, member);
  }
  MEMBER& member;
  IfcUnknown& owner;
};
struct ValueInPlaceWriter {
  void Write(std::ostream& out) const { WriteValueMember(out, member); }
  const MEMBER& member;
};
inline ValueInPlaceReader ValueInPlace(MEMBER& member, IfcUnknown& owner) {
  return {member, owner};
}
inline ValueInPlaceWriter ValueInPlace(const MEMBER& member, const IfcUnknown&) { return {member}; }

/// The identifier of 22 characters. A load replaces an identifier that cannot be decoded. A save
/// writes a new identifier, which is not kept, if the text is empty.
struct GlobalId64Reader {
  const char* Parse(const char* cursor) const;
  TextAttribute& text;
};
struct GlobalId64Writer {
  void Write(std::ostream& out) const;
  const TextAttribute& text;
};
inline GlobalId64Reader GlobalId64(TextAttribute& text) { return {text}; }
inline GlobalId64Writer GlobalId64(const TextAttribute& text) { return {text}; }

/// The identifier of 20 characters. A save writes a new identifier, which is not kept, if the text
/// is empty.
struct GlobalId85 {
  explicit GlobalId85(const TextAttribute& text) : text(text) {}
  void Write(std::ostream& out) const;
  const TextAttribute& text;
};

/// A number with one digit after the point and an upper-case exponent. It is never unset.
struct Scientific {
  explicit Scientific(const REAL& value) : value(value) {}
  void Write(std::ostream& out) const;
  const REAL& value;
};

/// Writes a defined type with the name of its type around the value.
template <class Value, class Type>
std::ostream& WriteNamedValue(const Type& type, std::ostream& out) {
  type.IfcUnknown::Write(out);
  type.Value::Write(out);
  detail::PutChar(out, ')');
  return out;
}

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_RECORD_H_
