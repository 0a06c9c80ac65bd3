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

/// The sections of a structure, found by their index or their name. The collection only grows, so
/// the index of a section holds for as long as it lives.
class CoGeoSections : public ItemList<CoGeoSectionsBase, IGeoSection> {
 public:
  /// A string finds the first section of exactly that name, E_FAIL if there is none, also where it
  /// spells a number. A failure of a section to tell its name is handed on. What is no string is
  /// turned into a number.
  HRESULT Item(VARIANT index, IGeoSection** out) override;

  HRESULT ItemByIndex(LONG index, IGeoSection** out) override { return GiveItem(index, out); }

  /// Finds the first section of these sizes: its index, from 0, or nothing. A section that fails to
  /// tell its kind ends the search with its failure.
  HRESULT Find(const SectionSizes& sizes, std::optional<std::size_t>* found);

  /// The failure of the first section that does not tell its kind.
  HRESULT CheckKinds() { return IndexNew(); }

  /// What the sections of this collection count the changes of their sizes with.
  const SizeChanges& Changes() const { return changes; }

 protected:
  ~CoGeoSections() = default;

 private:
  HRESULT GiveByName(BSTR name, IGeoSection** out) const;

  /// Brings the index up to date, as far as the sections tell their kinds.
  HRESULT IndexNew();

  SizeChanges changes = std::make_shared<std::uint64_t>(0);
  SectionIndex bySizes;
  std::size_t indexed = 0;           // how many sections `bySizes` knows
  std::uint64_t indexedChanges = 0;  // how many changes it has seen
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTIONS_H_
