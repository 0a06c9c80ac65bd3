#ifndef KELIFC_CORE_LISTS_PARSE_MEMBERS_H_
#define KELIFC_CORE_LISTS_PARSE_MEMBERS_H_

#include <cstddef>

#include "kelifc/core/detail/sequence.h"
#include "kelifc/core/member.h"

namespace KelIFC {

/// Each inline value that is not a typed value can scan and store the rest of the list's text.
/// These bounds keep time and memory from growing with the square of the text. The inline value
/// that exceeds a bound ends the list. The bounds limit the number of such values, and the number
/// of characters that they scan together: kEntityTextFactor times the text of the list plus
/// kEntityTextAllowance.
constexpr int kMaximumEntitiesInList = 64;
constexpr std::size_t kEntityTextFactor = 8;
constexpr std::size_t kEntityTextAllowance = 65536;

/// Replaces `items` by the references in parentheses at `text`. `text` is not null and is not an
/// omitted value. Each reference that is set gets `owner`. Returns the next cursor, or `text`
/// itself if there is no parenthesis.
template <class Header>
const char* ParseMembers(const char* text, IfcUnknown* owner,
                         detail::Sequence<MEMBER, Header>& items);

}  // namespace KelIFC

#endif  // KELIFC_CORE_LISTS_PARSE_MEMBERS_H_
