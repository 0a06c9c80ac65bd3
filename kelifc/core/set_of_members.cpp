#include "kelifc/core/set_of_members.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/lists/parse_members.h"

namespace KelIFC {

SET_OF_MEMBERS& SET_OF_MEMBERS::operator=(const std::vector<IfcUnknown*>& /*items*/) {
  SetExists(true);
  return *this;
}

const char* SET_OF_MEMBERS::Parse(const char* text) {
  Clear();
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  return ParseMembers(text, owner, items);
}

}  // namespace KelIFC
