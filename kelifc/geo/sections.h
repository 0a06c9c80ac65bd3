#ifndef KELIFC_GEO_SECTIONS_H_
#define KELIFC_GEO_SECTIONS_H_

#include <cstddef>
#include <cstdint>
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

  /// The index, from 0, of the first section of these sizes; nothing if there is none.
  std::optional<std::size_t> Find(const SectionSizes& sizes);

  /// Tells of the sizes of the section that was appended last.
  void IndexLast(const SectionSizes& sizes) { bySizes.Add(sizes, Items().size() - 1); }

 protected:
  ~CoGeoSections() = default;

 private:
  HRESULT GiveByName(BSTR name, IGeoSection** out) const;
  void IndexAll();

  SectionIndex bySizes;
  std::uint64_t indexedChanges = SectionChanges();  // what `bySizes` was made after
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTIONS_H_
