#ifndef KELIFC_GEO_SECTIONS_H_
#define KELIFC_GEO_SECTIONS_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/collection.h"
#include "kelifc/geo/section.h"
#include "kelifc/geo/section_index.h"

namespace KelIFC {

/// The sections of a structure. They are found by index, by name and by sizes. No section is ever
/// removed, so the index of a section is constant.
class CoGeoSections : public ItemList<CoGeoSectionsBase, IGeoSection> {
 public:
  /// Stores a section, counted. A string finds the first section with exactly this name, even if it
  /// spells a number; the status is E_FAIL if there is none. Any other index is converted to a
  /// number for ItemByIndex. If a section fails to return its name, or the index cannot be
  /// converted, that failure is returned and `out` is null. Returns E_POINTER if `out` is null.
  HRESULT Item(VARIANT index, IGeoSection** out) override;

  /// Stores the section at an index from 1, as GiveItem does.
  HRESULT ItemByIndex(LONG index, IGeoSection** out) override { return GiveItem(index, out); }

  /// Finds the first section with these sizes and stores its index from 0, or nothing. The search
  /// ends at a section that fails to return its kind; that failure is returned if no earlier
  /// section fits.
  HRESULT Find(const SectionSizes& sizes, std::optional<std::size_t>* found);

  /// Returns the failure of the first section that fails to return its kind, otherwise S_OK.
  HRESULT CheckKinds() { return IndexNew(); }

  /// Returns the counter that the sections of this collection share.
  const SizeChanges& Changes() const { return changes; }

 protected:
  ~CoGeoSections() = default;

 private:
  HRESULT GiveByName(BSTR name, IGeoSection** out) const;

  /// Adds new sections to the index, up to the first that fails to return its kind. After a change
  /// of a size the index is built again.
  HRESULT IndexNew();

  SizeChanges changes = std::make_shared<std::uint64_t>(0);
  SectionIndex bySizes;
  std::size_t indexed = 0;           // number of sections in `bySizes`
  std::uint64_t indexedChanges = 0;  // value of `changes` for which `bySizes` is valid
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTIONS_H_
