#include "kelifc/geo/sections.h"

#include <string>
#include <tuple>

#include "kelifc/platform/com_bstr.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_text.h"

namespace KelIFC {

namespace {

template <class Section>
std::optional<SectionSizes> ReadSizes(LONG kind, IGeoSection& section) {
  auto* const sized = dynamic_cast<Section*>(&section);
  if (sized == nullptr) return std::nullopt;
  return std::apply([kind](const auto*... field) { return SectionSizes(kind, *field...); },
                    sized->Fields());
}

/// Returns the sizes of a section, or nothing for a kind without sizes.
std::optional<SectionSizes> SizesOf(LONG kind, IGeoSection& section) {
  switch (kind) {
    case SECTION_R:
      return ReadSizes<CoGeoSectionR>(kind, section);
    case SECTION_C:
      return ReadSizes<CoGeoSectionC>(kind, section);
    case SECTION_T:
      return ReadSizes<CoGeoSectionT>(kind, section);
    case SECTION_THICK:
      return ReadSizes<CoGeoSectionThick>(kind, section);
    default:
      return std::nullopt;
  }
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

HRESULT CoGeoSections::Find(const SectionSizes& sizes, std::optional<std::size_t>* found) {
  const HRESULT status = IndexNew();
  // The index ends before a section that fails, so a section that it finds comes before that one.
  *found = bySizes.Find(sizes);
  return *found ? S_OK : status;
}

HRESULT CoGeoSections::IndexNew() {
  if (indexedChanges != *changes) {
    bySizes.Clear();
    indexed = 0;
    indexedChanges = *changes;
  }
  for (; indexed < Items().size(); ++indexed) {
    IGeoSection& section = *Items()[indexed];
    LONG kind = SECTION_NONE;
    const HRESULT status = section.get_Kind(&kind);
    if (FAILED(status)) return status;
    if (const auto sizes = SizesOf(kind, section)) bySizes.Add(*sizes, indexed);
  }
  return S_OK;
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
