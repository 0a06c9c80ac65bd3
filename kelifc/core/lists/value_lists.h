#ifndef KELIFC_CORE_LISTS_VALUE_LISTS_H_
#define KELIFC_CORE_LISTS_VALUE_LISTS_H_

#include "kelifc/core/aggregate.h"
#include "kelifc/core/integer.h"
#include "kelifc/core/string.h"

// Lists of plain values. Both readers follow the rule of the cursor: they give the position behind
// the comma that follows the list, or null. `$`, `*` and a null cursor leave the list unset; an
// unset element is left out.

namespace KelIFC {

/// Reads whole numbers between the first parenthesis and its counterpart; an element that is no
/// number gives 0. Without a parenthesis the list stays unset and the cursor does not move.
const char* ParseIntegers(LIST<INTEGER>& numbers, const char* text);

/// Reads texts between parentheses; a text that stands alone counts as a list of one. A text that
/// does not end leaves out itself and all that follows.
const char* ParseTexts(LIST<STRING>& texts, const char* text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_LISTS_VALUE_LISTS_H_
