#ifndef KELIFC_CORE_LISTS_PARSE_MEMBERS_H_
#define KELIFC_CORE_LISTS_PARSE_MEMBERS_H_

#include <cstddef>

#include "kelifc/core/detail/sequence.h"
#include "kelifc/core/member.h"

namespace KelIFC {

/// Values in place other than typed values may each look through the rest of the list's text, and
/// keep it. So that no list takes time and memory with the square of its text, the one that exceeds
/// a bound ends the list: there may be so many of them, and together they may look at so many times
/// the list's text and so many characters more.
constexpr int kMaximumEntitiesInList = 64;
constexpr std::size_t kEntityTextFactor = 8;
constexpr std::size_t kEntityTextAllowance = 65536;

/// Replaces `items` by the references in parentheses at `text`, which is not null and stands behind
/// the test for an omitted value. Each reference that is set gets `owner`. Gives the next cursor;
/// `text` itself if there is no parenthesis.
template <class Header>
const char* ParseMembers(const char* text, IfcUnknown* owner,
                         detail::Sequence<MEMBER, Header>& items);

}  // namespace KelIFC

#endif  // KELIFC_CORE_LISTS_PARSE_MEMBERS_H_
