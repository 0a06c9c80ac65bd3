#ifndef KELIFC_IMPORT_MODEL_READ_ITEMS_H_
#define KELIFC_IMPORT_MODEL_READ_ITEMS_H_

#include <cstddef>

#include "kelifc/core/representation_item.h"

namespace KelIFC {

/// Visits the items of all representations of a product in their order; `visit` takes the
/// representation and the item, and gives false to end the walk. What is missing is left out.
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
