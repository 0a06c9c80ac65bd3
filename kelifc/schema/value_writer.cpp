#include "kelifc/schema/value_writer.h"

#include "kelifc/core/lists/value_lists.h"
#include "kelifc/core/unknown.h"
#include "kelifc/core/value_member.h"

namespace KelIFC {

bool ValueWriter::Set(MEMBER& reference, const char* text, IfcUnknown& holder) {
  MEMBER read(&holder);
  read.Parse(text);
  const bool isInline = *text != '$' && *text != '#';
  if (isInline && !read.GetExists()) ParseValueMember(holder.GetServer(), text, read);
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
