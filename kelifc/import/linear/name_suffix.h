#ifndef KELIFC_IMPORT_LINEAR_NAME_SUFFIX_H_
#define KELIFC_IMPORT_LINEAR_NAME_SUFFIX_H_

#include <string>

#include "kelifc/import/linear/linear_facts.h"

namespace KelIFC {

/// Returns what follows the name of an element whose product has no name: numbers in parentheses
/// that tell the elements of one product apart. The third of several items, brought by the second
/// mapped item, gets "(2/3)(2)(3)". The only item of a product gets an empty suffix.
std::string NameSuffix(const LinearPartFacts& part, const LinearItemFacts& item);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_LINEAR_NAME_SUFFIX_H_
