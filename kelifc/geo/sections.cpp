#include "kelifc/geo/sections.h"

#include <string>

#include "kelifc/platform/com_bstr.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_text.h"

namespace KelIFC {

namespace {

/// The sizes of a section by its class; nothing for a class without sizes.
template <class... Classes>
std::optional<SectionSizes> SizesOf(IGeoSection& section) {
  std::optional<SectionSizes> sizes;
  const auto tryClass = [&](const auto* object) {
    if (object != nullptr) sizes = object->GetSizes();
  };
  (tryClass(dynamic_cast<const Classes*>(&section)), ...);
  return sizes;
}

}  // namespace

HRESULT CoGeoSections::Item(VARIANT index, IGeoSection** out) {
  if (out == nullptr) return E_POINTER;
  if (index.vt == VT_BSTR) {
    *out = nullptr;
    return Guard([&] { return GiveByName(index.bstrVal, out); });
  }
  VARIANT number = {};
  const HRESULT status = VariantChangeType(&number, &index, 0, VT_I4);
  if (SUCCEEDED(status)) return ItemByIndex(number.lVal, out);
  *out = nullptr;
  return status;
}

std::optional<std::size_t> CoGeoSections::Find(const SectionSizes& sizes) {
  if (indexedChanges != SectionChanges()) IndexAll();
  return bySizes.Find(sizes);
}

void CoGeoSections::IndexAll() {
  indexedChanges = SectionChanges();
  bySizes.Clear();
  for (std::size_t i = 0; i < Items().size(); ++i) {
    const auto sizes =
        SizesOf<CoGeoSectionR, CoGeoSectionC, CoGeoSectionT, CoGeoSectionThick>(*Items()[i]);
    if (sizes) bySizes.Add(*sizes, i);
  }
}

HRESULT CoGeoSections::GiveByName(BSTR name, IGeoSection** out) const {
  const std::string wanted = NarrowText(name);
  for (const ComPtr<IGeoSection>& section : Items()) {
    Bstr found;
    const HRESULT status = section->get_Name(found.Put());
    if (FAILED(status)) return status;
    if (NarrowText(found.Get()) != wanted) continue;
    section.CopyTo(out);
    return S_OK;
  }
  return E_FAIL;
}

}  // namespace KelIFC
