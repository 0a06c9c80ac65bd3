#ifndef KELIFC_BUILDING_READ_PRODUCTS_H_
#define KELIFC_BUILDING_READ_PRODUCTS_H_

#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "kelifc/building/facts/product_facts.h"
#include "kelifc/building/read/decomposition.h"
#include "kelifc/building/read/items.h"
#include "kelifc/building/read/placements.h"
#include "kelifc/building/read/representations.h"

namespace KelIFC::building {

/// Reads the products of a model.
class ProductReader {
 public:
  ProductReader(ReadContext& reading, const Relations& related, Decomposition& parts,
                PlacementReader& places)
      : context(reading),
        relations(related),
        decomposition(parts),
        placements(places),
        items(reading) {}

  ProductFacts Read(const Instance& product);

 private:
  void ReadIdentity(const Instance& product, ProductFacts& facts);
  bool ReadPlacement(const Instance& product, Transform3& placement, Unreadable& why);
  std::vector<SolidPointer> ReadBody(const Instance& product, Unreadable& why);
  void ReadAxis(const Instance& product, ProductFacts& facts);
  void ReadMaterials(ProductFacts& facts);
  void ReadOpenings(ProductFacts& facts);

  ReadContext& context;
  const Relations& relations;
  Decomposition& decomposition;
  PlacementReader& placements;
  ItemReader items;
  RepresentationChooser chooser;
  std::unordered_map<std::size_t, MaterialFacts> materials;  // by number of the definition
  std::unordered_set<std::size_t> used;                      // representations, by number
  std::unordered_set<std::size_t> withoutAxis;               // curves that are no axis, by number
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_PRODUCTS_H_
