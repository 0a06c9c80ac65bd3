#include "kelifc/schema/value_writer.h"

#include "kelifc/core/lists/value_lists.h"
#include "kelifc/core/unknown.h"
#include "kelifc/core/value_member.h"

namespace KelIFC {

bool ValueWriter::Set(MEMBER& reference, const char* text, IfcUnknown& holder) {
  MEMBER read(&holder);
  const bool isInline = *text != '$' && *text != '#';
  if (isInline) ParseValueMember(holder.GetServer(), text, read);
  if (!read.GetExists()) read.Parse(text);  // a reference, or an inline instance of an entity
  if (isInline && !read.GetExists()) return false;
  reference = read;
  return true;
}

bool ValueWriter::Set(LIST<STRING>& texts, const char* text, IfcUnknown& /*holder*/) {
  ParseTexts(texts, text);
  return true;
}

bool ValueWriter::Set(LIST<INTEGER>& numbers, const char* text, IfcUnknown& /*holder*/) {
  ParseIntegers(numbers, text);
  return true;
}

}  // namespace KelIFC
