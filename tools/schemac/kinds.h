#ifndef KELIFC_TOOLS_SCHEMAC_KINDS_H_
#define KELIFC_TOOLS_SCHEMAC_KINDS_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace schemac {

/// The kind of value that an attribute holds, or as which a position of a record is read.
enum class Kind : std::uint8_t {
  kString,
  kLabel,       ///< IfcLabel where the release has it, else STRING
  kIdentifier,  ///< IfcIdentifier where the release has it, else STRING
  kReal,
  kInteger,
  kBoolean,
  kLogical,
  kMeasure,     ///< IfcLengthMeasure, also for measures other than length
  kScientific,  ///< a REAL that is written with an exponent and never unset
  kCoordinates,
  kAngle,       ///< IfcCompoundPlaneAngleMeasure
  kFlags,       ///< two bits
  kIntegers,    ///< a list of whole numbers, as a defined type of its own
  kEnumText,    ///< an enumeration that is kept as its text
  kOpenEnum,    ///< the same under the name of the enumeration
  kLabels,      ///< a list of labels
  kReference,   ///< one reference
  kSet,         ///< a set of references
  kList,        ///< a list of references
  kEnum,        ///< an enumeration with a table
  kCoreEnum,    ///< an enumeration of the core, which the class reads and writes by hand
  kValue,       ///< an inline value with the name of its type
  kGlobalId64,  ///< the identifier of 22 characters: checked when it is read, made when missing
  kGlobalId85,  ///< the identifier of 20 characters: made when missing
  kInstance,    ///< an instance that is held by value: a cache
};

/// The form of a getter. The texts are templates (see text_template.h) with the words Name, member,
/// stored, target, view, result and const; `const` is "const " or empty.
struct GetterForm {
  std::string_view result;
  std::string_view doc;
  std::string_view body;
  bool isPointer = false;  ///< the result is a pointer or holds pointers, and has a writable form
  bool usesInner = false;  ///< a getter calls the writable form, where the class describes one
};

/// The form of a setter. The texts are templates with the words of GetterForm.
struct SetterForm {
  std::string_view parameter;
  std::string_view doc;
  std::string_view body;
};

/// The default forms: the value itself.
extern const GetterForm kPlainGetter;
extern const SetterForm kValueSetter;

/// A value in four texts. Each is a template with the words `n`, a number that differs from
/// position to position, `row`, the text of the last row of an enumeration, and `emptied`, what an
/// enumeration is written as while it is unset.
struct SampleTexts {
  std::string_view read;           ///< as a file has it
  std::string_view written = {};   ///< as it is written again; empty: as it was read
  std::string_view absent = "$";   ///< as a file has it while it is unset
  std::string_view emptied = "$";  ///< as the unset value is written
};

/// Everything that the generator knows about one kind.
struct KindInfo {
  Kind kind;
  std::string_view word;            ///< its name in the notation
  std::string_view published = {};  ///< its enumerator of AttributeKind; empty: in no statement
  std::string_view type = {};  ///< the C++ type that reads it; empty if `holdsNamedType` tells it
  std::string_view labelled = {};  ///< the type where the release has IfcLabel; empty: the same
  bool takesName = false;          ///< the notation names a class or an enumeration after it
  bool namesEnumeration = false;   ///< the name is that of an enumeration
  bool holdsNamedType = false;     ///< the attribute is stored as the type that the notation names
  bool isDroppable = true;         ///< a position can be read as it and dropped
  bool isInFile = true;            ///< an attribute of the kind stands in a record
  std::string_view reader = "@member@";  ///< the part of ParseRecord
  std::string_view writer = "@member@";  ///< the part of WriteFirst and WriteNext
  std::string_view valueReader = "ReadMember<@class@, @pointer@>";  ///< its AttributeReader
  std::string_view initializer = "@text@";  ///< what follows the name of the data member
  std::string_view bare = {};               ///< what a defined type is made from; empty: none
  std::string_view view = {};               ///< the aggregate that a getter returns
  std::string_view target = {};             ///< the class that references lead to, if it is fixed
  const GetterForm* getter = &kPlainGetter;
  const SetterForm* setter = &kValueSetter;
  SampleTexts sample = {};
};

/// Returns the row of a kind.
const KindInfo& InfoOf(Kind kind);

/// Returns the row of a word of the notation. Returns null for a word that is not a kind.
const KindInfo* FindKind(std::string_view word);

/// Returns the C++ type that reads a value of a kind in a release. Returns an empty text for a kind
/// that needs a class.
std::string_view ValueType(const KindInfo& info, std::size_t release);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_KINDS_H_
