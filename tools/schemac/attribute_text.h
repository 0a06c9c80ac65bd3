#ifndef KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_TEXT_H_
#define KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_TEXT_H_

#include <string>

#include "tools/schemac/release_model.h"
#include "tools/schemac/text_template.h"

namespace schemac {

// The C++ text of one attribute.

/// The name of the data member of an attribute.
std::string MemberName(const std::string& attribute);

/// The C++ type that stores an attribute.
std::string StoredType(const Attribute& attribute, std::size_t release);

/// The name of the row table of an enumeration.
std::string TableName(const std::string& enumeration);

/// The enumerator of a row; an empty row is the value 0 that no row has.
std::string Enumerator(const std::string& enumeration, const std::string& row);

/// The words that the templates of a kind use, for one attribute: those of GetterForm but `result`
/// and `const`, and for an initializer or a part of a record `text`, `table`, `missing` and
/// `start`.
TemplateWords WordsOf(const ReleaseModel& model, const Attribute& attribute);

/// What follows the name of the data member in its declaration.
std::string FieldInitializer(const ReleaseModel& model, const Attribute& attribute);

/// The part of ParseRecord that reads an attribute.
std::string ReadPart(const ReleaseModel& model, const Attribute& attribute);

/// The part of WriteFirst or WriteNext that writes an attribute.
std::string WritePart(const ReleaseModel& model, const Attribute& attribute);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_TEXT_H_
