#include "kelifc/core/value_member.h"

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/references/model.h"
#include "kelifc/core/value.h"

namespace KelIFC {

const char* ParseValueMember(IfcServer* server, const char* text, MEMBER& target) {
  target.Parse(nullptr);
  if (text == nullptr) return nullptr;
  const char* behindName = nullptr;
  IfcUnknown* instance = ParseInstance(server, text, &behindName);
  auto* value = dynamic_cast<IfcValue*>(instance);
  if (value == nullptr) {
    delete instance;
    return text;
  }
  target = value;
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
