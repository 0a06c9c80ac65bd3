#ifndef KELIFC_BUILDING_BUILD_ELEMENT_KEY_H_
#define KELIFC_BUILDING_BUILD_ELEMENT_KEY_H_

#include <string>

#include "kelifc/building/build/idealise.h"
#include "kelifc/building/facts/product_facts.h"

namespace KelIFC::building {

/// Makes a text that holds, bit for bit, every fact of a product from which its body and its
/// idealisation are made. What names the product, its materials and its openings do not count.
/// Returns false if the shape is so large that its key should not be kept, or cannot be read. `key`
/// must be empty.
bool MakeElementKey(const ProductFacts& product, ElementRole role, std::string& key);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_BUILD_ELEMENT_KEY_H_
