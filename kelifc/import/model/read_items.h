#ifndef KELIFC_IMPORT_MODEL_READ_ITEMS_H_
#define KELIFC_IMPORT_MODEL_READ_ITEMS_H_

#include <cstddef>

#include "kelifc/core/representation_item.h"

namespace KelIFC {

/// Calls `visit` for each item of each representation of a product, in the order of the file, with
/// the representation and the item, until `visit` returns false. References that are unset or
/// dangling are skipped.
template <class Release, class Visit>
void ForEachItem(const typename Release::IfcProduct& product, Visit&& visit) {
  const auto* shape = product.GetRepresentation();
  if (shape == nullptr) return;
  const auto representations = shape->GetRepresentations();
  for (std::size_t r = 1; r <= representations.GetSize(); ++r) {
    if (representations[r] == nullptr) continue;
    const auto items = representations[r]->GetItems();
    for (std::size_t i = 1; i <= items.GetSize(); ++i) {
      if (items[i] != nullptr && !visit(*representations[r], *items[i])) return;
    }
  }
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_READ_ITEMS_H_
