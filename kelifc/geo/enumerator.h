#ifndef KELIFC_GEO_ENUMERATOR_H_
#define KELIFC_GEO_ENUMERATOR_H_

#include <cstddef>

#include "kelifc/platform/com_variant.h"

namespace KelIFC {

/// The items of a collection as an enumerator sees them.
class VariantItems {
 public:
  virtual std::size_t Size() const = 0;

  /// The item at an index from 0 that is below Size; what it holds is counted for the caller.
  virtual VARIANT At(std::size_t index) const = 0;

 protected:
  ~VariantItems() = default;
};

/// Makes an enumerator (IEnumVARIANT) that stands at the first item. It holds the collection and
/// walks its live items. On failure `out` is null.
HRESULT MakeEnumerator(IUnknown* collection, const VariantItems& items, IUnknown** out);

}  // namespace KelIFC

#endif  // KELIFC_GEO_ENUMERATOR_H_
