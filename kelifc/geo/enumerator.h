#ifndef KELIFC_GEO_ENUMERATOR_H_
#define KELIFC_GEO_ENUMERATOR_H_

#include <cstddef>

#include "kelifc/platform/com_variant.h"

namespace KelIFC {

/// The items of a collection, as an enumerator needs them.
class VariantItems {
 public:
  virtual std::size_t Size() const = 0;

  /// Returns the item at an index from 0, which must be below Size. The caller owns the variant.
  virtual VARIANT At(std::size_t index) const = 0;

 protected:
  ~VariantItems() = default;
};

/// Creates an enumerator (IEnumVARIANT) at the first item. It keeps `collection` alive, which must
/// own `items`. On failure `out` is null.
HRESULT MakeEnumerator(IUnknown* collection, const VariantItems& items, IUnknown** out);

}  // namespace KelIFC

#endif  // KELIFC_GEO_ENUMERATOR_H_
