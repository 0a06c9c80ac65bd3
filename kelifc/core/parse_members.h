#ifndef KELIFC_CORE_PARSE_MEMBERS_H_
#define KELIFC_CORE_PARSE_MEMBERS_H_

#include "kelifc/core/member.h"
#include "kelifc/core/sequence.h"

namespace KelIFC {

/// How many values in place other than typed values a list may hold; the next one ends it. One of
/// them may look through the rest of the list's text, or keep it, so without a bound a list could
/// take time and memory with the square of its text.
constexpr int kMaximumEntitiesInList = 64;

/// Replaces `items` by the references in parentheses at `text`, which is not null and stands behind
/// the test for an omitted value. Each reference that is set gets `owner`. Gives the next cursor;
/// `text` itself if there is no parenthesis.
template <class Header>
const char* ParseMembers(const char* text, IfcUnknown* owner, Sequence<MEMBER, Header>& items);

}  // namespace KelIFC

#endif  // KELIFC_CORE_PARSE_MEMBERS_H_
