#ifndef KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_TEXT_H_
#define KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_TEXT_H_

#include <string>

#include "tools/schemac/release_model.h"
#include "tools/schemac/text_template.h"

namespace schemac {

// The C++ text of one attribute.

/// The name of the data member of an attribute.
std::string MemberName(const std::string& attribute);

/// The C++ type of the value of an attribute.
std::string StoredType(const Attribute& attribute, std::size_t release);

/// The name of the table of an enumeration.
std::string TableName(const std::string& enumeration);

/// The enumerator of a row. An empty row means the value 0 of an enumeration without a row for 0.
std::string Enumerator(const std::string& enumeration, const std::string& row);

/// The words that the templates of a kind use for one attribute. These are the words of GetterForm
/// except `result` and `const`. The words `text`, `table`, `missing` and `start` are for
/// initializers and parts of a record.
TemplateWords WordsOf(const ReleaseModel& model, const Attribute& attribute);

/// The C++ type of the data member of an attribute. It can be smaller than the type of the value.
std::string FieldType(const ReleaseModel& model, const ResolvedClass& type,
                      const Attribute& attribute);

/// The initializer that follows the name of the data member in its declaration.
std::string FieldInitializer(const ReleaseModel& model, const Attribute& attribute);

/// The part of ParseRecord that reads an attribute.
std::string ReadPart(const ReleaseModel& model, const Attribute& attribute);

/// The part of WriteFirst or WriteNext that writes an attribute.
std::string WritePart(const ReleaseModel& model, const Attribute& attribute);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_TEXT_H_
