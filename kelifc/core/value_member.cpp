#include "kelifc/core/value_member.h"

#include <memory>

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/references/cast_cache.h"
#include "kelifc/core/references/model.h"
#include "kelifc/core/value.h"

namespace KelIFC {

const char* ParseValueMember(IfcServer* server, const char* text, MEMBER& target) {
  target.Parse(nullptr);
  if (text == nullptr) return nullptr;
  const char* behindName = nullptr;
  std::unique_ptr<IfcUnknown> made(ParseInstance(server, text, &behindName));
  thread_local CastCache<IfcValue> values;
  IfcValue* const value = values.Cast(made.get());
  if (value == nullptr) return text;
  target = value;
  static_cast<void>(made.release());
  return value->ParseBody(behindName);
}

std::ostream& WriteValueMember(std::ostream& out, const MEMBER& member) {
  if (const auto* value = dynamic_cast<const IfcValue*>(member.GetInstance())) {
    return value->WriteWithName(out);
  }
  detail::PutChar(out, '$');
  return out;
}

}  // namespace KelIFC
