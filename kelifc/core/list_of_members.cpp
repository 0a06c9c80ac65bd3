#include "kelifc/core/list_of_members.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/lists/parse_members.h"

namespace KelIFC {

LIST_OF_MEMBERS& LIST_OF_MEMBERS::operator=(const std::vector<IfcUnknown*>& /*items*/) {
  SetExists(true);
  return *this;
}

const char* LIST_OF_MEMBERS::Parse(const char* text) {
  Clear();
  SetExists(false);
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  SetExists(true);
  return ParseMembers(text, owner, items);
}

}  // namespace KelIFC
