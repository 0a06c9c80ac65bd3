#ifndef KELIFC_CORE_LISTS_VALUE_LISTS_H_
#define KELIFC_CORE_LISTS_VALUE_LISTS_H_

#include "kelifc/core/aggregate.h"
#include "kelifc/core/integer.h"
#include "kelifc/core/string.h"

// Lists of plain values. Both functions return the position after the comma that follows the list,
// or null. `$`, `*` and a null cursor leave the list unset. Unset elements are left out.

namespace KelIFC {

/// Parses integers between the first parenthesis and its counterpart. A non-numeric element reads
/// as 0. Without a parenthesis the list stays unset and the cursor does not move.
const char* ParseIntegers(LIST<INTEGER>& numbers, const char* text);

/// Parses texts between parentheses. A text without parentheses counts as a list of one element. A
/// text without a closing quote is left out, and so is everything after it.
const char* ParseTexts(LIST<STRING>& texts, const char* text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_LISTS_VALUE_LISTS_H_
