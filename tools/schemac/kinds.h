#ifndef KELIFC_TOOLS_SCHEMAC_KINDS_H_
#define KELIFC_TOOLS_SCHEMAC_KINDS_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace schemac {

/// The kind of value that an attribute holds, or as which a position of a record is read.
enum class Kind : std::uint8_t {
  kString,
  kLabel,       ///< IfcLabel if the release has it, otherwise STRING
  kIdentifier,  ///< IfcIdentifier if the release has it, otherwise STRING
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
  kOpenEnum,    ///< the same, with the name of the enumeration as its type
  kLabels,      ///< a list of labels
  kReference,   ///< one reference
  kSet,         ///< a set of references
  kList,        ///< a list of references
  kEnum,        ///< an enumeration with a table
  kCoreEnum,    ///< an enumeration of the core, which the class reads and writes by hand
  kValue,       ///< an inline value with the name of its type
  kGlobalId64,  ///< the identifier of 22 characters; a load replaces an invalid one
  kGlobalId85,  ///< the identifier of 20 characters; a save replaces an empty one
  kInstance,    ///< an instance that belongs to this one: a cache
};

/// The form of a getter. The texts are templates (see text_template.h) with the words Name, member,
/// stored, target, view, result and const; `const` is "const " or empty.
struct GetterForm {
  std::string_view result;
  std::string_view doc;
  std::string_view body;
  bool isPointer = false;  ///< the result is a pointer or holds pointers, and has a writable form
  bool usesInner = false;  ///< the getter calls the writable form, if the class has one
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

/// The four texts of a sample value. Each text is a template. The word `n` is a number that differs
/// between positions. `row` is the text of the last row of an enumeration. `emptied` is the text
/// that a save writes for an unset enumeration.
struct SampleTexts {
  std::string_view read;           ///< as a file has it
  std::string_view written = {};   ///< as a save writes it; empty: as `read`
  std::string_view absent = "$";   ///< as a file has it if it is unset
  std::string_view emptied = "$";  ///< as a save writes the unset value
};

/// Everything that the generator knows about one kind.
struct KindInfo {
  Kind kind;
  std::string_view word;            ///< its name in the notation
  std::string_view published = {};  ///< its enumerator of AttributeKind; empty: in no statement
  std::string_view type = {};  ///< the C++ type that reads it; empty if `holdsNamedType` is true
  std::string_view labelled = {};  ///< the type if the release has IfcLabel; empty: the same
  std::string_view field = {};     ///< the type of the data member; empty: the same
  bool takesName = false;          ///< the notation names a class or an enumeration after it
  bool namesEnumeration = false;   ///< the name is that of an enumeration
  bool holdsNamedType = false;     ///< the attribute is stored as the type that the notation names
  bool isDroppable = true;         ///< a position can be read as it and dropped
  bool isInFile = true;            ///< an attribute of the kind is in a record
  std::string_view reader = "@member@";  ///< the part of ParseRecord
  std::string_view writer = "@member@";  ///< the part of WriteFirst and WriteNext
  std::string_view valueReader = "ReadMember<@class@, @pointer@>";   ///< its AttributeReader
  std::string_view valueWriter = "WriteMember<@class@, @pointer@>";  ///< its AttributeWriter
  std::string_view initializer = "@text@";  ///< the text after the name of the data member
  std::string_view bare = {};               ///< the parameter of a defined type; empty: none
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
