#include "kelifc/schema/record.h"

#include <charconv>

#include "kelifc/core/global_id.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/replaced_ids.h"

namespace KelIFC {

const char* GlobalId64Reader::Parse(const char* cursor) const {
  cursor = text.Parse(cursor);
  if (!IsGlobalId64(text.GetChars())) text = STRING(IdReplacement::Make());
  return cursor;
}

void GlobalId64Writer::Write(std::ostream& out) const {
  if (text.GetText().empty()) {
    STRING(IfcServer::CreateGlobalId2x()).Write(out);
  } else {
    text.Write(out);
  }
}

void GlobalId85::Write(std::ostream& out) const {
  if (text.GetText().empty()) {
    STRING(IfcServer::CreateGlobalId()).Write(out);
  } else {
    text.Write(out);
  }
}

void EnumeratedText::Write(std::ostream& out) const {
  if (!value.GetExists()) {
    detail::PutChar(out, '$');
    return;
  }
  detail::PutChar(out, '.');
  detail::PutText(out, value);
  detail::PutChar(out, '.');
}

void Scientific::Write(std::ostream& out) const {
  char text[32];
  const double number = value;
  const auto end =
      std::to_chars(text, text + sizeof text, number, std::chars_format::scientific, 1);
  for (char* c = text; c != end.ptr; ++c) *c = ascii::ToUpperCase(*c);
  detail::PutText(out, std::string_view(text, static_cast<std::size_t>(end.ptr - text)));
}

}  // namespace KelIFC
