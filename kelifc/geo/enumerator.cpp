#include "kelifc/geo/enumerator.h"

#include <algorithm>

#include "kelifc/platform/com_object.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

namespace {

class Enumerator : public IEnumVARIANT {
 public:
  using Interfaces = InterfaceList<IEnumVARIANT>;
  using Counted = LiveObject;

  Enumerator(IUnknown* collection, const VariantItems& items, std::size_t position)
      : collection(collection), items(items), position(position) {}

  HRESULT Next(ULONG count, VARIANT* out, ULONG* fetched) override {
    if (out == nullptr || (fetched == nullptr && count > 1)) return E_POINTER;
    const std::size_t given = Take(count);
    for (std::size_t i = 0; i < given; ++i) out[i] = items.At(position - given + i);
    if (fetched != nullptr) *fetched = static_cast<ULONG>(given);
    return given == count ? S_OK : S_FALSE;
  }

  HRESULT Skip(ULONG count) override { return Take(count) == count ? S_OK : S_FALSE; }

  HRESULT Reset() override {
    position = 0;
    return S_OK;
  }

  HRESULT Clone(IEnumVARIANT** out) override {
    return MakeObject<Enumerator>(IidOf<IEnumVARIANT>(), reinterpret_cast<void**>(out),
                                  collection.Get(), items, position);
  }

 protected:
  ~Enumerator() = default;

 private:
  /// Moves forward by up to `count` items. Returns the number of items passed.
  std::size_t Take(ULONG count) {
    const std::size_t left = items.Size() - std::min(position, items.Size());
    const std::size_t taken = std::min<std::size_t>(count, left);
    position += taken;
    return taken;
  }

  ComPtr<IUnknown> collection;  // keeps `items` alive
  const VariantItems& items;
  std::size_t position;
};

}  // namespace

HRESULT MakeEnumerator(IUnknown* collection, const VariantItems& items, IUnknown** out) {
  return MakeObject<Enumerator>(IidOf<IUnknown>(), reinterpret_cast<void**>(out), collection, items,
                                std::size_t{0});
}

}  // namespace KelIFC
