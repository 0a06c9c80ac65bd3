#include "tools/schemac/kinds.h"

#include <algorithm>
#include <array>

#include "tools/schemac/release_set.h"

namespace schemac {

constexpr GetterForm kPlainGetter = {"@stored@", "Returns @Name@; the result can be unset.",
                                     "return @member@;"};
constexpr SetterForm kValueSetter = {"@stored@ value", "Sets @Name@.", "@member@ = value;"};

namespace {

constexpr GetterForm kEnumGetter = {"@stored@", "Returns @Name@.", "return @member@;"};
constexpr GetterForm kPointerGetter = {
    .result = "@const@@target@*",
    .doc =
        "Returns @Name@. Returns null if it is unset or does not lead to an instance of @target@.",
    .body = "return InstanceOf<@target@>(@member@);",
    .isPointer = true,
    .usesInner = true};
constexpr GetterForm kViewGetter = {
    .result = "@view@<@const@@target@*>",
    .doc =
        "Returns the instances of @Name@, one for each member. A member that does not lead to an "
        "instance of @target@ is null.",
    .body = "return ViewOf<@result@>(@member@, *this);",
    .isPointer = true};

constexpr SetterForm kTextSetter = {"const char* text", "Sets @Name@; null makes it unset.",
                                    "@member@ = text;"};
constexpr SetterForm kBooleanSetter = {"bool value", "Sets @Name@.", "@member@ = BOOLEAN(value);"};
/// For values that own memory. They are passed by reference because a copy allocates.
constexpr SetterForm kLargeSetter = {"const @stored@& value", "Sets @Name@.", "@member@ = value;"};
constexpr SetterForm kReferenceSetter = {
    "@const@@target@* item",
    "Sets @Name@ to an instance of the model. Null, or an instance that the model does not hold, "
    "makes it unset. An inline value that was read from a file stays: a save writes the new "
    "reference, but "
    "the getter still returns the inline value.",
    "@member@.SetReference(UnknownOf(item));"};
constexpr SetterForm kInlineSetter = {
    "@target@* item",
    "Sets @Name@ to an inline value. A value that is registered in a model still belongs to the "
    "model; any other value belongs to this instance. The value that was set before belongs to the "
    "caller "
    "again.",
    "@member@ = item;"};
constexpr SetterForm kAggregateSetter = {
    "const @view@<@target@*>& items",
    "Replaces @Name@. Instances that the model does not hold are left out.",
    "ReplaceMembers(@member@, items, *this);"};

constexpr std::string_view kEnumerated = "Enumerated(@member@, @table@@missing@)";
constexpr std::string_view kEnumerationReader = "ReadEnumeration<@class@, @pointer@, @table@>";
constexpr std::string_view kEnumerationWriter =
    "WriteEnumeration<@class@, @pointer@, @table@, @start@>";
constexpr std::string_view kOwnedMember = "{this}";
constexpr std::string_view kTextField = "TextAttribute";

constexpr SampleTexts kTextSample = {"'text @n@'"};
constexpr SampleTexts kNumberSample = {"@n@.5"};
constexpr SampleTexts kEnumTextSample = {".SAMPLE."};
constexpr SampleTexts kId64Sample = {"'0123456789ABCDEFGHIJ_$'", "", "'0123456789ABCDEFGHIJ_$'",
                                     "'0123456789ABCDEFGHIJ_$'"};
constexpr SampleTexts kId85Sample = {"'0123456789ABCDEFGHIJ'", "", "'0123456789ABCDEFGHIJ'",
                                     "'0123456789ABCDEFGHIJ'"};

constexpr std::array kKinds = {
    KindInfo{.kind = Kind::kString,
             .word = "string",
             .published = "kText",
             .type = "STRING",
             .field = kTextField,
             .bare = "const std::string& text",
             .setter = &kTextSetter,
             .sample = kTextSample},
    KindInfo{.kind = Kind::kLabel,
             .word = "label",
             .published = "kText",
             .type = "STRING",
             .labelled = "IfcLabel",
             .field = kTextField,
             .setter = &kTextSetter,
             .sample = kTextSample},
    KindInfo{.kind = Kind::kIdentifier,
             .word = "identifier",
             .published = "kText",
             .type = "STRING",
             .labelled = "IfcIdentifier",
             .field = kTextField,
             .setter = &kTextSetter,
             .sample = kTextSample},
    KindInfo{.kind = Kind::kReal,
             .word = "real",
             .published = "kReal",
             .type = "REAL",
             .bare = "double value",
             .sample = kNumberSample},
    KindInfo{.kind = Kind::kInteger,
             .word = "integer",
             .published = "kInteger",
             .type = "INTEGER",
             .bare = "int value",
             .sample = {"@n@"}},
    KindInfo{.kind = Kind::kBoolean,
             .word = "boolean",
             .published = "kBoolean",
             .type = "BOOLEAN",
             .bare = "bool value",
             .setter = &kBooleanSetter,
             .sample = {".T."}},
    KindInfo{.kind = Kind::kLogical,
             .word = "logical",
             .published = "kLogical",
             .type = "LOGICAL",
             .sample = {".U."}},
    KindInfo{.kind = Kind::kMeasure,
             .word = "measure",
             .published = "kReal",
             .type = "IfcLengthMeasure",
             .sample = kNumberSample},
    KindInfo{.kind = Kind::kScientific,
             .word = "scientific",
             .published = "kReal",
             .type = "REAL",
             .writer = "Scientific(@member@)",
             .sample = {"0.0012", "1.2E-03", "$", "0.0E+00"}},
    KindInfo{.kind = Kind::kCoordinates,
             .word = "coordinates",
             .published = "kRealList",
             .type = "COORDINATES",
             .setter = &kLargeSetter,
             .sample = {"(1.,2.5)", "", "$", "()"}},
    KindInfo{.kind = Kind::kAngle,
             .word = "angle",
             .published = "kIntegerList",
             .type = "IfcCompoundPlaneAngleMeasure",
             .setter = &kLargeSetter,
             .sample = {"(49,6,-12)", "(49, 6, -12)"}},
    KindInfo{.kind = Kind::kFlags,
             .word = "flags",
             .published = "kBinary",
             .type = "BINARY<2>",
             .sample = {R"(\"10\")"}},
    KindInfo{.kind = Kind::kIntegers,
             .word = "integers",
             .published = "kIntegerList",
             .type = "LIST<INTEGER>",
             .sample = {"$"}},
    KindInfo{.kind = Kind::kEnumText,
             .word = "enumtext",
             .published = "kEnumeration",
             .type = "ENUM",
             .writer = "EnumeratedText(@member@)",
             .setter = &kLargeSetter,
             .sample = kEnumTextSample},
    KindInfo{.kind = Kind::kOpenEnum,
             .word = "openenum",
             .published = "kEnumeration",
             .type = "ENUM",
             .takesName = true,
             .namesEnumeration = true,
             .holdsNamedType = true,
             .writer = "EnumeratedText(@member@)",
             .setter = &kLargeSetter,
             .sample = kEnumTextSample},
    KindInfo{.kind = Kind::kLabels,
             .word = "labels",
             .published = "kTextList",
             .type = "LIST<STRING>",
             .labelled = "LIST<IfcLabel>",
             .isDroppable = false,
             .reader = "Texts(@member@)",
             .setter = &kLargeSetter,
             .sample = {"('a,b','c)')", "('a,b', 'c)')"}},
    KindInfo{.kind = Kind::kReference,
             .word = "ref",
             .published = "kReference",
             .type = "MEMBER",
             .takesName = true,
             .initializer = kOwnedMember,
             .getter = &kPointerGetter,
             .setter = &kReferenceSetter,
             .sample = {"#90@n@"}},
    KindInfo{.kind = Kind::kSet,
             .word = "set",
             .published = "kReferenceSet",
             .type = "SET_OF_MEMBERS",
             .takesName = true,
             .initializer = kOwnedMember,
             .view = "SET",
             .getter = &kViewGetter,
             .setter = &kAggregateSetter,
             .sample = {"(#90@n@,#91@n@)", "(#90@n@, #91@n@)", "$", "()"}},
    KindInfo{.kind = Kind::kList,
             .word = "list",
             .published = "kReferenceList",
             .type = "LIST_OF_MEMBERS",
             .takesName = true,
             .initializer = kOwnedMember,
             .view = "LIST",
             .getter = &kViewGetter,
             .setter = &kAggregateSetter,
             .sample = {"(#90@n@,#91@n@)", "(#90@n@, #91@n@)"}},
    KindInfo{.kind = Kind::kEnum,
             .word = "enum",
             .published = "kEnumeration",
             .type = "ENUM",
             .takesName = true,
             .namesEnumeration = true,
             .holdsNamedType = true,
             .reader = kEnumerated,
             .writer = kEnumerated,
             .valueReader = kEnumerationReader,
             .valueWriter = kEnumerationWriter,
             .initializer = " = @start@",
             .getter = &kEnumGetter,
             .sample = {".@row@.", "", "$", "@emptied@"}},
    KindInfo{.kind = Kind::kCoreEnum,
             .word = "coreenum",
             .published = "kEnumeration",
             .takesName = true,
             .holdsNamedType = true,
             .isDroppable = false,
             .valueReader = kEnumerationReader,
             .valueWriter = "WriteEnumeration<@class@, @pointer@, @table@>",
             .initializer = "{}",
             .sample = {"$"}},
    KindInfo{.kind = Kind::kValue,
             .word = "value",
             .published = "kTypedValue",
             .type = "MEMBER",
             .isDroppable = false,
             .reader = "ValueInPlace(@member@, *this)",
             .writer = "ValueInPlace(@member@, *this)",
             .initializer = kOwnedMember,
             .target = "IfcValue",
             .getter = &kPointerGetter,
             .setter = &kInlineSetter,
             .sample = {"IFCLENGTHMEASURE(@n@.5)"}},
    KindInfo{.kind = Kind::kGlobalId64,
             .word = "guid64",
             .published = "kText",
             .type = "STRING",
             .field = kTextField,
             .isDroppable = false,
             .reader = "GlobalId64(@member@)",
             .writer = "GlobalId64(@member@)",
             .setter = &kTextSetter,
             .sample = kId64Sample},
    KindInfo{.kind = Kind::kGlobalId85,
             .word = "guid85",
             .published = "kText",
             .type = "STRING",
             .field = kTextField,
             .isDroppable = false,
             .writer = "GlobalId85(@member@)",
             .setter = &kTextSetter,
             .sample = kId85Sample},
    KindInfo{.kind = Kind::kInstance,
             .word = "cache",
             .takesName = true,
             .holdsNamedType = true,
             .isDroppable = false,
             .isInFile = false,
             .initializer = "{}",
             .sample = {"$"}},
};

/// InfoOf uses the kind as the index of its row.
constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    if (static_cast<std::size_t>(kKinds[i].kind) != i) return false;
  }
  return true;
}
static_assert(IsInOrder());

}  // namespace

const KindInfo& InfoOf(Kind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

const KindInfo* FindKind(std::string_view word) {
  const auto* const row = std::find_if(kKinds.begin(), kKinds.end(),
                                       [&](const KindInfo& info) { return info.word == word; });
  return row == kKinds.end() ? nullptr : row;
}

std::string_view ValueType(const KindInfo& info, std::size_t release) {
  const bool isLabelled = release >= kFirstWithLabels && !info.labelled.empty();
  return isLabelled ? info.labelled : info.type;
}

}  // namespace schemac
